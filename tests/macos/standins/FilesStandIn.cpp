// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/macos/standins/FilesStandIn.h"
#include "tests/macos/standins/CoreFoundationStandIn.h"
#include "tests/macos/standins/FileReferences.h"

#include <QStringList>

#include <array>
#include <cerrno>
#include <cstring>

#include <sys/mount.h>
#include <sys/xattr.h>

namespace standin {

namespace {

QStringList &paths() {
    static QStringList list;
    return list;
}

// The resource that was handed out last, as the Resource Manager keeps it.
QByteArray loadedResource;
char *loadedBytes = nullptr;

QString openResourceFile;

} // namespace

Volumes volumes;

FSRef referenceToFile(const QString &path) {
    paths() << path;
    FSRef item = {};
    const qsizetype number = paths().size();
    std::memcpy(item.hidden, &number, sizeof number);
    return item;
}

std::optional<QString> pathOf(const FSRef &item) {
    qsizetype number = 0;
    std::memcpy(&number, item.hidden, sizeof number);
    return number > 0 ? std::optional(paths().at(number - 1)) : std::nullopt;
}

} // namespace standin

extern "C" {

OSErr FSResolveAliasFile(FSRef *item, Boolean resolveAliasChains, Boolean *targetIsFolder,
                         Boolean *wasAliased) {
    const auto target = standin::files.aliases.find(*standin::pathOf(*item));
    *targetIsFolder = 0;
    *wasAliased = target != standin::files.aliases.end();
    if (*wasAliased == 0)
        return noErr;
    if (target->second.isEmpty() || resolveAliasChains == 0)
        return OSErr(-43); // there is no such file
    *item = standin::referenceToFile(target->second);
    return noErr;
}

ResFileRefNum CurResFile() {
    return 1;
}

ResFileRefNum FSOpenResFile(const FSRef *item, SInt8 /*permission*/) {
    const QString path = *standin::pathOf(*item);
    if (!standin::files.resources.contains(path))
        return -1;
    standin::openResourceFile = path;
    ++standin::files.openResourceFiles;
    return 2;
}

void UseResFile(ResFileRefNum /*file*/) {}

void CloseResFile(ResFileRefNum /*file*/) {
    --standin::files.openResourceFiles;
}

Handle Get1Resource(ResType type, SInt16 number) {
    const std::array<char, 4> letters = {char(type >> 24U), char(type >> 16U), char(type >> 8U),
                                         char(type)};
    const QString name = QString::fromLatin1(letters.data(), 4) + u' ' + QString::number(number);
    const QVariantMap resources = standin::files.resources[standin::openResourceFile];
    if (!resources.contains(name))
        return nullptr;
    standin::loadedResource = resources[name].toByteArray();
    standin::loadedBytes = standin::loadedResource.data();
    return &standin::loadedBytes;
}

Size GetHandleSize(Handle /*handle*/) {
    return standin::loadedResource.size();
}

int statfs(const char *path, struct statfs *volume) {
    if (standin::volumes.interruptions > 0) {
        --standin::volumes.interruptions;
        errno = EINTR;
        return -1;
    }
    const auto type = standin::volumes.typeNames.find(path);
    if (type == standin::volumes.typeNames.end()) {
        errno = ENOENT;
        return -1;
    }
    volume->f_bsize = 4096;
    volume->f_bavail = standin::volumes.availableBlocks;
    std::strncpy(volume->f_fstypename, type->second.c_str(), sizeof volume->f_fstypename - 1);
    return 0;
}

ssize_t getxattr(const char *path, const char *name, void *value, std::size_t size,
                 std::uint32_t position, int /*options*/) {
    const auto attribute = standin::volumes.attributes.find(std::string(path) + ' ' + name);
    if (attribute == standin::volumes.attributes.end() || position != 0) {
        errno = ENOENT;
        return -1;
    }
    if (size == 0)
        return ssize_t(attribute->second.size());
    if (size < attribute->second.size()) {
        errno = ERANGE;
        return -1;
    }
    std::memcpy(value, attribute->second.data(), attribute->second.size());
    return ssize_t(attribute->second.size());
}

} // extern "C"
