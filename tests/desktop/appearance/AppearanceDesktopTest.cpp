// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Colours that follow the desktop, as people see them.

#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/CocoaExtensions/FollowedAppearance.h"

#include "tests/desktop/appearance/ScreenFixture.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using ZTViewExtensions::LightAppearance;
using ZTViewExtensions::useLightAquaAppearance;

namespace {

constexpr QRgb lightRed = qRgb(191, 0, 0);
constexpr QRgb darkRed = qRgb(255, 51, 0);

// The settings are asked for as soon as the platform is made.
class AppearanceDesktopTest : public ScreenFixture {
protected:
    void TearDown() override {
        portal.closeWriteChannel();
        portal.waitForFinished();
        ScreenFixture::TearDown();
    }

    void startPortal(const QString &scheme) {
        portal.start(QString::fromUtf8(PORTAL_SETTINGS), {scheme});
        ASSERT_TRUE(portal.waitForReadyRead());
        ASSERT_EQ(portal.readAll(), "ready\n");
    }

    QProcess portal;
};

} // namespace

TEST_F(AppearanceDesktopTest, aSwitchOfTheDesktopChangesWhatIsOnTheScreen) {
    startPortal(u"2"_s);
    const zt::NativePlatform native(QCoreApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    const FollowedAppearance followed(native.services().appearance);
    QWidget window;
    window.resize(300, 200);
    WarningView painted(&window);
    painted.setGeometry(0, 0, 100, 200);
    WarningView light(&window);
    light.setGeometry(100, 0, 100, 200);
    useLightAquaAppearance(light, LightAppearance::Forced);
    QLabel label(&window);
    label.setGeometry(200, 0, 100, 200);
    label.setAutoFillBackground(true);
    followDynamicColor(label, QPalette::Window, ZTDynamicColor::redWarningTextColor());
    show(window);
    EXPECT_TRUE(shows(painted, lightRed));
    EXPECT_TRUE(shows(label, lightRed));
    portal.write("scheme 1\n");
    EXPECT_TRUE(shows(painted, darkRed));
    EXPECT_TRUE(shows(label, darkRed));
    EXPECT_TRUE(shows(light, lightRed)) << "two appearances in one window";
    portal.write("scheme 2\n");
    EXPECT_TRUE(shows(painted, lightRed));
    EXPECT_TRUE(shows(label, lightRed));
}

TEST_F(AppearanceDesktopTest, aGlobalColorFollowsTheDesktopAlone) {
    startPortal(u"2"_s);
    const zt::NativePlatform native(QCoreApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    QLabel label;
    label.resize(100, 100);
    label.setAutoFillBackground(true);
    followDynamicColor(label, QPalette::Window, ZTDynamicColor::menuHighlightColor);
    show(label);
    const auto &blue = ZTDynamicColor::menuHighlightColors().at(ZTAccentColorNameBlue);
    EXPECT_TRUE(shows(label, blue.aquaColor().rgb()));
    portal.write("scheme 1\n");
    EXPECT_TRUE(shows(label, blue.darkAquaColor()->rgb())) << "the application stays light";
}

TEST_F(AppearanceDesktopTest, theAccentColorComesFromTheDesktopsSettings) {
    const zt::NativePlatform native(QCoreApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    EXPECT_EQ(ZTDynamicColor::accentColorName(), ZTAccentColorNameBlue);
    QFile file(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
               u"/kdeglobals"_s);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("[General]\nAccentColor=61,212,37\n");
    file.close();
    EXPECT_EQ(ZTDynamicColor::accentColorName(), ZTAccentColorNameGreen);
}

TEST_F(AppearanceDesktopTest, theCommandLineNamesAnAccentColorByItsNumber) {
    const zt::NativePlatform native({u"program"_s, u"-AppleAccentColor"_s, u"<*I5>"_s});
    const zt::ScopedPlatform current(native.services());
    EXPECT_EQ(ZTDynamicColor::accentColorName(), ZTAccentColorNamePurple);
}
