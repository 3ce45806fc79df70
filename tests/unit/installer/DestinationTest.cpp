// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/installer/AsOrdinaryUser.h"
#include "tests/unit/installer/InstallerFixture.h"

using namespace Qt::StringLiterals;

class DestinationTest : public InstallerFixture {
protected:
    using Paths = std::vector<std::optional<QString>>;
};

TEST_F(DestinationTest, aLoginItemThatBeginsWithTheNameIsWhereTheProductIsKept) {
    platform.loginItems.paths = Paths{std::nullopt, u"/a/Other.app"_s,
                                      u"/Applications/Tools/Demo Beta.app"_s, u"/b/Demo.app"_s};
    EXPECT_EQ(controller().autoLaunchPathFor(u"Demo"_s), u"/Applications/Tools/Demo Beta.app"_s);
    EXPECT_EQ(controller().findPreferredDestinationFor(u"Demo"_s),
              u"/Applications/Tools/Demo Beta.app"_s);
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"autolaunch = /Applications/Tools/Demo Beta.app"_s});
}

TEST_F(DestinationTest, withoutAMatchingLoginItemThereIsNoPreference) {
    EXPECT_EQ(controller().autoLaunchPathFor(u"Demo"_s), std::nullopt);
    platform.loginItems.paths = Paths{};
    EXPECT_EQ(controller().autoLaunchPathFor(u"Demo"_s), std::nullopt);
    platform.loginItems.paths = Paths{u"/a/demo.app"_s};
    EXPECT_EQ(controller().findPreferredDestinationFor(u"Demo"_s), std::nullopt);
    EXPECT_EQ(platform.log.lines(), QStringList{u"autolaunch = (null)"_s});
}

TEST_F(DestinationTest, aLoginItemInATrashFolderIsIgnored) {
    platform.loginItems.paths = Paths{u"/home/x/.local/share/Trash/files/Demo.app"_s};
    EXPECT_EQ(controller().findPreferredDestinationFor(u"Demo"_s), std::nullopt);
}

TEST_F(DestinationTest, someFoldersNeverCount) {
    const std::pair<const char *, bool> rows[] = {
        {"/Users/me/wex/Demo/build/Demo.app", true},
        {"/Users/me/Demo/build/Demo.app", false},
        {"/Users/me/wex/Demo/Demo.app", false},
        {"/Volumes/Demo-Install/Demo.app", true},
        {"/Volumes/Demo/Demo.app", false},
        {"/media/Demo-Install/Demo.app", false},
        {"/home/me/.local/share/Trash/files/Demo.app", true},
        {"/home/me/.Trash/Demo.app", true},
        {"/home/me/trash/Demo.app", false},
        {"/private/var/folders/Demo.app", true},
        {"/x/private/var/Demo.app", false},
        {"/Applications/Demo.app", false},
        {"", false},
    };
    for (const auto &[path, unsupported] : rows)
        EXPECT_EQ(controller().isInUnsupportedFolder(QString::fromLatin1(path)), unsupported)
            << path;
    EXPECT_FALSE(controller().isInUnsupportedFolder(std::nullopt));
}

