#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How the privileged tool ends.

#include "Installer/train/InstallFunction.h"

// 126 and 127 are never used: the program that asks for the password ends with these.
enum class ExitStatus : int {
    Success = static_cast<int>(InstallResult::Success),
    TrashFailed = static_cast<int>(InstallResult::TrashFailed),
    CopyFailed = static_cast<int>(InstallResult::CopyFailed),
    Usage = 3,   // the arguments are not two or three canonical paths
    Refused = 4, // it would not be safe to do what is asked for
    NotPrivileged =
        5, // the tool does not run as root, or cannot shake off what it was started with
};
