// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LinuxSystemVersion.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::VersionNumbers;

struct OsReleaseRow {
    const char *reason;
    const char *osRelease;
    const char *debianVersion;
    std::optional<VersionNumbers> numbers;
};

TEST(LinuxSystemVersionTest, numbersComeFromTheVersionRecord) {
    const OsReleaseRow rows[] = {
        {"quoted", "NAME=\"Some Linux\"\nVERSION_ID=\"22.04\"\n", "", VersionNumbers{22, 4, 0}},
        {"unquoted", "VERSION_ID=40\n", "", VersionNumbers{40, 0, 0}},
        {"single quotes", "VERSION_ID='15.5'\n", "", VersionNumbers{15, 5, 0}},
        {"three parts", "VERSION_ID=3.18.4\n", "", VersionNumbers{3, 18, 4}},
        {"four parts", "VERSION_ID=3.18.4.1\n", "", VersionNumbers{3, 18, 4}},
        {"a word behind", "VERSION_ID=\"7.9 beta\"\n", "", VersionNumbers{7, 9, 0}},
        {"the point release refines", "VERSION_ID=\"12\"\n", "12.11\n", VersionNumbers{12, 11, 0}},
        {"another release's point version", "VERSION_ID=\"12\"\n", "13.1\n",
         VersionNumbers{12, 0, 0}},
        {"a code name is no version", "VERSION_ID=\"12\"\n", "bookworm/sid\n",
         VersionNumbers{12, 0, 0}},
        {"a similar key", "MY_VERSION_ID=9\nVERSION_ID_LIKE=8\nVERSION_ID=7\n", "",
         VersionNumbers{7, 0, 0}},
        {"no line end", "VERSION_ID=7", "", VersionNumbers{7, 0, 0}},
        {"no version", "NAME=Rolling\n", "", std::nullopt},
        {"no number", "VERSION_ID=rolling\n", "", std::nullopt},
        {"empty", "", "", std::nullopt},
        {"negative", "VERSION_ID=-3\n", "", std::nullopt},
        {"too large", "VERSION_ID=99999999999999\n", "", std::nullopt},
    };
    for (const OsReleaseRow &row : rows)
        EXPECT_EQ(zt::parseSystemVersion(row.osRelease, row.debianVersion), row.numbers)
            << row.reason;
}

class LinuxSystemVersionFilesTest : public testing::Test {
protected:
    void write(const QString &path, const QByteArray &content) {
        const QString file = root.filePath(path);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }
    zt::LinuxSystemVersion version() { return zt::LinuxSystemVersion(root.path().toStdString()); }

    QTemporaryDir root;
};

TEST_F(LinuxSystemVersionFilesTest, theRecordInEtcComesFirst) {
    write(u"usr/lib/os-release"_s, "VERSION_ID=1\n");
    EXPECT_EQ(version().majorVersion(), 1);
    write(u"etc/os-release"_s, "VERSION_ID=2.3.4\n");
    EXPECT_EQ(version().majorVersion(), 2);
    EXPECT_EQ(version().minorVersion(), 3);
    EXPECT_EQ(version().bugFixVersion(), 4);
    EXPECT_EQ(version().packedVersion(), 0x0234U);
}

TEST_F(LinuxSystemVersionFilesTest, onlyDebianIsRefinedByItsPointRelease) {
    write(u"etc/debian_version"_s, "12.9\n");
    write(u"etc/os-release"_s, "ID=other\nVERSION_ID=12\n");
    EXPECT_EQ(version().minorVersion(), 0);
    write(u"etc/os-release"_s, "ID=debian\nVERSION_ID=12\n");
    EXPECT_EQ(version().minorVersion(), 9);
}

TEST_F(LinuxSystemVersionFilesTest, withoutARecordNothingIsKnown) {
    EXPECT_EQ(version().majorVersion(), std::nullopt);
    EXPECT_EQ(version().packedVersion(), std::nullopt);
    EXPECT_GE(version().frameworkVersion(), 1639.0);
}

TEST_F(LinuxSystemVersionFilesTest, numbersThatDoNotFitThePackedWordStandAsNines) {
    write(u"etc/os-release"_s, "VERSION_ID=123.45.6\n");
    EXPECT_EQ(version().packedVersion(), 0x9996U);
}
