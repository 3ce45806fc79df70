// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AliasTarget.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using zt::targetOfAlias;

namespace {

class AliasTargetTest : public testing::Test {
protected:
    QString path(const QString &name) const { return root + u'/' + name; }

    QString file(const QString &name, const QByteArray &content = {}) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile out(path(name));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        return path(name);
    }

    QString link(const QString &name, const QString &target) const {
        EXPECT_TRUE(QFile::link(target, path(name)));
        return path(name);
    }

    // A desktop entry that links to the path.
    QString entry(const QString &name, const QString &target) const {
        return file(name, "[Desktop Entry]\nType=Link\nName=Link\nURL=" +
                              QUrl::fromLocalFile(target).toEncoded() + '\n');
    }

    QTemporaryDir folder;
    QString root = QDir(folder.path()).canonicalPath();
};

} // namespace

TEST_F(AliasTargetTest, whatIsNoAliasHasNoTarget) {
    EXPECT_EQ(targetOfAlias(file(u"letter.txt"_s)), std::nullopt);
    EXPECT_EQ(targetOfAlias(root), std::nullopt);
    EXPECT_EQ(targetOfAlias(root + u'/'), std::nullopt);
    EXPECT_EQ(targetOfAlias(path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(targetOfAlias(u""_s), std::nullopt);
}

TEST_F(AliasTargetTest, aLinkLeadsToItsTarget) {
    const QString target = file(u"letter.txt"_s);
    EXPECT_EQ(targetOfAlias(link(u"absolute"_s, target)), target);
    EXPECT_EQ(targetOfAlias(link(u"relative"_s, u"letter.txt"_s)), target);
    EXPECT_EQ(targetOfAlias(link(u"folder"_s, root)), root);
    EXPECT_EQ(targetOfAlias(path(u"folder/"_s)), root);
}

TEST_F(AliasTargetTest, aFileBehindALinkedFolderIsNoAlias) {
    file(u"real/letter.txt"_s);
    link(u"linked"_s, path(u"real"_s));
    EXPECT_EQ(targetOfAlias(path(u"linked/letter.txt"_s)), std::nullopt);
}

TEST_F(AliasTargetTest, aDesktopEntryLeadsToItsTarget) {
    const QString target = file(u"my letter \u00E4%.txt"_s);
    EXPECT_EQ(targetOfAlias(entry(u"a.desktop"_s, target)), target);
}

TEST_F(AliasTargetTest, chainsOfBothKindsAreFollowedToTheEnd) {
    const QString target = file(u"letter.txt"_s);
    link(u"1"_s, target);
    entry(u"2.desktop"_s, path(u"1"_s));
    link(u"3"_s, path(u"2.desktop"_s));
    entry(u"4.desktop"_s, path(u"3"_s));
    EXPECT_EQ(targetOfAlias(path(u"4.desktop"_s)), target);
    EXPECT_EQ(targetOfAlias(link(u"5"_s, path(u"4.desktop"_s))), target);
}

TEST_F(AliasTargetTest, loopsHaveNoTarget) {
    link(u"itself"_s, path(u"itself"_s));
    link(u"a"_s, path(u"b"_s));
    link(u"b"_s, path(u"a"_s));
    entry(u"itself.desktop"_s, path(u"itself.desktop"_s));
    entry(u"c.desktop"_s, path(u"d"_s));
    link(u"d"_s, path(u"c.desktop"_s));
    for (const QString &name : {u"itself"_s, u"a"_s, u"itself.desktop"_s, u"c.desktop"_s, u"d"_s})
        EXPECT_EQ(targetOfAlias(path(name)), std::nullopt) << name.toStdString();
}

TEST_F(AliasTargetTest, whatLeadsNowhereHasNoTarget) {
    const QString missing = path(u"missing"_s);
    EXPECT_EQ(targetOfAlias(link(u"link"_s, missing)), std::nullopt);
    EXPECT_EQ(targetOfAlias(entry(u"entry.desktop"_s, missing)), std::nullopt);
    EXPECT_EQ(targetOfAlias(link(u"both"_s, path(u"entry.desktop"_s))), std::nullopt);
}

TEST_F(AliasTargetTest, onlyFilesThatAreNamedAsDesktopEntriesAreRead) {
    const QString target = file(u"letter.txt"_s);
    EXPECT_EQ(targetOfAlias(entry(u"entry.txt"_s, target)), std::nullopt);
    QDir().mkpath(path(u"folder.desktop"_s));
    EXPECT_EQ(targetOfAlias(path(u"folder.desktop"_s)), std::nullopt);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"pipe.desktop"_s)).constData(), 0600), 0);
    EXPECT_EQ(targetOfAlias(path(u"pipe.desktop"_s)), std::nullopt);
}

