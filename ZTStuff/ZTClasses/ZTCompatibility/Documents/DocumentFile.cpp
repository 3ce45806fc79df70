// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentFile.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"

#include <QFile>
#include <QFileInfo>

zt::Result<QByteArray> readDocumentFile(const QString &path) {
    const auto failure = [&](std::string cause) {
        return zt::Error{.operation = "read",
                         .object = QFile::encodeName(path).toStdString(),
                         .cause = std::move(cause)};
    };
    // Opening a pipe or a device could wait for ever.
    const QFileInfo information(path);
    if (!information.isFile())
        return failure(information.exists() ? "not a file" : "no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString().toStdString());
    QByteArray content = file.read(maximumDocumentSize + 1);
    if (file.error() != QFileDevice::NoError)
        return failure(file.errorString().toStdString());
    if (content.size() > maximumDocumentSize)
        return failure("it is too large");
    return content;
}
