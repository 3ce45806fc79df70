#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for volumes and attributes of files.

#include <cstdint>
#include <map>
#include <string>

namespace standin {

struct Volumes {
    std::map<std::string, std::string> typeNames;  // by the path of an item on it
    std::uint64_t availableBlocks = 0;             // of all of them, of 4096 bytes each
    std::map<std::string, std::string> attributes; // by "PATH NAME"
    int interruptions = 0;                         // how often the next question is interrupted
};
extern Volumes volumes;

} // namespace standin
