#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The file systems of the volumes that files lie on.

#include "Platform/Result.h"

#include <QString>

#include <cstdint>

namespace zt {

// Thread: any, for all operations.
class FileSystems {
public:
    virtual ~FileSystems() = default;

    // The name that the system has for the type of file system that holds the item: "ext4",
    // "apfs". An alias counts as what it leads to. Fails when there is no such item, or nothing is
    // known of its volume.
    virtual Result<QString> typeNameFor(const QString &path) const = 0;

    // How many bytes this user can still write to the volume that holds the item. An alias counts
    // as what it leads to. Fails when there is no such item.
    virtual Result<std::uint64_t> availableBytesFor(const QString &path) const = 0;

protected:
    FileSystems() = default;
    FileSystems(const FileSystems &) = default;
    FileSystems &operator=(const FileSystems &) = default;
};

} // namespace zt
