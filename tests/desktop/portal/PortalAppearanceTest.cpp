// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PortalAppearance.h"
#include "tests/Waiting.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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

    void writeSettings(const QByteArray &content) {
        QFile file(configuration.filePath(u"kdeglobals"_s));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
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
    ASSERT_TRUE(eventually(
        [&appearance] { return appearance.preferredScheme() == Appearance::Scheme::Dark; }));
    EXPECT_GE(changes, 1);
}

TEST_F(PortalAppearanceTest, aPortalThatAnswersLateIsHeardLate) {
    startPortal({u"1"_s, u"slow"_s});
    zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), std::nullopt);
    int changes = 0;
    appearance.setChangeListener(this, [&changes] { ++changes; });
    ASSERT_TRUE(eventually(
        [&appearance] { return appearance.preferredScheme() == Appearance::Scheme::Dark; }));
    EXPECT_EQ(changes, 1);
}

TEST_F(PortalAppearanceTest, theTintIsGreyWhenTheAccentColourIs) {
    const std::pair<QStringList, Appearance::ControlTint> rows[] = {
        {{u"0.2"_s, u"0.5"_s, u"0.9"_s}, Appearance::ControlTint::Blue},
        {{u"0.9"_s, u"0.2"_s, u"0.3"_s}, Appearance::ControlTint::Blue},
        {{u"0.55"_s, u"0.55"_s, u"0.55"_s}, Appearance::ControlTint::Graphite},
        {{u"0.43"_s, u"0.51"_s, u"0.58"_s}, Appearance::ControlTint::Graphite},
        {{u"0"_s, u"0"_s, u"0"_s}, Appearance::ControlTint::Graphite},
        {{u"-1"_s, u"-1"_s, u"-1"_s},
         Appearance::ControlTint::Blue}, // which says that there is none
    };
    for (const auto &[color, tint] : rows) {
        startPortal(QStringList{u"2"_s, u"accent"_s} + color);
        const zt::PortalAppearance appearance(configuration.path());
        EXPECT_EQ(appearance.controlTint(), tint) << color.join(u' ').toStdString();
        portal.closeWriteChannel();
        portal.waitForFinished();
    }
}

TEST_F(PortalAppearanceTest, anotherTintIsTold) {
    startPortal({u"2"_s, u"accent"_s, u"0"_s, u"0"_s, u"1"_s});
    zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Light);
    EXPECT_EQ(appearance.controlTint(), Appearance::ControlTint::Blue);
    int changes = 0;
    appearance.setChangeListener(this, [&changes] { ++changes; });
    ASSERT_TRUE(eventually([&] { return changes == 1; })) << "the scheme is known now";
    portal.write("accent 0.5 0.5 0.5\n");
    ASSERT_TRUE(
        eventually([&] { return appearance.controlTint() == Appearance::ControlTint::Graphite; }));
    EXPECT_EQ(changes, 2);
}

TEST_F(PortalAppearanceTest, everyListenerIsToldAsLongAsItListens) {
    startPortal({u"2"_s});
    zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Light);
    int first = 0;
    int second = 0;
    appearance.setChangeListener(&first, [&] { ++first; });
    appearance.setChangeListener(&second, [&] { ++second; });
    ASSERT_TRUE(eventually([&] { return first == 1 && second == 1; })) << "it is known now";
    portal.write("scheme 1\n");
    ASSERT_TRUE(eventually([&] { return first == 2 && second == 2; }));
    appearance.setChangeListener(&first, {});
    portal.write("scheme 2\n");
    ASSERT_TRUE(eventually([&] { return second == 3; }));
    EXPECT_EQ(first, 2);
}

TEST_F(PortalAppearanceTest, settingsFilesCountWhereThePortalHasNoSuchSetting) {
    writeSettings("[Colors:Window]\nBackgroundNormal=0,0,0\nForegroundNormal=255,255,255\n"
                  "[General]\nAccentColor=99,99,99\n");
    startPortal({u"none"_s});
    zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Dark);
    EXPECT_EQ(appearance.controlTint(), Appearance::ControlTint::Graphite);
    portal.write("scheme 2\n");
    EXPECT_TRUE(eventually([&] {
        return appearance.preferredScheme() == Appearance::Scheme::Light;
    })) << "but what the portal says counts from then on";
}

TEST_F(PortalAppearanceTest, aPortalWithoutAPreferenceIsAnAnswerToo) {
    writeSettings("[General]\nColorScheme=BreezeDark\n");
    startPortal({u"0"_s});
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), std::nullopt);
}

TEST_F(PortalAppearanceTest, settingsFilesCountWithoutAPortal) {
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), std::nullopt);
    writeSettings("[General]\nColorScheme=BreezeDark\n");
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Dark) << "read anew";
}

TEST_F(PortalAppearanceTest, settingsFilesCountWithoutABus) {
    // Each test is a program of its own, so nothing has connected to the real one yet.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/there/is/none");
    writeSettings("[General]\nColorScheme=BreezeDark\n");
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), Appearance::Scheme::Dark);
    EXPECT_EQ(appearance.controlTint(), Appearance::ControlTint::Blue);
}

TEST_F(PortalAppearanceTest, withoutAPortalNothingIsKnown) {
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_EQ(appearance.preferredScheme(), std::nullopt);
}

TEST_F(PortalAppearanceTest, theWishForContrastIsHeardAndFollowed) {
    startPortal({u"2"_s, u"contrast"_s});
    zt::PortalAppearance appearance(configuration.path());
    int changes = 0;
    appearance.setChangeListener(this, [&changes] { ++changes; });
    ASSERT_TRUE(eventually([&appearance] { return appearance.prefersMoreContrast(); }));
    EXPECT_GE(changes, 1);
    portal.write("contrast 0\n");
    EXPECT_TRUE(eventually([&appearance] { return !appearance.prefersMoreContrast(); }));
}

TEST_F(PortalAppearanceTest, withoutAPortalTheThemeTellsOfTheContrast) {
    ASSERT_TRUE(QDir(configuration.path()).mkpath(u"gtk-3.0"_s));
    QFile file(configuration.filePath(u"gtk-3.0/settings.ini"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("[Settings]\ngtk-theme-name=HighContrast\n");
    file.close();
    const zt::PortalAppearance appearance(configuration.path());
    EXPECT_TRUE(eventually([&appearance] { return appearance.prefersMoreContrast(); }));
}

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
