#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A clipboard for unit tests.

#include "Platform/Pasteboard.h"

// Holds what the test puts in.
class FakePasteboard final : public zt::Pasteboard {
public:
    std::optional<std::int32_t> changeCount() override { return count; }

    // A program copies something.
    void change() { count = count.value_or(0) + 1; }

    std::optional<std::int32_t> count = 0;
};
