#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The Trash, through the workspace. No Qt, so that the privileged tool can use it.

#include "Platform/Trash.h"

namespace zt {

class WorkspaceTrash final : public Trash {
public:
    // The path that is answered is empty: the workspace does not tell under which name the item
    // lies in the Trash.
    Result<std::string> moveToTrash(const std::string &path) override;
};

} // namespace zt
