// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LinuxBundles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using zt::LinuxBundles;
using namespace Qt::StringLiterals;

namespace {

const QByteArray xmlDictionary = "<plist><dict><key>CFBundleExecutable</key><string>tool</string>"
                                 "<key>CFBundleName</key><string>Tool</string></dict></plist>";

// Each test lays its bundles out in a folder of its own.
class LinuxBundlesTest : public testing::Test {
protected:
    QString path(const QString &relative) const { return m_folder.filePath(relative); }

    QString write(const QString &relative, const QByteArray &content = {}) const {
        QString absolute = path(relative);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(absolute).path()));
        QFile file(absolute);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return absolute;
    }

    // The program that the flat bundle with this dictionary has, relative to the bundle.
    QString executableWith(const QByteArray &dictionary) const {
        write(u"Named.app/Info.plist"_s, dictionary);
        const auto bundle = bundles().bundleAtPath(path(u"Named.app"_s));
        return bundle ? bundle->executablePath().mid(bundle->path().size()) : u"no bundle"_s;
    }

    LinuxBundles bundles() const { return LinuxBundles(path(u"outside/program"_s)); }

    QTemporaryDir m_folder;
};

TEST_F(LinuxBundlesTest, aBundleWithAContentsFolderIsRead) {
    write(u"Tool.app/Contents/Info.plist"_s, xmlDictionary);
    const QString program = write(u"Tool.app/Contents/MacOS/tool"_s);
    const QString icon = write(u"Tool.app/Contents/Resources/icon.icns"_s);

    const auto bundle = bundles().bundleAtPath(path(u"Tool.app"_s));
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->path(), path(u"Tool.app"_s));
    EXPECT_EQ(bundle->executablePath(), program);
    EXPECT_EQ(bundle->resourcesPath(), path(u"Tool.app/Contents/Resources"_s));
    EXPECT_EQ(bundle->stringForKey(u"CFBundleName"_s), u"Tool"_s);
    EXPECT_EQ(bundle->pathForResource(u"icon"_s, u"icns"_s), icon);
}

TEST_F(LinuxBundlesTest, theProgramForLinuxComesBeforeTheOneForMacOS) {
    write(u"Tool.app/Contents/Info.plist"_s, xmlDictionary);
    write(u"Tool.app/Contents/MacOS/tool"_s);
    const QString program = write(u"Tool.app/Contents/Linux/tool"_s);
    EXPECT_EQ(bundles().bundleAtPath(path(u"Tool.app"_s))->executablePath(), program);
}

TEST_F(LinuxBundlesTest, aFlatBundleHasItsResourcesOnTop) {
    write(u"Tool.app/Info.plist"_s, xmlDictionary);
    const QString program = write(u"Tool.app/tool"_s);
    const QString icon = write(u"Tool.app/icon.png"_s);

    const auto bundle = bundles().bundleAtPath(path(u"Tool.app/"_s));
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->path(), path(u"Tool.app"_s));
    EXPECT_EQ(bundle->executablePath(), program);
    EXPECT_EQ(bundle->pathForResource(u"icon.png"_s), icon);
}

TEST_F(LinuxBundlesTest, aFlatBundleMayHaveAResourcesFolder) {
    write(u"Tool.app/Info.plist"_s, xmlDictionary);
    const QString icon = write(u"Tool.app/Resources/icon.png"_s);
    EXPECT_EQ(bundles().bundleAtPath(path(u"Tool.app"_s))->pathForResource(u"icon.png"_s), icon);
}

TEST_F(LinuxBundlesTest, aBundleWithADictionaryInTheOldFormIsRead) {
    write(u"Calc.app/Resources/Info-gnustep.plist"_s,
          R"({ NSExecutable = "Calc"; NSIcon = calc.tiff; Authors = ("A"); })");
    const QString program = write(u"Calc.app/Calc"_s);
    const QString icon = write(u"Calc.app/Resources/calc.tiff"_s);

    const auto bundle = bundles().bundleAtPath(path(u"Calc.app"_s));
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->executablePath(), program);
    EXPECT_EQ(bundle->stringForKey(u"NSIcon"_s), u"calc.tiff"_s);
    EXPECT_EQ(bundle->stringForKey(u"Authors"_s), std::nullopt);
    EXPECT_EQ(bundle->pathForResource(u"calc"_s, u"tiff"_s), icon);
}

TEST_F(LinuxBundlesTest, theProgramIsTheOneThatTheDictionaryNames) {
    write(u"Named.app/first"_s);
    write(u"Named.app/second"_s);
    write(u"Named.app/Named"_s);
    EXPECT_EQ(executableWith("{ CFBundleExecutable = first; NSExecutable = second; }"),
              u"/first"_s);
    EXPECT_EQ(executableWith("{ NSExecutable = second; }"), u"/second"_s);
    EXPECT_EQ(executableWith("{ CFBundleExecutable = \"\"; }"), u"/Named"_s);
    EXPECT_EQ(executableWith("{ CFBundleExecutable = (first); }"), u"/Named"_s);
    EXPECT_EQ(executableWith("{ NSExecutable = missing; }"), QString());
}

TEST_F(LinuxBundlesTest, aProgramOutsideOfTheBundleIsRefused) {
    write(u"evil"_s);
    write(u"Named.app/folder/evil"_s);
    EXPECT_EQ(executableWith("{ NSExecutable = \"../evil\"; }"), QString());
    EXPECT_EQ(executableWith("{ NSExecutable = \"folder/evil\"; }"), QString());
    EXPECT_EQ(executableWith("{ NSExecutable = \"..\"; }"), QString());
    EXPECT_EQ(executableWith("{ NSExecutable = folder; }"), QString());
}