TEST_F(AliasTargetTest, anEntryOfAbsurdSizeIsNotRead) {
    const QString target = file(u"letter.txt"_s);
    const QByteArray start = "[Desktop Entry]\nType=Link\nURL=file://" + target.toUtf8() + '\n';
    EXPECT_EQ(targetOfAlias(file(u"fits.desktop"_s, start + QByteArray(60'000, '\n'))), target);
    EXPECT_EQ(targetOfAlias(file(u"large.desktop"_s, start + QByteArray(70'000, '\n'))),
              std::nullopt);
}

struct EntryRow {
    const char *reason;
    QByteArray entry;
    std::optional<QByteArray> path;
};

TEST(LinkEntryTest, onlyLinksToFilesOfThisMachineHaveAPath) {
    const QByteArray host = QSysInfo::machineHostName().toUtf8();
    const EntryRow rows[] = {
        {"no host", "[Desktop Entry]\nType=Link\nURL=file:///a/b\n", "/a/b"},
        {"no slashes", "[Desktop Entry]\nType=Link\nURL=file:/a/b\n", "/a/b"},
        {"escapes", "[Desktop Entry]\nType=Link\nURL=file:///a%20b%C3%A4\n", "/a b\xC3\xA4"},
        {"bytes that are no text", "[Desktop Entry]\nType=Link\nURL=file:///a%FF\n", "/a\xFF"},
        {"this machine by its common name", "[Desktop Entry]\nType=Link\nURL=file://localhost/a\n",
         "/a"},
        {"this machine by its own", "[Desktop Entry]\nType=Link\nURL=file://" + host + "/a\n",
         "/a"},
        {"comments and other groups",
         "# x\n[Desktop Entry]\nURL=file:///a\nType=Link\n\n[Other]\nURL=file:///b\n", "/a"},
        {"another machine", "[Desktop Entry]\nType=Link\nURL=file://other.example/a\n", {}},
        {"an address of the web", "[Desktop Entry]\nType=Link\nURL=https://example.org/\n", {}},
        {"no address", "[Desktop Entry]\nType=Link\n", {}},
        {"an empty address", "[Desktop Entry]\nType=Link\nURL=\n", {}},
        {"an escaped end of the path", "[Desktop Entry]\nType=Link\nURL=file:///a%00b\n", {}},
        {"an escaped slash", "[Desktop Entry]\nType=Link\nURL=file:///a%2Fb\n", {}},
        {"an application", "[Desktop Entry]\nType=Application\nURL=file:///a\n", {}},
        {"no kind", "[Desktop Entry]\nURL=file:///a\n", {}},
        {"another group", "[Other]\nType=Link\nURL=file:///a\n", {}},
        {"empty", "", {}},
        {"garbage", "\xFF\xFE[Desktop", {}},
        {"a path for an address", "[Desktop Entry]\nType=Link\nURL=/a/b\n", {}},
    };
    for (const EntryRow &row : rows)
        EXPECT_EQ(zt::pathInLinkEntry(row.entry), row.path) << row.reason;
}
