// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PortalAppearance.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::Appearance;

class PortalAppearanceTest : public testing::Test {
protected:
    void startPortal(const QStringList &arguments) {
        portal.start(QString::fromUtf8(PORTAL_SETTINGS), arguments);
        ASSERT_TRUE(portal.waitForReadyRead());
        ASSERT_EQ(portal.readAll(), "ready\n");
    }
    ~PortalAppearanceTest() override {
        portal.closeWriteChannel();
        portal.waitForFinished();
    }

    QTemporaryDir configuration;
    QProcess portal;
};

TEST_F(PortalAppearanceTest, theSchemeIsKnownAtOnce) {
    startPortal({u"1"_s});
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Dark);
}

TEST_F(PortalAppearanceTest, lightAndNoPreferenceAreToldApart) {
    startPortal({u"2"_s});
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Light);
    portal.closeWriteChannel();
    portal.waitForFinished();
    startPortal({u"0"_s});
    const zt::PortalAppearance undecided(configuration.path());
    EXPECT_EQ(undecided.preferredScheme(), std::nullopt);
}

TEST_F(PortalAppearanceTest, aChangeIsTold) {
    startPortal({u"2"_s});
    zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Light);
    int changes = 0;
    appearance.setChangeListener(this, [&changes] { ++changes; });
    portal.write("scheme 1\n");
    ASSERT_TRUE(QTest::qWaitFor(
        [&appearance] { return appearance.preferredScheme() == Appearance::Scheme::Dark; }));
    EXPECT_GE(changes, 1);
}

TEST_F(PortalAppearanceTest, aPortalThatAnswersLateIsHeardLate) {
    startPortal({u"1"_s, u"slow"_s});
    zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), std::nullopt);
    int changes = 0;
    appearance.setChangeListener(this, [&changes] { ++changes; });
    ASSERT_TRUE(QTest::qWaitFor(
        [&appearance] { return appearance.preferredScheme() == Appearance::Scheme::Dark; }));
    EXPECT_EQ(changes, 1);
}

TEST_F(PortalAppearanceTest, withoutAPortalNothingIsKnown) {
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), std::nullopt);
}

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
