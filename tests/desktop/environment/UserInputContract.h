#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every service of user input does. A case has `input`, and a user who can be told to do
// nothing for a while, `idleFor()`, or to press a key, `pressKey()`.

#include "Platform/UserInput.h"

#include <gtest/gtest.h>

#include <chrono>

template <typename Case>
class UserInputContractTest : public testing::Test {
protected:
    Case implementation;
};

TYPED_TEST_SUITE_P(UserInputContractTest);

TYPED_TEST_P(UserInputContractTest, aKeyPressEndsTheIdleTime) {
    // Servers count from some time before the first key.
    this->implementation.idleFor(std::chrono::milliseconds(200));
    const auto before = std::chrono::steady_clock::now();
    this->implementation.pressKey();
    const auto idle = this->implementation.input.idleTime();
    ASSERT_TRUE(idle);
    EXPECT_GE(*idle, std::chrono::nanoseconds(0));
    // The key was pressed later than that; the server's milliseconds are rounded.
    EXPECT_LE(*idle, std::chrono::steady_clock::now() - before + std::chrono::milliseconds(2));
}

REGISTER_TYPED_TEST_SUITE_P(UserInputContractTest, aKeyPressEndsTheIdleTime);
