#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What tests of colours and views start from: a light application on a system with appearances.

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <QApplication>

#include <gtest/gtest.h>

// What a failed comparison of colours prints.
inline void PrintTo(const QColor &color, std::ostream *stream) {
    *stream << color.name(QColor::HexArgb).toStdString();
}

class AppearanceTest : public testing::Test {
protected:
    using Scheme = zt::Appearance::Scheme;
    using GlobalAppearance = ZTDynamicColor::GlobalAppearance;

    static constexpr double highSierra = 1561.0;

    AppearanceTest() : m_palette(QApplication::palette()) {
        forget();
        setApplicationScheme(Scheme::Light);
    }
    void TearDown() override {
        forget();
        QApplication::setPalette(m_palette);
    }

    // What the program itself looks like.
    static void setApplicationScheme(Scheme scheme) {
        QApplication::setPalette(paletteForScheme(scheme));
        // Widgets hear of it by an event.
        QCoreApplication::processEvents();
    }

    // What the user has set.
    void setDesktopScheme(Scheme scheme) {
        const QString key = QStringLiteral("AppleInterfaceStyle");
        platform.userDefaults.values.remove(key);
        if (scheme == Scheme::Dark)
            platform.userDefaults.values.insert(key, QStringLiteral("Dark"));
        platform.appearance.setScheme(scheme);
    }

    FakePlatform platform;

private:
    static void forget() {
        ZTUtilities::platformChanged();
        ZTDynamicColor::platformChanged();
    }

    QPalette m_palette;
};
