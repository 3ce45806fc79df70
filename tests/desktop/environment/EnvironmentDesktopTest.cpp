// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The environment queries on a whole desktop, with programs that people could use.

#include "Platform/Clock.h"
#include "Platform/NativePlatform.h"
#include "Platform/ProcessManager.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/Waiting.h"
#include "tests/desktop/environment/SelectionOwner.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/programs/RunningProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class EnvironmentDesktopTest : public testing::Test {
protected:
    EnvironmentDesktopTest() { forget(); }
    ~EnvironmentDesktopTest() override {
        native.services().processManager.setEventListener({});
        forget();
    }

    static void forget() {
        ZTProcess::platformChanged();
        ZTUtilities::platformChanged();
    }

    static void press(const std::string &key) {
        RunningProgram program({"xdotool", "key", key});
        ASSERT_EQ(program.waitForEnd(), 0);
    }

    static std::int32_t frontPid() {
        const ZTProcess::Pointer front = ZTProcess::frontProcess();
        return front ? front->unixPID() : 0;
    }

    static std::int32_t publisherPid() {
        const ZTProcess::Pointer publisher = ZTUtilities::clipboardPublisherProcess();
        return publisher ? publisher->unixPID() : 0;
    }

    static bool comesToFront(const RunningProgram &program) {
        return eventually([&] { return frontPid() == program.pid(); });
    }

    static std::string clipboard() {
        RunningProgram program({"sh", "-c", "xclip -selection clipboard -out; echo"});
        return program.readLine().value_or("");
    }

    // In the field that has the keyboard.
    static void typeAndCopy(const std::string &text) {
        // A program that is in front may still be about to give a field the keyboard.
        ASSERT_TRUE(eventually([&] {
            press("ctrl+a");
            RunningProgram typing({"xdotool", "type", text});
            EXPECT_EQ(typing.waitForEnd(), 0);
            press("ctrl+a");
            press("ctrl+c");
            return clipboard() == text;
        }));
    }

    zt::NativePlatform native{QCoreApplication::arguments()};
    zt::ScopedPlatform current{native.services()};
};

} // namespace

TEST_F(EnvironmentDesktopTest, theProgramThatCopiedIsNamedWhateverIsInFrontThen) {
    const RunningProgram notes({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(notes));
    EXPECT_EQ(publisherPid(), 0) << "the watch begins";
    typeAndCopy("from the notes");
    const RunningProgram entry({"zenity", "--entry", "--title=entry", "--text=Hello"});
    ASSERT_TRUE(comesToFront(entry));
    EXPECT_EQ(publisherPid(), notes.pid());
    typeAndCopy("from the entry");
    EXPECT_EQ(publisherPid(), entry.pid()) << "at once";
    activateWindow("first");
    ASSERT_TRUE(comesToFront(notes));
    EXPECT_EQ(publisherPid(), entry.pid());
}

TEST_F(EnvironmentDesktopTest, aClipboardManagerThatKeepsTheTextIsNotItsPublisher) {
    SelectionOwner manager;
    manager.own("CLIPBOARD_MANAGER");
    const RunningProgram notes({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(notes));
    EXPECT_EQ(publisherPid(), 0) << "the watch begins";
    typeAndCopy("from the notes");
    const RunningProgram message({"xmessage", "-title", "message", "Hello"});
    ASSERT_TRUE(comesToFront(message));
    manager.own("CLIPBOARD");
    EXPECT_EQ(publisherPid(), notes.pid());
}

TEST_F(EnvironmentDesktopTest, theWatcherSeesWhatNobodyAsksAbout) {
    ZTUtilities::initialize();
    bool isWatching = false;
    native.services().clock.callAfter(std::chrono::milliseconds(1001), [&] { isWatching = true; });
    ASSERT_TRUE(eventually([&] { return isWatching; }));
    // Two turns go by in which the question is not asked.
    const RunningProgram notes({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(notes));
    // The notice of it arrives behind everything else.
    bool hasBeenTold = false;
    const auto observation = NotificationCenter::defaultCenter().addObserver(
        ZTProcessChangeNotification, [&](const Notification &) { hasBeenTold = true; });
    ASSERT_TRUE(eventually([&] { return hasBeenTold; }));
    typeAndCopy("from the notes");
    hasBeenTold = false;
    const RunningProgram message({"xmessage", "-title", "message", "Hello"});
    ASSERT_TRUE(comesToFront(message));
    ASSERT_TRUE(eventually([&] { return hasBeenTold; }));
    activateWindow("first");
    ASSERT_TRUE(comesToFront(notes));
    EXPECT_EQ(publisherPid(), notes.pid());
}

TEST_F(EnvironmentDesktopTest, aProgramThatFillsTheScreenIsInFullScreenMode) {
    const RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(program));
    EXPECT_FALSE(ZTUtilities::fullScreenMode());
    press("F11");
    EXPECT_TRUE(eventually([] { return ZTUtilities::fullScreenMode(); }));
    press("F11");
    EXPECT_TRUE(eventually([] { return !ZTUtilities::fullScreenMode(); }));
}

TEST_F(EnvironmentDesktopTest, aKeyPressEndsTheIdleTime) {
    constexpr float aWhile = 0.3F;
    ASSERT_TRUE(eventually([] { return ZTUtilities::idleTime() >= aWhile; }));
    const auto before = std::chrono::steady_clock::now();
    press("shift");
    const float idle = ZTUtilities::idleTime();
    const std::chrono::duration<float> since = std::chrono::steady_clock::now() - before;
    EXPECT_GE(idle, 0.0F);
    EXPECT_LE(idle, since.count() + 0.002F) << "the key was pressed after that";
}

TEST_F(EnvironmentDesktopTest, whoStartsThisProgramIsItsLauncher) {
    EXPECT_TRUE(ZTUtilities::wasLaunchedByProcess(u"????"_s)) << "a program without a code";
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u"MACS"_s));
    EXPECT_FALSE(ZTUtilities::wasLaunchedAsLoginItem());
}

