// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every implementation of the file systems does, shown by the Linux one and by the fake.

#include "Platform/linux/MountedFileSystems.h"

#include "tests/fakes/FakeFileSystems.h"
#include "tests/unit/platform/FileSystemsContract.h"

#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct LinuxCase {
    zt::MountedFileSystems fileSystems;
    QString path = u"/proc/self/status"_s;
    QString typeName = u"proc"_s;
    std::uint64_t availableBytes = 0; // nothing can be written there
};

struct FakeCase {
    FakeCase() {
        fileSystems.typeNames.insert(path, typeName);
        fileSystems.availableBytes.insert(path, availableBytes);
    }

    QString path = u"/a/file"_s;
    QString typeName = u"apfs"_s;
    std::uint64_t availableBytes = 4096;
    FakeFileSystems fileSystems;
};

using Implementations = testing::Types<LinuxCase, FakeCase>;
INSTANTIATE_TYPED_TEST_SUITE_P(Services, FileSystemsContractTest, Implementations);

} // namespace

TEST(MountedFileSystemsTest, theSpaceIsWhatThisUserCanWrite) {
    const zt::MountedFileSystems fileSystems;
    // Others may write meanwhile; the volume as a whole stays as large as it is.
    const auto space = fileSystems.availableBytesFor(u"/"_s);
    ASSERT_TRUE(space);
    EXPECT_GT(*space, 0U);
    EXPECT_LE(*space, std::uint64_t(QStorageInfo(u"/"_s).bytesTotal()));
}

TEST(MountedFileSystemsTest, anAliasCountsAsWhatItLeadsTo) {
    const QTemporaryDir folder;
    const QString alias = folder.filePath(u"alias"_s);
    ASSERT_TRUE(QFile::link(u"/proc/self"_s, alias));
    const zt::MountedFileSystems fileSystems;
    EXPECT_EQ(*fileSystems.typeNameFor(alias), u"proc"_s);
}

TEST(MountedFileSystemsTest, theFolderOfAVolumeIsOnIt) {
    const zt::MountedFileSystems fileSystems;
    for (const QString &path : {QDir::tempPath(), u"/"_s, u"/dev"_s, QDir::homePath()}) {
        const auto type = fileSystems.typeNameFor(path);
        ASSERT_TRUE(type) << path.toStdString();
        EXPECT_EQ(*type, QString::fromUtf8(QStorageInfo(path).fileSystemType()))
            << path.toStdString();
    }
}

TEST(MountedFileSystemsTest, anUnreadableListIsAFailure) {
    const QTemporaryDir empty;
    const zt::MountedFileSystems fileSystems(empty.path().toStdString());
    const auto type = fileSystems.typeNameFor(u"/"_s);
    ASSERT_FALSE(type);
    EXPECT_EQ(type.error().code, ENOENT);
}
