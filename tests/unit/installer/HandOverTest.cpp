// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/Waiting.h"
#include "tests/unit/installer/InstallerFixture.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class HandOverTest : public InstallerFixture {
protected:
    // Installs, and answers the lines from the end of the copy on.
    QStringList install() {
        start();
        platform.workspace.iconRequests.clear(); // of filling the window
        platform.clock.sleeps.clear();
        field<QPushButton>("installButton")->click();
        EXPECT_TRUE(
            eventually([this] { return field<QPushButton>("installButton")->isEnabled(); }));
        QStringList lines = platform.log.lines();
        return lines.mid(std::max<qsizetype>(0, lines.indexOf(u"successfully copied"_s)));
    }

    QString destination() { return path(u"Applications/Demo.app"_s); }
};

TEST_F(HandOverTest, theProductIsMadeKnownAndLaunched) {
    EXPECT_EQ(install(), (QStringList{u"successfully copied"_s, u"launching "_s + destination(),
                                      u"registered app: 0"_s, u"launched immediately: 1"_s}));
    EXPECT_EQ(platform.workspace.registered, QStringList{destination()});
    EXPECT_EQ(platform.workspace.openedFiles, QStringList{destination()});
    EXPECT_EQ(platform.workspace.notedChanges.last(), destination());
    EXPECT_EQ(platform.clock.sleeps, (std::vector<std::chrono::microseconds>{500ms, 100ms}));
}

TEST_F(HandOverTest, aFailedRegistrationIsNoFailure) {
    platform.workspace.registrationStatus = -10811;
    EXPECT_TRUE(install().contains(u"registered app: -10811"_s));
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
}

TEST_F(HandOverTest, anIconThatIsMissingIsAskedForOnceMore) {
    platform.workspace.iconsMissing = 1;
    const QStringList lines = install();
    EXPECT_EQ(lines.mid(3, 2), (QStringList{u"did not get icon"_s, u"retry; succeeded"_s}));
    EXPECT_EQ(platform.clock.sleeps, (std::vector<std::chrono::microseconds>{500ms, 100ms, 1s}));
}

TEST_F(HandOverTest, anIconThatStaysMissingChangesNothingElse) {
    platform.workspace.iconsMissing = 100;
    const QStringList lines = install();
    EXPECT_TRUE(lines.contains(u"retry; failed"_s));
    EXPECT_EQ(lines.last(), u"launched immediately: 1"_s);
    EXPECT_EQ(platform.workspace.iconRequests.size(), 2);
}

TEST_F(HandOverTest, aLaunchIsTriedUntilItSucceeds) {
    platform.workspace.opensThatFail = 2;
    EXPECT_EQ(install().mid(3),
              (QStringList{u"launched immediately: 0"_s, u"retry opening"_s, u"launched: 0"_s,
                           u"retry opening"_s, u"launched: 1"_s}));
    EXPECT_EQ(platform.clock.sleeps,
              (std::vector<std::chrono::microseconds>{500ms, 100ms, 500ms, 500ms}));
}

TEST_F(HandOverTest, aProductThatNeverLaunchesIsInstalledAllTheSame) {
    platform.workspace.opensThatFail = 1000;
    const QStringList lines = install();
    EXPECT_EQ(lines.count(u"retry opening"_s), 10);
    EXPECT_EQ(platform.workspace.openedFiles.size(), 11);
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
}

TEST_F(HandOverTest, nothingIsHandedOverAfterAFailure) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    install();
    EXPECT_TRUE(platform.workspace.registered.isEmpty());
    EXPECT_TRUE(platform.workspace.openedFiles.isEmpty());
}
