#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Stepping in at the system calls of a piece of code: to list them, to let one fail, or to end the
// process just before one, as a kill or a power failure might.

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zt::testing {

// What happens to a call that the code is about to make.
struct CallFate {
    enum class Kind { GoesOn, Fails, EndsTheProcess };

    Kind kind = Kind::GoesOn;
    int code = 0; // the errno of a call that fails, which then has no effect
};

// Which calls are stepped in at.
enum class WatchedCalls {
    Changing, // that make, change, move, remove or flush something in a file system
    Reading,  // that look into files and folders
};

// A call by its system's name, "renameat2" for instance.
using FateOfCall = std::function<CallFate(int number, const std::string &name)>;

// Runs the body, which answers an exit status, in a child process, and asks before each watched
// call of any of its threads, with the calls numbered from 1. Answers the exit status; no value
// when the process was ended. While `fate` runs, the calling thread stands still, others may not.
// Thread: one at a time.
std::optional<int> runWatched(const std::function<int()> &body, WatchedCalls calls,
                              const FateOfCall &fate);

// Whether this machine lets a process step in at another's calls.
bool canWatchCalls();

// The calls, in order, that the body makes.
std::vector<std::string> callsOf(const std::function<int()> &body, WatchedCalls calls);

} // namespace zt::testing
