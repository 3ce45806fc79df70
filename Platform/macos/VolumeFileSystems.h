#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The file systems of volumes, from the system's record of mounted volumes.

#include "Platform/FileSystems.h"

namespace zt {

class VolumeFileSystems final : public FileSystems {
public:
    Result<QString> typeNameFor(const QString &path) const override;
    Result<std::uint64_t> availableBytesFor(const QString &path) const override;
};

} // namespace zt
