#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Folders, users and a copy of the tool that exist for this process and its children alone.

#include <sys/types.h>

#include <string>

namespace zt::testing {

// The user who asks for installations, and a stranger.
inline constexpr uid_t asker = 4242;
inline constexpr gid_t askersGroup = 4242;
inline constexpr gid_t askersSecondGroup = 4243;
inline constexpr uid_t stranger = 4343;
inline constexpr const char *askersName = "ann";

// On one volume, in memory; root's folder like "/" itself.
inline constexpr const char *worldFolder = "/mnt";
inline constexpr const char *askersHome = "/mnt/home/ann";
inline constexpr const char *homeOfRoot = "/mnt/home/root";

// Where the tool lies that the tests run, and where its lock will be.
inline constexpr const char *trainPath = "/run/train";
inline constexpr const char *lockPath = "/run/velmora-installer.lock";

// Goes on in a mount namespace of its own with all that is told above. Empty, or why it cannot be
// had.
std::string makePrivateWorld(const std::string &trainProgram);

// What makePrivateWorld() answered in this process.
const std::string &reasonForNoWorld();

} // namespace zt::testing
