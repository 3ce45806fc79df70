// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The helper's coming and going, on a clock of the test's own.

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/unit/process/ZTProcessFixture.h"

#include <QDir>
#include <QTemporaryDir>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::int32_t product = 100;
constexpr std::int32_t micro = 200;
constexpr auto round = 1000us;

class ZTUtilitiesMicroTest : public ZTProcessFixture {
protected:
    ZTUtilitiesMicroTest() {
        ZTUtilities::platformChanged();
        QDir(bundle.path()).mkpath(u"Contents/Resources/Micro.app"_s);
        platform.bundles.setMainBundle(bundle.path());
        start(product, {.name = u"Product"_s});
        start(micro, {.name = u"Micro"_s});
        manager.bringToFront(product);
        platform.windowSystem.whenBroughtToFront = [this](std::int32_t pid) {
            manager.bringToFront(pid);
        };
        platform.workspace.whenStartedOpening = [this] { manager.bringToFront(micro); };
    }
    ~ZTUtilitiesMicroTest() override { ZTUtilities::platformChanged(); }

    std::int32_t front() const { return *manager.pidOf(*manager.frontProcess()); }

    auto rounds() const {
        return std::count(platform.clock.sleeps.begin(), platform.clock.sleeps.end(), round);
    }

    QTemporaryDir bundle;
};

} // namespace

TEST_F(ZTUtilitiesMicroTest, theHelperIsOpenedAndTheFrontGivenBack) {
    ZTUtilities::launchMicro(false);
    EXPECT_EQ(platform.workspace.startedOpenings,
              QStringList{bundle.filePath(u"Contents/Resources/Micro.app"_s)});
    EXPECT_EQ(platform.log.lines(), QStringList{u"wait count (Micro) = 0"_s});
    EXPECT_EQ(front(), product);
    // Once at once, and once more at the end.
    EXPECT_EQ(platform.windowSystem.broughtToFront, (QList<std::int32_t>{product, product}));
    EXPECT_EQ(platform.windowSystem.whichWindows.count(zt::WindowSystem::Windows::FrontOnly), 2);
    EXPECT_EQ(manager.wokenUp(), (QList<std::int32_t>{product, product, product}));
    EXPECT_EQ(platform.clock.sleeps, std::vector<std::chrono::microseconds>{1us});
}

TEST_F(ZTUtilitiesMicroTest, theFrontIsGivenBackAtTheEndWhenTheHelperMayStay) {
    ZTUtilities::launchMicro(true);
    EXPECT_EQ(platform.windowSystem.broughtToFront, QList<std::int32_t>{product});
    EXPECT_EQ(rounds(), 500);
    EXPECT_EQ(front(), product);
    EXPECT_EQ(manager.wokenUp().size(), 3);
}

TEST_F(ZTUtilitiesMicroTest, withoutTheHelperTheWaitRunsOut) {
    QDir(bundle.path()).removeRecursively();
    platform.workspace.whenStartedOpening = nullptr;
    ZTUtilities::launchMicro(false);
    EXPECT_EQ(platform.workspace.startedOpenings, QStringList{QString()});
    EXPECT_EQ(platform.log.lines(), QStringList{u"wait count (Micro) = 500"_s});
    EXPECT_EQ(rounds(), 500);
    EXPECT_EQ(front(), product);
}

TEST_F(ZTUtilitiesMicroTest, aFrontThatDoesNotComeBackIsNotWaitedForLong) {
    platform.windowSystem.whenBroughtToFront = nullptr;
    ZTUtilities::launchMicro(false);
    EXPECT_EQ(platform.log.lines(), QStringList{u"wait count (Micro) = 0"_s});
    EXPECT_EQ(rounds(), 500);
    EXPECT_EQ(platform.windowSystem.broughtToFront, (QList<std::int32_t>{product, product}));
}

TEST_F(ZTUtilitiesMicroTest, whileTheScreenIsFullNothingHappens) {
    ZTUtilities::fullScreenMode(); // begins to listen
    platform.menuBarEvents.send(zt::MenuBarEvents::hidden);
    ZTUtilities::launchMicro(false);
    EXPECT_TRUE(platform.workspace.startedOpenings.isEmpty());
    EXPECT_TRUE(platform.log.lines().isEmpty());
    EXPECT_TRUE(platform.windowSystem.broughtToFront.isEmpty());
    EXPECT_TRUE(platform.clock.sleeps.empty());
}

TEST_F(ZTUtilitiesMicroTest, aFailureOnTheWayIsLoggedAndTheFrontGivenBack) {
    platform.workspace.whenStartedOpening = [this] {
        manager.bringToFront(micro);
        throw std::runtime_error("made by the test");
    };
    ZTUtilities::launchMicro(false);
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"** Error while running Micro: made by the test"_s});
    EXPECT_EQ(platform.windowSystem.broughtToFront, QList<std::int32_t>{product});
    EXPECT_EQ(manager.wokenUp(), QList<std::int32_t>{product});
    EXPECT_EQ(front(), product);
}

TEST_F(ZTUtilitiesMicroTest, whereNothingWasInFrontNothingIsGivenBack) {
    manager.end(product);
    ZTUtilities::launchMicro(false);
    EXPECT_EQ(platform.log.lines(), QStringList{u"wait count (Micro) = 0"_s});
    EXPECT_TRUE(platform.windowSystem.broughtToFront.isEmpty());
    EXPECT_TRUE(manager.wokenUp().isEmpty());
}
