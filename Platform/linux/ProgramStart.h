#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Starting a program as a child of this process.

#include "Platform/Result.h"
#include "Platform/linux/OwnedChild.h"

#include <string>
#include <vector>

namespace zt {

struct ProgramStart {
    // Which processes a signal to the group reaches: also this one, or only the child and what it
    // starts.
    enum class Group { Shared, Own };

    std::string program;                // its path
    std::vector<std::string> arguments; // after the program's name
    std::string workingFolder;          // this process's when empty
    Group group = Group::Shared;
    bool hasInput = true; // whether the standard input is this process's, or nothing to read
    int output = -1;      // the descriptor that becomes the standard output,
    int errors = -1;      // and the standard error; this process's own when negative
};

// The child has this process's environment, every signal as it is by default, and no descriptors
// but the standard streams. Fails when the program could not be run, with the errno of exec.
// Thread: any.
Result<OwnedChild> startProgram(const ProgramStart &start);

} // namespace zt
