#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Authorization.h"

#include <cstdint>

// Runs the command with the right that was granted, and waits for its end. 0 when it ended well,
// also when nobody could tell any more how it ended; else the platform's number or -1. Each failure
// is told in the log. Thread: any.
std::int32_t AuthorizedExecute(zt::AuthorizationReference &authorization,
                               const zt::PrivilegedCommand &command);
