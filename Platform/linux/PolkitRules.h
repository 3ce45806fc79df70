#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <QString>

namespace zt {

// What polkit's rules say to running a program as an administrator, without asking anybody.
enum class PolkitAnswer {
    Allowed,
    NeedsPassword,
    Forbidden,
    Unknown, // polkit did not answer
};

// The answer for this very process and the tool. Rules that look at more than the action and the
// user are not heard: only pkexec itself may tell polkit more. Thread: any.
PolkitAnswer polkitAnswerForTool(const QString &toolPath);

} // namespace zt
