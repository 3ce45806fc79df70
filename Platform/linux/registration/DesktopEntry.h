#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/ApplicationRecord.h"

#include <string>

namespace zt {

// The text of the application's desktop entry. It starts the bundle's program, and does not show
// once that program is gone (TryExec). Escapes are those of freedesktop.org's desktop entries,
// version 1.0.
// Thread: any, as for all that follow.
std::string desktopEntryText(const ApplicationRecord &record);

// The description of the application's new file types for the shared MIME database.
std::string mimePackageText(const ApplicationRecord &record);

} // namespace zt
