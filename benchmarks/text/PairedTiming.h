#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Timing of pieces of code that take turns, so that what slows the machine down slows all of them.

#include <functional>
#include <string>
#include <vector>

// Something to be timed. What it answers is looked at, so that no work can be left out.
using TimedWork = std::function<std::size_t()>;

// The shortest time that each took for one run, in nanoseconds, in the order given.
std::vector<double> shortestTimes(const std::vector<TimedWork> &works);
