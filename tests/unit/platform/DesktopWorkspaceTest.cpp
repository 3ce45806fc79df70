// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/DesktopWorkspace.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class DesktopWorkspaceTest : public testing::Test {
protected:
    void write(const QString &path, const QByteArray &content) {
        const QString file = folder.filePath(path);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }

    QTemporaryDir folder;
    FakePlatform platform;
    zt::DesktopWorkspace workspace{
        {folder.filePath(u"root"_s), folder.filePath(u"home"_s), folder.filePath(u"data"_s), {}},
        {platform.bundles, platform.windowSystem, platform.clock, platform.log}};
};

TEST_F(DesktopWorkspaceTest, applicationsLieBelowTheRootAndTheHomeFolder) {
    EXPECT_EQ(workspace.applicationsFolders(zt::Workspace::Domain::Local),
              QStringList{folder.filePath(u"root/Applications"_s)});
    EXPECT_EQ(workspace.applicationsFolders(zt::Workspace::Domain::User),
              QStringList{folder.filePath(u"home/Applications"_s)});
}

TEST_F(DesktopWorkspaceTest, bundlesShowWithoutTheirExtension) {
    EXPECT_EQ(workspace.displayName(u"/x/Sample Notes.app"_s), u"Sample Notes"_s);
    EXPECT_EQ(workspace.displayName(u"/x/Sample Notes.app/"_s), u"Sample Notes"_s);
    EXPECT_EQ(workspace.displayName(u"/x/.app"_s), u".app"_s);
    EXPECT_EQ(workspace.displayName(u"/x/letter.txt"_s), u"letter.txt"_s);
    EXPECT_EQ(workspace.displayName(u"/"_s), u"/"_s);
}

TEST_F(DesktopWorkspaceTest, aFolderShowsTheNameInItsRecord) {
    write(u"Tools/.directory"_s, "[Desktop Entry]\nName=Werkzeuge\n");
    write(u"Plain/.directory"_s, "garbage\n");
    EXPECT_EQ(workspace.displayName(folder.filePath(u"Tools"_s)), u"Werkzeuge"_s);
    EXPECT_EQ(workspace.displayName(folder.filePath(u"Plain"_s)), u"Plain"_s);
}

TEST_F(DesktopWorkspaceTest, aBundleShowsItsOwnIcon) {
    const QString bundle = folder.filePath(u"Demo.app"_s);
    QDir().mkpath(bundle + u"/Contents/Resources"_s);
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::green);
    ASSERT_TRUE(pixmap.save(bundle + u"/Contents/Resources/Demo.png"_s));
    platform.bundles.add(bundle, {{u"CFBundleIconFile"_s, u"Demo"_s}});
    const QIcon icon = workspace.iconForFile(bundle);
    EXPECT_EQ(icon.pixmap(32, 32).toImage().pixelColor(16, 16), QColor(Qt::green));
}

TEST_F(DesktopWorkspaceTest, whatDoesNotExistHasNoIconAndCannotBeOpened) {
    EXPECT_TRUE(workspace.iconForFile(folder.filePath(u"missing"_s)).isNull());
    EXPECT_FALSE(workspace.openFile(folder.filePath(u"missing"_s)));
}

TEST_F(DesktopWorkspaceTest, anAddressThatNobodyHandlesCannotBeOpened) {
    EXPECT_FALSE(workspace.openUrl(QUrl(u"no-such-scheme:x"_s)));
}

TEST_F(DesktopWorkspaceTest, aBundleWithoutAProgramCannotBeOpened) {
    const QString bundle = folder.filePath(u"Empty.app"_s);
    QDir().mkpath(bundle);
    platform.bundles.add(bundle, {});
    EXPECT_FALSE(workspace.openFile(bundle));
}

TEST_F(DesktopWorkspaceTest, startingToOpenNothingDoesNothing) {
    workspace.startOpening(QString());
    workspace.startOpening(folder.filePath(u"missing"_s));
    const QString bundle = folder.filePath(u"Empty.app"_s);
    QDir().mkpath(bundle);
    platform.bundles.add(bundle, {});
    workspace.startOpening(bundle);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(DesktopWorkspaceTest, volumesLieBelowTheRoot) {
    const QString disk = folder.filePath(u"root/media/ann/Disk"_s);
    EXPECT_EQ(workspace.volumeOf(disk + u"/Product.app"_s), disk);
    EXPECT_EQ(workspace.volumeOf(u"/media/ann/Disk/Product.app"_s), std::nullopt);
}

TEST_F(DesktopWorkspaceTest, anAliasHasATarget) {
    write(u"letter.txt"_s, "Dear");
    QFile::link(folder.filePath(u"letter.txt"_s), folder.filePath(u"link"_s));
    EXPECT_EQ(workspace.targetOfAlias(folder.filePath(u"link"_s)),
              QFileInfo(folder.filePath(u"letter.txt"_s)).canonicalFilePath());
    EXPECT_EQ(workspace.targetOfAlias(folder.filePath(u"letter.txt"_s)), std::nullopt);
}
