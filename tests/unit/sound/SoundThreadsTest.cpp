// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The warm-up and sounds at the same time, with and without a sound server behind them.

#include "Platform/linux/sound/PulseSounds.h"

#include "tests/fakes/PlatformWith.h"
#include "tests/unit/sound/SilentServer.h"
#include "tests/unit/sound/SoundFiles.h"
#include "tests/unit/sound/SoundFixture.h"

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int rounds = 60;

class SoundThreadsTest : public SoundFixture {
protected:
    SoundThreadsTest() {
        platform.sounds.allDevices = {output("speakers")};
        platform.sounds.chosenDevice = u"speakers"_s;
        addApplicationSound(u"SoundOfSilence.wav"_s);
        addApplicationSound(u"Done.wav"_s);
    }

    // What programs do with sounds, on several threads at once.
    static void useSounds(FakeClock &clock) {
        const ZTSound::Pointer shared = ZTSound::soundNamed(u"Done"_s);
        ASSERT_TRUE(shared);
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 3; ++thread) {
            threads.emplace_back([&] {
                for (int round = 0; round < rounds; ++round) {
                    clock.advance(26s);
                    SoundExtensions::prepareForSound();
                    const ZTSound::Pointer own = ZTSound::soundNamed(u"Done"_s);
                    own->setVolume(SoundExtensions::alertVolume());
                    SoundExtensions::playAsSoundEffect(*own);
                    SoundExtensions::playAsSoundEffect(*shared);
                    shared->duration();
                    shared->isPlaying();
                    SoundExtensions::playSilentSoundThread();
                    shared->stop();
                    own->stop();
                }
            });
        }
    }
};

TEST_F(SoundThreadsTest, warmUpsAndSoundsDoNotMeet) {
    useSounds(platform.clock);
    platform.sounds.waitForBackgroundTasks();
    EXPECT_GE(platform.sounds.plays().size(), std::size_t(3 * rounds));
}

// The same on the real service.
class PulseThreadsTest : public SoundThreadsTest {
protected:
    PulseThreadsTest() {
        for (const char *name : {"SoundOfSilence", "Done"}) {
            const QString file =
                path(u"My.app/Contents/Resources/"_s + QString::fromLatin1(name) + u".wav"_s);
            EXPECT_TRUE(writeTone(file, SoundFileForm::Wave, {.seconds = 0.02}));
        }
    }

    void useSoundsOn(std::unique_ptr<zt::Sounds> sounds) {
        const zt::Platform services = platformWith(platform, {.sounds = sounds.get()});
        const zt::ScopedPlatform current(services);
        SoundExtensions::platformChanged();
        useSounds(platform.clock);
        sounds.reset(); // its tasks use the services
        SoundExtensions::platformChanged();
    }
};

TEST_F(PulseThreadsTest, withoutAServerNothingMeetsEither) {
    useSoundsOn(std::make_unique<zt::PulseSounds>(zt::PulseSounds::Folders()));
}

TEST_F(PulseThreadsTest, theServiceMayEndWhileAServerHangs) {
    const SilentServer server(SilentServer::Manner::AcceptsAndIsSilent);
    useSoundsOn(std::make_unique<zt::PulseSounds>(
        zt::PulseSounds::Folders(),
        zt::PulseSounds::Patience{.forAnswer = 1ms, .forBeginning = 10min, .forEnd = 10min}));
}

} // namespace
