#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Shaking off what a process inherits from the one that started it.

#include "Installer/train/Asker.h"
#include "Platform/Result.h"

namespace zt {

// Opens /dev/null in place of each standard stream that is closed, for the next file opened would
// take its number and get the log lines; closes all other descriptors. To be called before anything
// else. Thread: the only one, as for all that follow.
Result<void> cleanDescriptors();

// Fails unless this process is root's, was started as such, and does not get its rights from the
// file's mode.
Result<void> checkIsRoot();

// Sets what remains the way it is after login: environment, working directory, file creation mask,
// signals, timers, limits. Takes away the ways to get further rights, core dumps, and every power
// of root's that putting files in place does not need.
Result<void> cleanProcess();

// Takes the supplementary groups of the asker, so that acting as him for files is complete.
Result<void> takeGroupsOf(const Asker &asker);

} // namespace zt