TEST_F(EnvironmentDesktopTest, aFileSystemHasItsName) {
    EXPECT_EQ(ZTUtilities::fileSystemTypeFor(u"/proc"_s), u"proc"_s);
    EXPECT_EQ(ZTUtilities::fileSystemTypeFor(u"/there/is/nothing"_s), u""_s);
}

namespace {

// The settings are asked for as soon as the platform is made.
class DarkDesktopTest : public testing::Test {
protected:
    DarkDesktopTest() { ZTUtilities::platformChanged(); }
    ~DarkDesktopTest() override {
        ZTUtilities::platformChanged();
        portal.closeWriteChannel();
        portal.waitForFinished();
    }

    void startPortal(const QString &scheme) {
        portal.start(QString::fromUtf8(PORTAL_SETTINGS), {scheme});
        ASSERT_TRUE(portal.waitForReadyRead());
        ASSERT_EQ(portal.readAll(), "ready\n");
    }

    QProcess portal;
};

} // namespace

TEST_F(DarkDesktopTest, switchingToDarkCountsWithoutARestart) {
    startPortal(u"2"_s);
    const zt::NativePlatform native(QCoreApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    EXPECT_FALSE(ZTUtilities::darkMenuTheme());
    portal.write("scheme 1\n");
    EXPECT_TRUE(eventually([] { return ZTUtilities::darkMenuTheme(); }));
    EXPECT_TRUE(ZTUtilities::darkAppearance());
    portal.write("scheme 2\n");
    EXPECT_TRUE(eventually([] { return !ZTUtilities::darkMenuTheme(); }));
    EXPECT_FALSE(ZTUtilities::darkAppearance());
}

TEST_F(DarkDesktopTest, theCommandLineComesBeforeTheDesktop) {
    startPortal(u"2"_s);
    const zt::NativePlatform native({u"program"_s, u"-AppleInterfaceStyle"_s, u"Dark"_s});
    const zt::ScopedPlatform current(native.services());
    EXPECT_TRUE(ZTUtilities::darkMenuTheme());
}

TEST_F(DarkDesktopTest, withoutAPortalTheSettingsFilesCount) {
    const zt::NativePlatform native(QCoreApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    EXPECT_FALSE(ZTUtilities::darkMenuTheme());
    QFile file(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
               u"/gtk-3.0/settings.ini"_s);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("[Settings]\ngtk-application-prefer-dark-theme=1\n");
    file.close();
    EXPECT_TRUE(ZTUtilities::darkMenuTheme());
}
