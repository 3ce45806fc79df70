// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DataFolder.h"

#include "Platform/posix/SystemCalls.h"

#include "tests/unit/registration/SampleRecord.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class DataFolderTest : public testing::Test {
protected:
    QString path(const QString &relative) const { return folder.filePath(relative); }

    QByteArray content(const QString &relative) const {
        QFile file(path(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    zt::Result<void> write(const zt::ApplicationRecord &record) const {
        return zt::writeRegistration(data.get(), record);
    }

    QTemporaryDir folder;
    zt::UniqueFd data = zt::openAt(AT_FDCWD, folder.path().toUtf8().constData(),
                                   O_RDONLY | O_DIRECTORY | O_CLOEXEC);
};

TEST_F(DataFolderTest, everythingIsInItsPlace) {
    ASSERT_TRUE(write(sampleRecord()));
    EXPECT_TRUE(content(u"applications/com.example.Notes.desktop"_s).contains("Name=Notes\n"));
    EXPECT_EQ(content(u"icons/hicolor/scalable/apps/com.example.Notes.svg"_s), "<svg/>");
    EXPECT_EQ(content(u"icons/hicolor/48x48/apps/com.example.Notes.png"_s), "\x89PNG made up");
    EXPECT_EQ(content(u"icons/hicolor/256x256/apps/com.example.Notes.png"_s).size(), 19);
    EXPECT_TRUE(content(u"mime/packages/com.example.Notes.xml"_s).contains("application/x-note"));
    EXPECT_EQ(zt::programOfEntry(data.get(), "com.example.Notes"),
              "/Applications/Notes.app/Contents/Linux/Notes");
}

TEST_F(DataFolderTest, everybodyMayReadWhateverTheMask) {
    const mode_t mask = ::umask(0077);
    const zt::Result<void> written = write(sampleRecord());
    ::umask(mask);
    ASSERT_TRUE(written);
    EXPECT_EQ(QFile::permissions(path(u"applications/com.example.Notes.desktop"_s)) &
                  (QFile::ReadOther | QFile::WriteOther | QFile::WriteGroup),
              QFile::ReadOther);
}

TEST_F(DataFolderTest, aLaterVersionReplacesAllOfAnEarlierOne) {
    ASSERT_TRUE(write(sampleRecord()));
    zt::ApplicationRecord record = sampleRecord();
    record.bundlePath = "/home/me/Applications/Notes.app";
    record.icons = {{64, "\x89PNG other"}};
    ASSERT_TRUE(write(record));
    EXPECT_EQ(zt::programOfEntry(data.get(), record.identifier),
              "/home/me/Applications/Notes.app/Contents/Linux/Notes");
    EXPECT_FALSE(QFile::exists(path(u"icons/hicolor/48x48/apps/com.example.Notes.png"_s)));
    EXPECT_FALSE(QFile::exists(path(u"icons/hicolor/scalable/apps/com.example.Notes.svg"_s)));
    EXPECT_TRUE(QFile::exists(path(u"icons/hicolor/64x64/apps/com.example.Notes.png"_s)));
    EXPECT_EQ(QDir(path(u"applications"_s))
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"com.example.Notes.desktop"_s});
}

TEST_F(DataFolderTest, aBadRecordChangesNothing) {
    zt::ApplicationRecord record = sampleRecord();
    record.identifier = "../evil";
    EXPECT_FALSE(write(record));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(DataFolderTest, aLinkInPlaceOfAFolderIsNotFollowed) {
    QTemporaryDir elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), path(u"applications"_s)));
    EXPECT_FALSE(write(sampleRecord()));
    EXPECT_TRUE(QDir(elsewhere.path()).isEmpty());
}

TEST_F(DataFolderTest, aLinkInPlaceOfTheEntryIsReplacedItself) {
    QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(u"target"_s);
    QDir().mkpath(path(u"applications"_s));
    ASSERT_TRUE(QFile::link(target, path(u"applications/com.example.Notes.desktop"_s)));
    ASSERT_TRUE(QFile::link(target, path(u"applications/.com.example.Notes.desktop.new"_s)));
    ASSERT_TRUE(write(sampleRecord()));
    EXPECT_FALSE(QFile::exists(target));
    EXPECT_FALSE(QFileInfo(path(u"applications/com.example.Notes.desktop"_s)).isSymLink());
}

TEST_F(DataFolderTest, anEntryThatCannotBeReplacedStays) {
    ASSERT_TRUE(write(sampleRecord()));
    const QByteArray before = content(u"applications/com.example.Notes.desktop"_s);
    // In the way of the unfinished file.
    QDir().mkpath(path(u"applications/.com.example.Notes.desktop.new/x"_s));
    zt::ApplicationRecord record = sampleRecord();
    record.names = {{"", "Other"}};
    EXPECT_FALSE(write(record));
    EXPECT_EQ(content(u"applications/com.example.Notes.desktop"_s), before);
}

TEST_F(DataFolderTest, aRemovedEntryIsGoneAndCanBeRemovedAgain) {
    ASSERT_TRUE(write(sampleRecord()));
    EXPECT_TRUE(zt::removeEntry(data.get(), "com.example.Notes"));
    EXPECT_EQ(zt::programOfEntry(data.get(), "com.example.Notes"), "");
    EXPECT_TRUE(zt::removeEntry(data.get(), "com.example.Notes"));
}

TEST_F(DataFolderTest, thePathOfAnAwkwardBundleIsReadBack) {
    zt::ApplicationRecord record = sampleRecord();
    record.bundlePath = "/Applications/a\\b \"c\" 100%.app";
    ASSERT_TRUE(write(record));
    EXPECT_EQ(zt::programOfEntry(data.get(), record.identifier),
              record.bundlePath + "/Contents/Linux/Notes");
}

TEST_F(DataFolderTest, theDesktopsToolsFindTheNewType) {
    if (!QFile::exists(u"/usr/bin/update-desktop-database"_s))
        GTEST_SKIP() << "desktop-file-utils is not installed";
    ASSERT_TRUE(write(sampleRecord()));
    QStringList lines;
    zt::refreshCaches(folder.path().toStdString(), sampleRecord(), [&](std::string_view line) {
        lines << QString::fromUtf8(line.data(), qsizetype(line.size()));
    });
    EXPECT_TRUE(lines.isEmpty()) << lines.join(u'\n').toStdString();
    EXPECT_TRUE(content(u"applications/mimeinfo.cache"_s)
                    .contains("application/x-note=com.example.Notes.desktop"));
}
