// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/PropertyList.h"

#include "Platform/macos/CFText.h"
#include "Platform/macos/CFValues.h"

#include <QFile>

namespace zt {

namespace {

Error parseError(CFErrorRef error) {
    const CFOwner<CFStringRef> words(error ? CFErrorCopyDescription(error) : nullptr);
    return {"parse", "property list", textOf(words.get()).toStdString()};
}

} // namespace

// The system's own reader takes all three forms.
Result<QVariant> parsePropertyList(const QByteArray &content) {
    const CFOwner bytes(CFDataCreate(
        kCFAllocatorDefault, reinterpret_cast<const UInt8 *>(content.constData()), content.size()));
    CFOwner<CFErrorRef> error;
    const CFOwner list(CFPropertyListCreateWithData(
        kCFAllocatorDefault, bytes.get(), kCFPropertyListImmutable, nullptr, error.receive()));
    if (!list)
        return parseError(error.get());
    return valueOf(list.get());
}

Result<QVariant> readPropertyList(const QString &path) {
    const std::string object = path.toStdString();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error{"open", object, file.errorString().toStdString()};
    // One byte more than is taken tells that there is more.
    const QByteArray content = file.read(maximumPropertyListSize + 1);
    if (file.error() != QFileDevice::NoError)
        return Error{"read", object, file.errorString().toStdString()};
    if (content.size() > maximumPropertyListSize)
        return Error{"read", object, "it is too large for a property list"};
    Result<QVariant> list = parsePropertyList(content);
    if (!list)
        return Error{"parse", object, list.error().cause};
    return list;
}

} // namespace zt
