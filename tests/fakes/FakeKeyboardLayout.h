#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A keyboard layout for unit tests.

#include "Platform/KeyboardLayout.h"

#include <map>
#include <vector>

// Answers what the test puts in, and records what it was asked.
class FakeKeyboardLayout final : public zt::KeyboardLayout {
public:
    struct Question {
        std::uint16_t keyCode;
        Modifiers modifiers;
    };

    std::optional<QString> textForKey(std::uint16_t keyCode,
                                      const Modifiers &modifiers) const override {
        questions.push_back({keyCode, modifiers});
        const auto found = texts.find(keyCode);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::uint16_t, QString> texts; // by key code
    mutable std::vector<Question> questions;
};
