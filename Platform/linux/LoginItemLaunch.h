#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Whether a session started a process because the user wants it at login.

#include <QString>

#include <string_view>

namespace zt {

// `parentName` is the name of the process's parent, `controlGroups` the content of
// /proc/PID/cgroup of the process itself. Thread: any.
bool isLaunchOfLoginItem(const QString &parentName, std::string_view controlGroups);

} // namespace zt
