#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Which script a process runs, when the program that the kernel sees is only an interpreter.

#include "Platform/linux/ProcFs.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zt {

// Whether a program of that file name runs scripts that it is given: "python3.11", "bash".
// Thread: any.
bool isInterpreterName(std::string_view fileName);

// The arguments of which the first that names a file may be the script: those that are no options,
// up to an option that brings the program text itself, which is another one for each interpreter.
// Element 0 of the arguments is left out. Thread: any.
std::vector<std::string> possibleScripts(std::string_view interpreterName,
                                         const std::vector<std::string> &arguments);

// The interpreter in the first line of a script ("#!/usr/bin/env python3" names "python3"); empty
// when the line names none. Thread: any.
std::string_view interpreterOfScript(std::string_view content);

// What is known of the script that a process runs.
struct BundledScript {
    // The script's path; no value when the process runs none, or one that lies in no bundle. A file
    // that the process was merely given to work on does not count.
    std::optional<std::string> path;
    // Whether that stays so until the process loads another program. Not so in the moment of a
    // process's birth, in which it has no arguments yet.
    bool isFinal = false;
};

// The script in a bundle that the process runs, whose program is the file at `programPath`.
// Thread: any.
BundledScript bundledScriptOf(const ProcFs &procFs, std::int32_t pid,
                              const std::string &programPath);

} // namespace zt
