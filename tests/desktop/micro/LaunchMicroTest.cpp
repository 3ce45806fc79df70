// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The real helper, which takes the focus from a real window and gives it back.

#include "Platform/linux/DesktopWorkspace.h"
#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"
#include "Platform/linux/X11WindowSystem.h"
#include "Platform/portable/EventLoopClock.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/Waiting.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/fakes/PlatformWith.h"
#include "tests/programs/RunningProgram.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <QProcess>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

// A product with the helper among its resources; its program's path.
QString makeProduct(const zt::testing::TemporaryFolder &folder) {
    folder.makeFile("Product.app/Contents/Info.plist",
                    "<plist version=\"1.0\"><dict><key>CFBundleExecutable</key>"
                    "<string>Product</string></dict></plist>");
    folder.makeFolder("Product.app/Contents/Resources");
    std::filesystem::copy(MICRO, folder.path("Product.app/Contents/Resources/Micro.app"),
                          std::filesystem::copy_options::recursive);
    return QString::fromStdString(folder.makeFile("Product.app/Contents/Linux/Product", "", 0755));
}

// The title of the window that keys go to.
QString windowWithKeyboard() {
    QProcess process;
    process.start(u"xdotool"_s, {u"getwindowfocus"_s, u"getwindowname"_s});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

class LaunchMicroTest : public testing::Test {
protected:
    LaunchMicroTest() {
        ZTProcess::platformChanged();
        ZTUtilities::platformChanged();
        EXPECT_TRUE(program.waitForLine("ready"));
        EXPECT_TRUE(eventually([&] { return windowSystem.frontProcess() == program.pid(); }));
    }

    ~LaunchMicroTest() override {
        manager.setEventListener({});
        ZTProcess::platformChanged();
        ZTUtilities::platformChanged();
    }

    // What the log says of how long the helper was waited for.
    int waitCount() const {
        static const QString start = u"wait count (Micro) = "_s;
        const QStringList lines = fakes.log.lines();
        return lines.size() == 1 && lines[0].startsWith(start) ? lines[0].mid(start.size()).toInt()
                                                               : -1;
    }

    bool onlyTheProgramHasWindows() const {
        return windowSystem.processesWithWindows() == QList<std::int32_t>{program.pid()};
    }

    zt::testing::TemporaryFolder folder;
    RunningProgram program{{WINDOWED_PROGRAM, "closes"}};
    FakePlatform fakes;
    zt::EventLoopClock clock;
    zt::LinuxBundles bundles{makeProduct(folder)};
    zt::X11WindowSystem windowSystem;
    zt::ProcProcessManager manager{bundles, windowSystem};
    zt::DesktopWorkspace workspace{
        {QString(), QString::fromStdString(folder.makeFolder("home")), {}, {}},
        {bundles, windowSystem, clock, fakes.log}};
    zt::Platform services = platformWith(fakes, {.clock = &clock,
                                                 .bundles = &bundles,
                                                 .workspace = &workspace,
                                                 .windowSystem = &windowSystem,
                                                 .processManager = &manager});
    zt::ScopedPlatform current{services};
};

} // namespace

TEST_F(LaunchMicroTest, theHelperTakesTheFocusAndGivesItBack) {
    ZTUtilities::launchMicro(false);
    // Less than the most: another program was seen in front.
    EXPECT_GE(waitCount(), 0);
    EXPECT_LT(waitCount(), 500);
    EXPECT_TRUE(eventually([&] { return windowSystem.frontProcess() == program.pid(); }));
    EXPECT_TRUE(eventually([] { return windowWithKeyboard() == u"first"_s; }));
    EXPECT_TRUE(eventually([&] { return onlyTheProgramHasWindows(); }));
    EXPECT_EQ(windowSystem.frontProcess(), program.pid());
    EXPECT_THAT(windowTitlesFromBottomToTop(), ElementsAre("first"));
}

TEST_F(LaunchMicroTest, theHelperThatMayStayIsSentAwayInTheEnd) {
    ZTUtilities::launchMicro(true);
    EXPECT_GE(waitCount(), 0);
    EXPECT_LT(waitCount(), 500);
    EXPECT_TRUE(eventually([&] { return onlyTheProgramHasWindows(); }));
    EXPECT_TRUE(eventually([&] { return windowSystem.frontProcess() == program.pid(); }));
    EXPECT_TRUE(eventually([] { return windowWithKeyboard() == u"first"_s; }));
}

TEST_F(LaunchMicroTest, theHelperComesAgainEachTime) {
    for (int time = 0; time < 3; ++time) {
        fakes.log.clear();
        ZTUtilities::launchMicro(false);
        EXPECT_GE(waitCount(), 0);
        EXPECT_LT(waitCount(), 500);
        EXPECT_TRUE(eventually([&] { return onlyTheProgramHasWindows(); }));
        EXPECT_TRUE(eventually([&] { return windowSystem.frontProcess() == program.pid(); }));
    }
}

TEST_F(LaunchMicroTest, withoutTheHelperTheFocusStays) {
    std::filesystem::remove_all(folder.path("Product.app/Contents/Resources/Micro.app"));
    ZTUtilities::launchMicro(false);
    EXPECT_EQ(waitCount(), 500);
    EXPECT_EQ(windowSystem.frontProcess(), program.pid());
    EXPECT_TRUE(onlyTheProgramHasWindows());
}
