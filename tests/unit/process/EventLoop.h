#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running the event loop within a test.

#include <functional>

// Handles events until the condition holds. False when it does not within half a minute, which is
// far more than anything here takes.
bool runLoopUntil(const std::function<bool()> &condition);

// Handles what is waiting to be handled now.
void runLoopOnce();

// Waits, without handling events, until the condition holds. False as above.
bool waitUntil(const std::function<bool()> &condition);
