// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What is heard of the installer.

#include "Installer/Sources/InstallerWinController.h"
#include "Platform/NativePlatform.h"
#include "Platform/Sounds.h"

#include "tests/Waiting.h"
#include "tests/desktop/sound/EventSoundSettings.h"
#include "tests/desktop/sound/SoundServer.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

constexpr float silent = 1e-4F;
constexpr float leastOfDone = 0.1F; // the sound at the end is louder at its peak
constexpr float markerLoudness = 0.02F;
constexpr double doneSeconds = 0.2; // and louder than a whisper for longer

class CompletionSoundTest : public testing::Test {
protected:
    // The installer's own sound, where this test program finds sounds.
    static void provideDoneSound() {
        const QString folder = QDir::homePath() + u"/Library/Sounds"_s;
        QDir().mkpath(folder);
        EXPECT_TRUE(QFile::copy(QStringLiteral(INSTALLER "/Contents/Resources/Done.wav"),
                                folder + u"/Done.wav"_s));
    }

    void start(const QStringList &arguments) {
        const QStringList all =
            QStringList{u"installer"_s, u"-sourcePath"_s, QStringLiteral(SAMPLE_PRODUCT),
                        u"-destinationPath"_s, m_folder.filePath(u"Sample Notes.app"_s)} +
            arguments;
        m_platform = std::make_unique<zt::NativePlatform>(all);
        m_current = std::make_unique<zt::ScopedPlatform>(m_platform->services());
        m_controller = std::make_unique<InstallerWinController>(
            InstallerWinController::Environment{.platform = m_platform->services(),
                                                .argumentVector = all,
                                                .redirectStandardStreams = [](const QString &) {}});
        m_controller->awakeFromNib();
    }

    // Plays something soft; true once it has been played and heard. A sound that was begun before
    // has then been heard as well.
    bool markerIsHeard(SoundRecorder &recorder) {
        const auto marker = std::make_shared<zt::SoundSamples>(
            zt::SoundSamples{48'000, 1, std::vector<float>(24'000, markerLoudness)});
        std::atomic<bool> isOver = false;
        m_platform->services().sounds.play(
            {.load = [marker](const std::stop_token &) { return marker; },
             .name = u"marker"_s,
             .device = SoundServer::speakers,
             .ended = [&isOver](bool) { isOver = true; }});
        return eventually([&] { return isOver.load() && recorder.seconds() > 0.45; });
    }

    InstallerWinController &controller() { return *m_controller; }

    const SoundServer server;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<zt::NativePlatform> m_platform;
    std::unique_ptr<zt::ScopedPlatform> m_current;
    std::unique_ptr<InstallerWinController> m_controller;
};

TEST_F(CompletionSoundTest, anInstallationEndsWithItsSoundWhereAlertsAreHeard) {
    provideDoneSound();
    ASSERT_TRUE(storeEventSoundSettings({.device = SoundServer::headset}));
    SoundRecorder onSpeakers(SoundServer::speakers);
    SoundRecorder onHeadset(SoundServer::headset);
    start({u"-completionSound"_s, u"YES"_s});
    auto *const button = controller().window().findChild<QPushButton *>(u"installButton"_s);
    button->click();
    EXPECT_TRUE(eventually([&] { return onHeadset.seconds() > doneSeconds; }));
    EXPECT_GT(onHeadset.peak(), leastOfDone);
    EXPECT_LT(onSpeakers.peak(), silent);
    button->click(); // "OK"
}

struct SilentRow {
    const char *reason;
    QStringList arguments;
    bool hasSound;
};

// For the test's output.
void PrintTo(const SilentRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class SilentCompletionTest : public CompletionSoundTest,
                             public testing::WithParamInterface<SilentRow> {};

TEST_P(SilentCompletionTest, nothingIsHeard) {
    if (GetParam().hasSound)
        provideDoneSound();
    SoundRecorder recorder(SoundServer::speakers);
    start(GetParam().arguments);
    controller().installationFinished(std::nullopt);
    EXPECT_TRUE(markerIsHeard(recorder));
    EXPECT_LT(recorder.peak(), 2 * markerLoudness);
}

INSTANTIATE_TEST_SUITE_P(
    Completion, SilentCompletionTest,
    testing::Values(
        SilentRow{"switchedOff", {u"-completionSound"_s, u"YES"_s, u"-nosound"_s, u"YES"_s}, true},
        SilentRow{"lowerCase", {u"-completionSound"_s, u"yes"_s}, true},
        SilentRow{"notAskedFor", {}, true},
        SilentRow{"missingSound", {u"-completionSound"_s, u"YES"_s}, false}),
    [](const auto &row) { return row.param.reason; });

// The program itself, with what is in its bundle: the error that it is in no product sounds too.
TEST_F(CompletionSoundTest, theProgramFindsTheSoundInItsBundle) {
    ASSERT_TRUE(storeEventSoundSettings({.volume = 0.9}));
    SoundRecorder recorder(SoundServer::speakers);
    QProcess installer;
    installer.start(QStringLiteral(INSTALLER "/Contents/Linux/VelmoraInstaller"),
                    {u"-completionSound"_s, u"YES"_s});
    EXPECT_TRUE(eventually([&] { return recorder.seconds() > doneSeconds; }));
    EXPECT_GT(recorder.peak(), leastOfDone * 0.9F * 0.9F * 0.9F);
    installer.terminate();
    installer.waitForFinished();
}

} // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
