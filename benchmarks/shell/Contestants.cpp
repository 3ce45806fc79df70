// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/shell/Contestants.h"

#include <QFile>
#include <QProcess>

#include <array>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

QString outputByQProcess(const QStringList &commandLine) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(commandLine[0], commandLine.mid(1));
    process.waitForFinished(-1);
    return QString::fromUtf8(process.readAll());
}

QString outputByPopen(const QString &shellLine) {
    const std::unique_ptr<FILE, int (*)(FILE *)> pipe(
        ::popen(QFile::encodeName(shellLine).constData(), "re"), ::pclose);
    QByteArray output;
    std::array<char, 4096> bytes = {};
    while (pipe) {
        const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), pipe.get());
        if (count == 0)
            break;
        output.append(bytes.data(), static_cast<qsizetype>(count));
    }
    return QString::fromUtf8(output);
}

std::optional<std::vector<double>> timesOfSubprocess(int runs, const QString &expected,
                                                     const QStringList &commandLine) {
    QProcess python;
    python.start(u"/usr/bin/python3"_s,
                 QStringList{QStringLiteral(RUN_WITH_SUBPROCESS), QString::number(runs), expected} +
                     commandLine);
    python.waitForFinished(-1);
    if (python.exitStatus() != QProcess::NormalExit || python.exitCode() != 0)
        return std::nullopt;
    std::vector<double> times;
    const QStringList lines =
        QString::fromUtf8(python.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        times.push_back(line.toDouble());
    return times;
}
