// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/FileAttributes.h"

#include "Platform/macos/CFText.h"

#include <CoreServices/CoreServices.h>

#include <QFile>

#include <sys/xattr.h>

namespace zt {

namespace {

// An open resource fork. While it is there, it is the one that the Resource Manager looks into.
class ResourceFile {
public:
    explicit ResourceFile(const FSRef &item)
        : m_previous(CurResFile())
        , m_file(FSOpenResFile(&item, fsRdPerm)) {
        if (isOpen())
            UseResFile(m_file);
    }
    ~ResourceFile() {
        if (!isOpen())
            return;
        CloseResFile(m_file);
        UseResFile(m_previous);
    }
    ResourceFile(const ResourceFile &) = delete;
    ResourceFile &operator=(const ResourceFile &) = delete;

    bool isOpen() const { return m_file > 0; }

private:
    ResFileRefNum m_previous;
    ResFileRefNum m_file;
};

} // namespace

std::optional<QByteArray> readFileAttribute(const QString &path, const QByteArray &name) {
    const QByteArray encodedPath = QFile::encodeName(path);
    const ssize_t size = ::getxattr(encodedPath.constData(), name.constData(), nullptr, 0, 0, 0);
    if (size <= 0 || size > maximumFileAttributeSize)
        return std::nullopt;
    QByteArray value(size, Qt::Uninitialized);
    const ssize_t count = ::getxattr(encodedPath.constData(), name.constData(), value.data(),
                                     std::size_t(value.size()), 0, 0);
    // Another program may have taken it away, or made it larger, in between.
    if (count <= 0)
        return std::nullopt;
    value.truncate(count);
    return value;
}

// The resource goes with its file.
std::optional<QByteArray> readFileResource(const QString &path, std::uint32_t type,
                                           std::int16_t number) {
    const CFOwner<CFURLRef> url = makeFileUrl(path);
    FSRef item = {};
    if (!url || CFURLGetFSRef(url.get(), &item) == 0)
        return std::nullopt;
    const ResourceFile file(item);
    if (!file.isOpen())
        return std::nullopt;
    const Handle resource = Get1Resource(type, number);
    if (!resource || !*resource)
        return std::nullopt;
    return QByteArray(*resource, GetHandleSize(resource));
}

} // namespace zt
