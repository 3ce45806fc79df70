#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// File systems by the kernel's list of mounts.

#include "Platform/FileSystems.h"

#include <string>

namespace zt {

class MountedFileSystems final : public FileSystems {
public:
    // `procRoot` is where the process file system is found.
    explicit MountedFileSystems(std::string procRoot = "/proc");

    Result<QString> typeNameFor(const QString &path) const override;
    Result<std::uint64_t> availableBytesFor(const QString &path) const override;

private:
    std::string m_procRoot;
};

} // namespace zt
