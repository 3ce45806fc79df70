// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/FileAttributes.h"

#include "Platform/linux/ResourceFork.h"

#include <QFile>

#include <sys/xattr.h>

namespace zt {

namespace {

std::optional<QByteArray> readAttribute(const QByteArray &path, const QByteArray &name) {
    const ssize_t size = ::getxattr(path.constData(), name.constData(), nullptr, 0);
    if (size <= 0 || size > maximumFileAttributeSize)
        return std::nullopt;
    QByteArray value(size, Qt::Uninitialized);
    const ssize_t count = ::getxattr(path.constData(), name.constData(), value.data(),
                                     static_cast<std::size_t>(value.size()));
    // Another program may have taken it away, or made it larger, in between.
    if (count <= 0)
        return std::nullopt;
    value.truncate(count);
    return value;
}

} // namespace

// Linux lets programs name attributes only behind "user."; some file systems of other systems are
// mounted with their own names.
std::optional<QByteArray> readFileAttribute(const QString &path, const QByteArray &name) {
    const QByteArray encodedPath = QFile::encodeName(path);
    if (std::optional<QByteArray> value = readAttribute(encodedPath, "user." + name))
        return value;
    return readAttribute(encodedPath, name);
}

std::optional<QByteArray> readFileResource(const QString &path, std::uint32_t type,
                                           std::int16_t number) {
    const std::optional<QByteArray> fork = readResourceFork(path);
    const auto resource = fork ? resourceInFork(*fork, type, number) : std::nullopt;
    return resource ? std::optional(resource->toByteArray()) : std::nullopt;
}

} // namespace zt
