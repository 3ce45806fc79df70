#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The login items, from the shared file list of this user's session.

#include "Platform/LoginItems.h"

namespace zt {

class SharedFileListLoginItems final : public LoginItems {
public:
    std::optional<std::vector<std::optional<QString>>> resolvedPaths() const override;
};

} // namespace zt
