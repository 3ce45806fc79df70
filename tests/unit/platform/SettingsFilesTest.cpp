// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/SettingsFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::Appearance;

namespace {

class SettingsFilesTest : public testing::Test {
protected:
    void write(const QString &name, const QByteArray &content) const {
        const QString path = m_folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }

    std::optional<Appearance::Scheme> scheme() const {
        return zt::schemeInSettingsFiles(m_folder.path());
    }

private:
    QTemporaryDir m_folder;

protected:
    QString folder = m_folder.path();
};

struct FileRow {
    const char *reason;
    QString file;
    QByteArray content;
    std::optional<Appearance::Scheme> scheme;
};

const QString kde = u"kdeglobals"_s;
const QString gtk3 = u"gtk-3.0/settings.ini"_s;
const QString gtk4 = u"gtk-4.0/settings.ini"_s;
constexpr auto dark = Appearance::Scheme::Dark;
constexpr auto light = Appearance::Scheme::Light;

} // namespace

TEST_F(SettingsFilesTest, eachFileSaysItInItsOwnWay) {
    const FileRow rows[] = {
        {"light text on a dark ground", kde,
         "[Colors:Window]\nBackgroundNormal=42,46,50\nForegroundNormal=252,252,252\n", dark},
        {"dark text on a light ground", kde,
         "[Colors:Window]\nBackgroundNormal=239,240,241\nForegroundNormal=35,38,41\n", light},
        {"colours before the scheme's name", kde,
         "[General]\nColorScheme=BreezeDark\n[Colors:Window]\nBackgroundNormal=255,255,255\n"
         "ForegroundNormal=0,0,0\n",
         light},
        {"the scheme's name", kde, "[General]\nColorScheme=BreezeDark\n", dark},
        {"another scheme's name", kde, "[General]\nColorScheme=BreezeLight\n", light},
        {"half of the colours", kde, "[Colors:Window]\nBackgroundNormal=0,0,0\n", std::nullopt},
        {"colours that are none", kde,
         "[Colors:Window]\nBackgroundNormal=0,0,999\nForegroundNormal=red\n", std::nullopt},
        {"no such setting", kde, "[KDE]\nSingleClick=false\n", std::nullopt},
        {"a wish", gtk4, "[Settings]\ngtk-application-prefer-dark-theme=1\n", dark},
        {"a wish as a word", gtk3, "[Settings]\ngtk-application-prefer-dark-theme=true\n", dark},
        {"a wish for light", gtk3, "[Settings]\ngtk-application-prefer-dark-theme=0\n", light},
        {"a dark theme", gtk3, "[Settings]\ngtk-theme-name=Adwaita-dark\n", dark},
        {"a theme's dark variant", gtk3, "[Settings]\ngtk-theme-name=Adwaita:dark\n", dark},
        {"a dark theme for contrast", gtk3, "[Settings]\ngtk-theme-name=HighContrastInverse\n",
         dark},
        {"a light theme", gtk3, "[Settings]\ngtk-theme-name=Adwaita\n", light},
        {"no such setting of GTK", gtk3, "[Settings]\ngtk-font-name=Sans 10\n", std::nullopt},
        {"an empty file", gtk3, "", std::nullopt},
        {"bytes of another kind", kde, QByteArray("\0\xff[\n=\n", 6), std::nullopt},
    };
    for (const FileRow &row : rows) {
        const QTemporaryDir own;
        const QString path = own.filePath(row.file);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(row.content);
        file.close();
        EXPECT_EQ(zt::schemeInSettingsFiles(own.path()), row.scheme) << row.reason;
    }
}

TEST_F(SettingsFilesTest, withoutFilesNothingIsKnown) {
    EXPECT_EQ(scheme(), std::nullopt);
    EXPECT_FALSE(zt::accentColorInSettingsFiles(folder));
}

TEST_F(SettingsFilesTest, aFileThatSaysNothingLeavesItToTheNext) {
    write(kde, "[General]\nXftAntialias=true\n");
    write(gtk4, "[Settings]\n");
    write(gtk3, "[Settings]\ngtk-theme-name=Yaru-dark\n");
    EXPECT_EQ(scheme(), dark);
    write(gtk4, "[Settings]\ngtk-theme-name=Yaru\n");
    EXPECT_EQ(scheme(), light) << "a change counts at once";
}

TEST_F(SettingsFilesTest, theAccentColourIsReadFromItsNumbers) {
    write(kde, "[General]\nAccentColor=255,0,51\n");
    const auto color = zt::accentColorInSettingsFiles(folder);
    ASSERT_TRUE(color);
    EXPECT_EQ(color->red, 1.0);
    EXPECT_EQ(color->green, 0.0);
    EXPECT_EQ(color->blue, 0.2);
    write(kde, "[General]\nAccentColor=255,0,51,128\n");
    EXPECT_TRUE(zt::accentColorInSettingsFiles(folder)) << "with opacity";
    for (const char *value : {"", "255,0", "256,0,0", "-1,0,0", "a,b,c", "1,2,3,4,5"}) {
        write(kde, QByteArray("[General]\nAccentColor=") + value + '\n');
        EXPECT_FALSE(zt::accentColorInSettingsFiles(folder)) << value;
    }
}

TEST_F(SettingsFilesTest, aThemeMadeForContrastIsKnownByItsName) {
    const std::pair<QByteArray, bool> rows[] = {
        {"HighContrast", true},
        {"HighContrastInverse", true},
        {"highcontrast", true},
        {"Adwaita", false},
        {"", false},
    };
    EXPECT_FALSE(zt::moreContrastInSettingsFiles(folder));
    for (const auto &[theme, isMore] : rows) {
        write(gtk3, "[Settings]\ngtk-theme-name=" + theme + '\n');
        EXPECT_EQ(zt::moreContrastInSettingsFiles(folder), isMore) << theme.toStdString();
    }
    write(gtk3, "[Settings]\ngtk-theme-name=HighContrast\n");
    write(gtk4, "[Settings]\ngtk-theme-name=Adwaita\n");
    EXPECT_FALSE(zt::moreContrastInSettingsFiles(folder)) << "the newer file counts";
}
