#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Ways of copying a tree, and a race between them.

#include "benchmarks/copy/SampleTree.h"
#include "benchmarks/copy/Volumes.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zt {

struct Contestant {
    std::string name;
    // Copies and answers how long that took; no value when it failed.
    std::function<std::optional<std::chrono::nanoseconds>(const std::string &source,
                                                          const std::string &target)>
        copy;
};

// The installer's own copy, not waiting for the disk or, as it is by default, waiting.
Contestant ourCopy();
Contestant ourDurableCopy();

// What people would use otherwise.
Contestant cp();
Contestant cpAndSync();
Contestant cpWithClones();
Contestant rsync();
Contestant tarToTar();
Contestant standardLibrary();
Contestant python();

// Writing the same bytes, within this process; see writeSameBytes(). Both have to outlive it.
Contestant floorOf(const TreeList &list, const std::vector<std::string> &contents);

// Milliseconds, by the contestants' names and in the order of the rounds.
using Times = std::map<std::string, std::vector<double>>;

// Lets all copy the source in turn, a round to warm up and then as many rounds as asked for; each
// round begins with another one. What else the machine does so touches all alike. Contestants whose
// program is missing are left out. Ends the program when a copy fails. Thread: one at a time.
Times race(const Volume &volume, const std::string &source,
           const std::vector<Contestant> &contestants, int rounds);

// The median of the rounds' ratios of two contestants.
double ratio(const Times &times, const Contestant &one, const Contestant &other);

// The most memory that our copy of the source takes, in bytes.
std::optional<std::size_t> memoryOfOurCopy(const Volume &volume, const std::string &source);

} // namespace zt
