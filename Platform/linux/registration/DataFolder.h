#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Entries, icons and file types of applications in a data folder, such as "~/.local/share".

#include "Platform/linux/registration/ApplicationRecord.h"

#include <functional>
#include <string>
#include <string_view>

namespace zt {

// Writes what the desktop needs of the application into the open data folder, in place of what was
// known under its identifier. Each file appears whole or not at all, the entry last; no link is
// followed below the folder. Fails (and may leave icons) when something cannot be written; an
// entry that was there before is then still there. Thread: any, as for all that follow.
Result<void> writeRegistration(int dataFolder, const ApplicationRecord &record);

// Removes the application's entry from the open data folder. One that is not there counts as
// removed.
Result<void> removeEntry(int dataFolder, const std::string &identifier);

// The bundle's program that the entry of this identifier starts, as its TryExec line says; empty
// when there is no such entry.
std::string programOfEntry(int dataFolder, const std::string &identifier);

// Has the desktop's own tools, where they are installed, read the data folder anew. A tool that
// fails, or takes longer than some seconds, is told in one line; the desktop finds the files
// without it, only later. Nothing of this process's environment is handed on.
void refreshCaches(const std::string &dataFolder, const ApplicationRecord &record,
                   const std::function<void(std::string_view)> &log);

} // namespace zt