TEST_F(LinuxBundlesTest, whatHasNoUsableDictionaryIsNoBundle) {
    ASSERT_TRUE(QDir().mkpath(path(u"Empty.app"_s)));
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Empty.app"_s)));
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Missing.app"_s)));
    EXPECT_FALSE(bundles().bundleAtPath({}));
    EXPECT_FALSE(bundles().bundleAtPath(write(u"File.app"_s, xmlDictionary)));

    write(u"Broken.app/Contents/Info.plist"_s, "<plist><dict>");
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Broken.app"_s)));
    write(u"List.app/Info.plist"_s, "( a, b )");
    EXPECT_FALSE(bundles().bundleAtPath(path(u"List.app"_s)));
    ASSERT_TRUE(QDir().mkpath(path(u"Folder.app/Contents/Info.plist"_s)));
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Folder.app"_s)));
    const QString huge = write(u"Huge.app/Info.plist"_s);
    ASSERT_TRUE(QFile::resize(huge, 1LL << 40));
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Huge.app"_s)));
}

TEST_F(LinuxBundlesTest, aBrokenDictionaryIsNotReplacedByAnotherLayouts) {
    write(u"Tool.app/Contents/Info.plist"_s, "garbage {");
    write(u"Tool.app/Info.plist"_s, xmlDictionary);
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Tool.app"_s)));
}

TEST_F(LinuxBundlesTest, cyclicLinksAreNoBundle) {
    ASSERT_TRUE(QDir().mkpath(path(u"Loop.app/Contents"_s)));
    const QString dictionary = path(u"Loop.app/Contents/Info.plist"_s);
    ASSERT_TRUE(QFile::link(dictionary, dictionary));
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Loop.app"_s)));
    ASSERT_TRUE(QFile::link(path(u"Other.app"_s), path(u"Other.app"_s)));
    EXPECT_FALSE(bundles().bundleAtPath(path(u"Other.app"_s)));
    EXPECT_FALSE(bundles().bundleEnclosing(path(u"Other.app/x"_s)));
}

TEST_F(LinuxBundlesTest, resourcesAreNotFoundOutsideOfTheirFolder) {
    write(u"Tool.app/Contents/Info.plist"_s, xmlDictionary);
    write(u"Tool.app/Contents/Resources/inside"_s);
    write(u"secret"_s);
    ASSERT_TRUE(QFile::link(path(u"secret"_s), path(u"Tool.app/Contents/Resources/link"_s)));
    const auto bundle = bundles().bundleAtPath(path(u"Tool.app"_s));
    ASSERT_TRUE(bundle);
    EXPECT_TRUE(bundle->pathForResource(u"inside"_s));
    EXPECT_FALSE(bundle->pathForResource(u"../Info.plist"_s));
    EXPECT_FALSE(bundle->pathForResource(u"../../../secret"_s));
    EXPECT_FALSE(bundle->pathForResource(u"link"_s));
    EXPECT_FALSE(bundle->pathForResource(u"missing"_s));
    EXPECT_FALSE(bundle->pathForResource({}));
}

TEST_F(LinuxBundlesTest, theInnermostBundleThatEnclosesAPathIsFound) {
    write(u"Outer.app/Contents/Info.plist"_s, xmlDictionary);
    write(u"Outer.app/Contents/Resources/Inner.app/Info.plist"_s, xmlDictionary);
    write(u"Outer.app/Contents/Resources/NoBundle.app/file"_s);
    const QString resources = path(u"Outer.app/Contents/Resources"_s);

    EXPECT_EQ(bundles().bundleEnclosing(resources + u"/Inner.app/tool"_s)->path(),
              resources + u"/Inner.app"_s);
    EXPECT_EQ(bundles().bundleEnclosing(resources + u"/NoBundle.app/file"_s)->path(),
              path(u"Outer.app"_s));
    EXPECT_EQ(bundles().bundleEnclosing(path(u"Outer.app/"_s))->path(), path(u"Outer.app"_s));
    EXPECT_EQ(bundles().bundleEnclosing(resources + u"/Inner.app/../x"_s)->path(),
              path(u"Outer.app"_s));
    EXPECT_FALSE(bundles().bundleEnclosing(path(u"elsewhere"_s)));
    EXPECT_FALSE(bundles().bundleEnclosing({}));
    EXPECT_FALSE(bundles().bundleEnclosing(u"/"_s));
}

TEST_F(LinuxBundlesTest, theMainBundleEnclosesTheRunningProgram) {
    write(u"Tool.app/Contents/Info.plist"_s, xmlDictionary);
    const LinuxBundles inside(write(u"Tool.app/Contents/Linux/tool"_s));
    EXPECT_EQ(inside.mainBundle().path(), path(u"Tool.app"_s));
    EXPECT_EQ(inside.mainBundle().stringForKey(u"CFBundleName"_s), u"Tool"_s);

    const LinuxBundles outside(write(u"bin/tool"_s));
    EXPECT_EQ(outside.mainBundle().path(), path(u"bin"_s));
    EXPECT_EQ(outside.mainBundle().executablePath(), path(u"bin/tool"_s));
    EXPECT_TRUE(outside.mainBundle().infoDictionary().isEmpty());
}

TEST_F(LinuxBundlesTest, byDefaultTheRunningProgramIsThisProcess) {
    EXPECT_EQ(LinuxBundles().mainBundle().executablePath(),
              QFile::symLinkTarget(u"/proc/self/exe"_s));
}

} // namespace
