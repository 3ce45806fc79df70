#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every sound service does, whether it is heard or not. A case has `sounds()`, a service, and
// `soundFile()`, the path of a sound that it can read.

#include "Platform/Sounds.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>

template <typename Case>
class SoundsContractTest : public testing::Test {
protected:
    zt::Sounds &sounds() { return m_case.sounds(); }

    std::shared_ptr<const zt::SoundSamples> samples() {
        zt::Result<zt::SoundSamples> loaded = sounds().load(m_case.soundFile(), {});
        return loaded ? std::make_shared<const zt::SoundSamples>(*std::move(loaded)) : nullptr;
    }

private:
    Case m_case;
};

TYPED_TEST_SUITE_P(SoundsContractTest);

TYPED_TEST_P(SoundsContractTest, aSoundFileIsLoaded) {
    const auto loaded = this->samples();
    ASSERT_TRUE(loaded);
    EXPECT_GT(loaded->frames(), 0U);
    EXPECT_GT(loaded->duration().count(), 0.0);
}

TYPED_TEST_P(SoundsContractTest, aMissingFileIsAnErrorThatNamesIt) {
    const auto loaded = this->sounds().load(QStringLiteral("/nonexistent/a.wav"), {});
    ASSERT_FALSE(loaded);
    EXPECT_EQ(loaded.error().object, "/nonexistent/a.wav");
}

TYPED_TEST_P(SoundsContractTest, whatCannotBeLoadedEndsAtOnce) {
    std::promise<bool> ended;
    const auto played =
        this->sounds().play({.load = [](const std::stop_token &) { return nullptr; },
                             .name = QStringLiteral("none"),
                             .device = {},
                             .ended = [&ended](bool completely) { ended.set_value(completely); }});
    EXPECT_FALSE(ended.get_future().get());
    EXPECT_TRUE(played->isOver());
}

TYPED_TEST_P(SoundsContractTest, theEndIsToldOnceThoughItIsStoppedTwice) {
    std::atomic<int> ends = 0;
    const auto played =
        this->sounds().play({.load = [this](const std::stop_token &) { return this->samples(); },
                             .name = QStringLiteral("sample"),
                             .device = {},
                             .ended = [&ends](bool) { ++ends; }});
    played->stop();
    EXPECT_TRUE(played->isOver());
    played->stop();
    EXPECT_EQ(ends, 1);
}

TYPED_TEST_P(SoundsContractTest, backgroundTasksRunOnAnotherThread) {
    std::promise<std::thread::id> ran;
    this->sounds().runInBackground([&ran] { ran.set_value(std::this_thread::get_id()); });
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

REGISTER_TYPED_TEST_SUITE_P(SoundsContractTest, aSoundFileIsLoaded,
                            aMissingFileIsAnErrorThatNamesIt, whatCannotBeLoadedEndsAtOnce,
                            theEndIsToldOnceThoughItIsStoppedTwice,
                            backgroundTasksRunOnAnotherThread);
