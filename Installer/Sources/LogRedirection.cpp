// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/LogRedirection.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

bool shouldRedirectLog(const QStringList &argumentVector) {
    return argumentVector.size() >= 3 && argumentVector.at(1) != u"-AppleLanguages"_s;
}

QString logPath() {
    return QDir::homePath() + u"/Library/Logs/VelmoraInstaller.log"_s;
}

void redirectStandardStreams(const QString &path) {
    QDir().mkpath(QFileInfo(path).path());
    const QByteArray name = QFile::encodeName(path);
    for (std::FILE *stream : {stdout, stderr}) {
        if (!std::freopen(name.constData(), "a+", stream) &&
            !std::freopen("/dev/null", "a+", stream))
            continue;
        // A crash must not take lines with it that were written before.
        std::setvbuf(stream, nullptr, _IOLBF, 0);
    }
}
