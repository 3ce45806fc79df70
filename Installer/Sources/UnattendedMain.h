#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The runs of the program that need no window.

#include "Installer/Sources/RunMode.h"

// Does what was chosen, which is not RunMode::Window: results go to the standard output, all else
// to the standard error stream. Answers the exit status. Thread: main, before there is an
// application object.
int runWithoutWindow(const RunChoice &choice, const QStringList &arguments);
