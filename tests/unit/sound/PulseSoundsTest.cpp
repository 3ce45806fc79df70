// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sounds on a machine whose sound server is absent or broken. With a working one: tests/desktop.

#include "Platform/linux/sound/PulseSounds.h"

#include "tests/unit/sound/SilentServer.h"

#include <gtest/gtest.h>

#include <future>

#include <unistd.h> // getuid

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// No answer is long in coming here, because none comes.
constexpr zt::PulseSounds::Patience impatient = {
    .forAnswer = 1ms, .forBeginning = 10min, .forEnd = 10min};
constexpr zt::PulseSounds::Patience patient = {
    .forAnswer = 10min, .forBeginning = 10min, .forEnd = 10min};

zt::SoundToPlay tone(std::promise<bool> &ended) {
    return {.load =
                [](const std::stop_token &) {
                    return std::make_shared<const zt::SoundSamples>(
                        zt::SoundSamples{8000, 1, std::vector<float>(800, 0.1F)});
                },
            .name = u"tone"_s,
            .device = {},
            .ended = [&ended](bool completely) { ended.set_value(completely); }};
}

void expectNoAnswers(zt::Sounds &sounds) {
    EXPECT_FALSE(sounds.devices());
    EXPECT_FALSE(sounds.effectDevice());
    EXPECT_FALSE(sounds.alertVolume());
}

TEST(PulseSoundsTest, theNamedFoldersComeFirst) {
    const zt::PulseSounds sounds(
        {.root = u"/root"_s, .home = u"/home/me"_s, .data = {u"/home/me/data"_s, u"/usr/share"_s}});
    EXPECT_EQ(sounds.soundFolders(),
              QStringList({u"/root/System/Library/Sounds"_s, u"/root/Library/Sounds"_s,
                           u"/home/me/Library/Sounds"_s, u"/home/me/data/sounds"_s,
                           u"/usr/share/sounds"_s}));
}

TEST(PulseSoundsTest, theSettingsAreThoseOfThisUser) {
    const zt::PulseSounds sounds({.root = u"/root"_s, .home = {}, .data = {}});
    EXPECT_EQ(sounds.settingsPlace().path,
              u"/root/Library/Preferences/Audio/com.apple.audio.SystemSettings.plist"_s);
    EXPECT_EQ(sounds.settingsPlace().userID, QString::number(getuid()));
}

// With all patience: the answers are refusals, and nothing is waited for.
TEST(PulseSoundsTest, withoutAServerNothingIsKnownAndNothingIsPlayed) {
    std::promise<bool> ended;
    zt::PulseSounds sounds({}, patient);
    expectNoAnswers(sounds);
    const auto played = sounds.play(tone(ended));
    EXPECT_FALSE(ended.get_future().get());
    EXPECT_TRUE(played->isOver());
}

TEST(PulseSoundsTest, aServerThatHangsUpIsAsGoodAsNone) {
    const SilentServer server(SilentServer::Manner::HangsUp);
    std::promise<bool> ended;
    zt::PulseSounds sounds({}, patient);
    expectNoAnswers(sounds);
    sounds.play(tone(ended));
    EXPECT_FALSE(ended.get_future().get());
}

TEST(PulseSoundsTest, aServerThatTalksNonsenseIsAsGoodAsNone) {
    const SilentServer server(SilentServer::Manner::TalksNonsense);
    std::promise<bool> ended;
    {
        zt::PulseSounds sounds({}, impatient);
        expectNoAnswers(sounds);
        sounds.play(tone(ended));
    }
    EXPECT_FALSE(ended.get_future().get());
}

// The test ends although the server never answers, and although the service would wait for its
// thread: the thread does not hang with the server.
TEST(PulseSoundsTest, aServerThatHangsHoldsNothingUp) {
    const SilentServer server(SilentServer::Manner::AcceptsAndIsSilent);
    std::promise<bool> ended;
    {
        zt::PulseSounds sounds({}, impatient);
        sounds.getReady();
        expectNoAnswers(sounds);
        sounds.play(tone(ended));
    }
    EXPECT_FALSE(ended.get_future().get());
}

TEST(PulseSoundsTest, aQuestionStillOpenIsAnsweredWhenTheServiceEnds) {
    const SilentServer server(SilentServer::Manner::AcceptsAndIsSilent);
    std::promise<void> begun;
    bool hasVolume = true;
    {
        zt::PulseSounds sounds({}, patient);
        sounds.runInBackground([&] {
            begun.set_value();
            hasVolume = sounds.alertVolume().has_value();
        });
        begun.get_future().wait();
    }
    EXPECT_FALSE(hasVolume);
}

TEST(PulseSoundsTest, aSoundThatIsStillBeingLoadedIsStoppedWhenTheServiceEnds) {
    std::promise<void> loading;
    std::promise<bool> ended;
    {
        zt::PulseSounds sounds({}, patient);
        zt::SoundToPlay sound = tone(ended);
        sound.load = [&loading](const std::stop_token &stop) {
            loading.set_value();
            while (!stop.stop_requested())
                std::this_thread::yield();
            return std::make_shared<const zt::SoundSamples>();
        };
        sounds.play(std::move(sound));
        loading.get_future().wait();
    }
    EXPECT_FALSE(ended.get_future().get());
}

TEST(PulseSoundsTest, backgroundTasksHaveRunWhenTheServiceIsGone) {
    std::atomic<int> runs = 0;
    {
        zt::PulseSounds sounds({});
        for (int i = 0; i < 20; ++i)
            sounds.runInBackground([&runs] { ++runs; });
    }
    EXPECT_EQ(runs, 20);
}

} // namespace
