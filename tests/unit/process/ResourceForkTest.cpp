// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ResourceFork.h"

#include "tests/unit/process/ResourceForkMaker.h"
#include "tests/unit/process/TestBundles.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/xattr.h>

using namespace Qt::StringLiterals;

namespace {

constexpr FourCharCode vers = fourCharCode("vers");

QByteArray sampleFork() {
    return makeResourceFork({{.type = fourCharCode("STR "), .number = 128, .data = "text"},
                             {.type = vers, .number = 2, .data = "second"},
                             {.type = vers, .number = 1, .data = "first"},
                             {.type = vers, .number = -5, .data = "negative"},
                             {.type = vers, .number = 7, .data = "packed", .attributes = 0x01}});
}

QByteArray found(const QByteArray &fork, FourCharCode type, std::int16_t number) {
    const auto data = zt::resourceInFork(fork, type, number);
    return data ? data->toByteArray() : QByteArray("none");
}

} // namespace

TEST(ResourceForkTest, resourcesAreToldApartByTypeAndNumber) {
    const QByteArray fork = sampleFork();
    EXPECT_EQ(found(fork, vers, 1), "first");
    EXPECT_EQ(found(fork, vers, 2), "second");
    EXPECT_EQ(found(fork, vers, -5), "negative");
    EXPECT_EQ(found(fork, fourCharCode("STR "), 128), "text");
    EXPECT_EQ(found(fork, fourCharCode("STR "), 1), "none");
    EXPECT_EQ(found(fork, fourCharCode("ICN#"), 1), "none");
}

TEST(ResourceForkTest, aCompressedResourceIsNotRead) {
    EXPECT_EQ(found(sampleFork(), vers, 7), "none");
}

TEST(ResourceForkTest, anEmptyResourceIsFound) {
    EXPECT_EQ(found(makeResourceFork({{.type = vers, .number = 1, .data = {}}}), vers, 1), "");
}

TEST(ResourceForkTest, aForkThatIsCutAnywhereGivesTheResourceOrNone) {
    const QByteArray fork = sampleFork();
    for (qsizetype size = 0; size < fork.size(); ++size) {
        // A copy of its own, so that reading behind the end is noticed.
        const QByteArray part(fork.constData(), size);
        EXPECT_EQ(found(part, fourCharCode("ICN#"), 1), "none");
        const QByteArray first = found(part, vers, 1);
        EXPECT_TRUE(first == "first" || first == "none") << size;
    }
}

TEST(ResourceForkTest, placesOutsideOfTheForkAreNotFollowed) {
    const QByteArray fork = sampleFork();
    for (qsizetype place = 0; place < 16; ++place) {
        QByteArray damaged = fork;
        damaged[place] = '\xFF';
        EXPECT_FALSE(zt::resourceInFork(damaged, fourCharCode("ICN#"), 1)) << place;
    }
    EXPECT_EQ(found(QByteArray(fork).replace(0, 4, QByteArray(4, '\xFF')), vers, 1), "none");
}

TEST(ResourceForkTest, anAppleDoubleFileHoldsTheFork) {
    const QByteArray fork = sampleFork();
    EXPECT_EQ(zt::resourceForkOfAppleDouble(makeAppleDouble(fork)), fork);
}

TEST(ResourceForkTest, anotherFileIsNoAppleDoubleFile) {
    QByteArray file = makeAppleDouble(sampleFork());
    file[3] = '\x00'; // that of the form which holds the data as well
    EXPECT_TRUE(zt::resourceForkOfAppleDouble(file).isEmpty());
    EXPECT_TRUE(zt::resourceForkOfAppleDouble({}).isEmpty());
}

TEST(ResourceForkTest, anAppleDoubleFileThatIsCutHoldsNothing) {
    const QByteArray file = makeAppleDouble(sampleFork());
    for (qsizetype size = 0; size < file.size(); ++size)
        EXPECT_TRUE(zt::resourceForkOfAppleDouble(QByteArray(file.constData(), size)).isEmpty())
            << size;
}

TEST(ResourceForkTest, theForkIsReadFromTheCompanion) {
    const TestBundles files;
    const QString program = files.write(u"program"_s, "code");
    EXPECT_FALSE(zt::readResourceFork(program));
    files.write(u"._program"_s, makeAppleDouble(sampleFork()));
    EXPECT_EQ(zt::readResourceFork(program), sampleFork());
}

TEST(ResourceForkTest, aFolderHasACompanionToo) {
    const TestBundles files;
    files.write(u"Folder.app/file"_s, {});
    files.write(u"._Folder.app"_s, makeAppleDouble(sampleFork()));
    EXPECT_EQ(zt::readResourceFork(files.path(u"Folder.app"_s)), sampleFork());
}

TEST(ResourceForkTest, theForkIsReadFromTheExtendedAttribute) {
    const TestBundles files;
    const QString program = files.write(u"program"_s, "code");
    const QByteArray fork = sampleFork();
    if (::setxattr(QFile::encodeName(program).constData(), "user.com.apple.ResourceFork",
                   fork.constData(), static_cast<std::size_t>(fork.size()), 0) != 0)
        GTEST_SKIP() << "the file system of " << qPrintable(files.folder())
                     << " keeps no extended attributes";
    EXPECT_EQ(zt::readResourceFork(program), fork);
}

TEST(ResourceForkTest, aFolderInTheCompanionsPlaceHoldsNothing) {
    const TestBundles files;
    const QString program = files.write(u"program"_s, "code");
    QDir().mkdir(files.path(u"._program"_s));
    EXPECT_FALSE(zt::readResourceFork(program));
}

TEST(ResourceForkTest, aFileThatDoesNotExistHasNoFork) {
    EXPECT_FALSE(zt::readResourceFork(u"/nowhere/at/all"_s));
}