TEST_F(DestinationTest, aWritableSystemFolderComesFirst) {
    platform.workspace.localApplications = {u"/first/is/not/asked"_s, path(u"Applications"_s)};
    platform.workspace.userApplications = {path(u"Trash"_s)};
    EXPECT_EQ(controller().applicationsDirectory(), path(u"Applications"_s));
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(DestinationTest, theUsersOwnFolderComesNextWhenItExists) {
    platform.workspace.localApplications = {path(u"missing"_s)};
    platform.workspace.userApplications = {path(u"Own"_s)};
    EXPECT_EQ(controller().applicationsDirectory(), path(u"missing"_s));
    makeFolder(u"Own"_s);
    platform.log.clear();
    EXPECT_EQ(controller().applicationsDirectory(), path(u"Own"_s));
    EXPECT_EQ(platform.log.lines(),
              (QStringList{u"Can't write to /Applications, checking ~/Applications"_s,
                           u"User applicationsDirectory: "_s + path(u"Own"_s)}));
}

TEST_F(DestinationTest, withoutAUsersFolderTheSystemOneIsAnsweredAllTheSame) {
    platform.workspace.localApplications = {path(u"missing"_s)};
    EXPECT_EQ(controller().applicationsDirectory(), path(u"missing"_s));
    EXPECT_TRUE(platform.log.lines().contains(u"User applicationsDirectory: (null)"_s));
}

TEST_F(DestinationTest, aTildeInAFolderIsTheHomeFolder) {
    platform.workspace.localApplications = {u"~"_s};
    EXPECT_EQ(controller().applicationsDirectory(), QDir::homePath());
}

TEST_F(DestinationTest, theNearestExistingFolderDecidesWhetherAPathCanBeWritten) {
    EXPECT_TRUE(controller().canWriteToPath(path(u"a/b/c/Demo.app"_s)));
    EXPECT_TRUE(controller().canWriteToPath(path(u"Applications/Demo.app"_s)));
    EXPECT_TRUE(controller().canWriteToPath(product));
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(DestinationTest, whatCannotBeWrittenIsLogged) {
    const AsOrdinaryUser user(folder.path());
    EXPECT_FALSE(controller().canWriteToPath(u"/proc/version"_s));
    EXPECT_FALSE(controller().canWriteToPath(u"/proc/no/such/Demo.app"_s));
    EXPECT_FALSE(controller().canWriteToPath(u"Demo.app"_s));
    EXPECT_EQ(platform.log.lines(),
              (QStringList{u"Cannot write to item /proc/version"_s,
                           u"Cannot write to folder /proc"_s, u"Cannot write to folder "_s}));
}

TEST_F(DestinationTest, aReadOnlyFolderIsNotWritable) {
    const AsOrdinaryUser user(folder.path());
    makeFolder(u"ReadOnly"_s);
    const QString readOnly = path(u"ReadOnly"_s);
    QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_FALSE(controller().canWriteToPath(readOnly + u"/Demo.app"_s));
    EXPECT_FALSE(controller().canWriteToDirectory(readOnly));
    EXPECT_FALSE(controller().canWriteToFileOrDirectory(readOnly));
    platform.workspace.localApplications = {readOnly};
    platform.workspace.userApplications = {folder.path()};
    EXPECT_EQ(controller().applicationsDirectory(), folder.path());
    platform.workspace.userApplications = {path(u"missing"_s)};
    EXPECT_EQ(controller().applicationsDirectory(), readOnly);
    QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(DestinationTest, aMissingItemIsNotWritable) {
    EXPECT_FALSE(controller().canWriteToFileOrDirectory(path(u"missing"_s)));
    EXPECT_TRUE(controller().canWriteToFileOrDirectory(path(u"Applications"_s)));
}

TEST_F(DestinationTest, probingAFileCreatesAndChangesNothing) {
    makeFile(u"letter"_s, "content");
    EXPECT_TRUE(controller().canWriteToFile(path(u"letter"_s)));
    EXPECT_FALSE(controller().canWriteToFile(path(u"missing"_s)));
    EXPECT_FALSE(controller().canWriteToFile(path(u"Applications"_s)));
    EXPECT_FALSE(QFileInfo::exists(path(u"missing"_s)));
    EXPECT_EQ(QFileInfo(path(u"letter"_s)).size(), 7);
}

TEST_F(DestinationTest, probingAFolderLeavesNothingBehind) {
    EXPECT_TRUE(controller().canWriteToDirectory(path(u"Applications"_s)));
    EXPECT_TRUE(QDir(path(u"Applications"_s)).isEmpty());
    EXPECT_FALSE(controller().canWriteToDirectory(path(u"missing"_s)));
}

TEST_F(DestinationTest, aProbeNeverTouchesAFileThatIsThere) {
    // The next number is known, so its name can be taken already.
    srandom(1);
    const auto taken = QStringLiteral("Applications/temp-%1")
                           .arg(QString::number(static_cast<unsigned>(random()), 16).toUpper());
    srandom(1);
    makeFile(taken, "precious");
    EXPECT_TRUE(controller().canWriteToDirectory(path(u"Applications"_s)));
    EXPECT_EQ(QFileInfo(path(taken)).size(), 8);
}

TEST_F(DestinationTest, pathsShowEveryFolderUnderItsLocalizedName) {
    platform.workspace.displayNames = {{u"/Applications"_s, u"Programme"_s},
                                       {u"/Applications/Demo.app"_s, u"Demo"_s}};
    EXPECT_EQ(controller().localizedPath(u"/Applications/Demo.app"_s), u"/Programme/Demo"_s);
    EXPECT_EQ(controller().localizedPath(u"/Applications"_s), u"/Programme"_s);
}

TEST_F(DestinationTest, theHomeFolderShowsAsATilde) {
    const QString home = QDir::homePath();
    platform.workspace.displayNames = {{home + u"/Applications"_s, u"Programme"_s}};
    EXPECT_EQ(controller().localizedPath(home + u"/Applications/x"_s), u"~/Programme/x"_s);
    EXPECT_EQ(controller().localizedPath(home), u"~"_s);
    EXPECT_EQ(controller().localizedPath(home + u"work/x"_s), home + u"work/x"_s);
}

TEST_F(DestinationTest, veryShortPathsStayAsTheyAre) {
    platform.workspace.displayNames = {{u"/a"_s, u"Alpha"_s}};
    EXPECT_EQ(controller().localizedPath(u"/"_s), u"/"_s);
    EXPECT_EQ(controller().localizedPath(u"/a"_s), u"/a"_s);
    EXPECT_EQ(controller().localizedPath(u""_s), u""_s);
}
