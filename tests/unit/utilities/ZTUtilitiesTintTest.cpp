// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <QIcon>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Tint = zt::Appearance::ControlTint;

namespace {

class ZTUtilitiesTintTest : public testing::Test {
protected:
    ZTUtilitiesTintTest() { ZTUtilities::platformChanged(); }
    ~ZTUtilitiesTintTest() override { ZTUtilities::platformChanged(); }

    void SetUp() override {
        if (!QImageReader::supportedImageFormats().contains("svg"))
            GTEST_SKIP() << "Qt's reader for SVG pictures is not installed";
    }

    FakePlatform platform;
};

struct TintRow {
    const char *reason;
    double framework;
    bool isDark;
    Tint tint;
    QString resource;
};

const TintRow rows[] = {
    {"an old system", 1265.0, false, Tint::Blue, u"tintMavBlue"_s},
    {"an old system has no dark menus", 1265.0, true, Tint::Graphite, u"tintMavGraphite"_s},
    {"a light one", 1343.0, false, Tint::Blue, u"tintYosBlue"_s},
    {"a light one in grey", 1343.0, false, Tint::Graphite, u"tintYosGraphite"_s},
    {"a dark one", 1671.0, true, Tint::Blue, u"tintYosDarkBlue"_s},
    {"a dark one in grey", 1671.0, true, Tint::Graphite, u"tintYosDarkGraphite"_s},
};

QImage picture(const QIcon &icon) {
    return icon.pixmap(32, 32).toImage();
}

} // namespace

TEST_F(ZTUtilitiesTintTest, thePictureFitsTheSystemTheMenusAndTheTint) {
    for (const TintRow &row : rows) {
        platform.systemVersion.framework = row.framework;
        platform.userDefaults.values.clear();
        if (row.isDark)
            platform.userDefaults.values.insert(u"AppleInterfaceStyle"_s, u"Dark"_s);
        platform.appearance.tint = row.tint;
        const QImage shown = picture(ZTUtilities::systemTintImage());
        ASSERT_FALSE(shown.isNull()) << row.reason;
        EXPECT_EQ(shown, picture(QIcon(u":/ztstuff/tint/"_s + row.resource + u".svg"_s)))
            << row.reason;
    }
}

TEST_F(ZTUtilitiesTintTest, bluePicturesAreBlueAndGreyOnesGrey) {
    ZTUtilities::systemTintImage(); // brings the pictures in
    std::vector<QImage> pictures;
    for (const TintRow &row : rows) {
        const QImage shown = picture(QIcon(u":/ztstuff/tint/"_s + row.resource + u".svg"_s));
        ASSERT_FALSE(shown.isNull()) << row.reason;
        const int saturation = shown.pixelColor(16, 22).hsvSaturation();
        EXPECT_EQ(saturation > 100, row.tint == Tint::Blue) << row.reason;
        EXPECT_EQ(shown.pixelColor(0, 0).alpha(), 0) << row.reason;
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), shown), 0) << row.reason;
        pictures.push_back(shown);
    }
}
