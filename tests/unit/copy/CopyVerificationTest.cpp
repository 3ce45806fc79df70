// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/CopyVerification.h"

#include "Platform/posix/SystemCalls.h"
#include "tests/unit/copy/TemporaryFolder.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <ostream>
#include <string>

namespace zt {
namespace {

using testing::describeTree;
using ::testing::EndsWith;
using testing::TemporaryFolder;

class CopyVerificationTest : public ::testing::Test {
protected:
    CopyVerificationTest() {
        m_world.makeFile("source/Contents/program", std::string(200'000, 'p'), 0755);
        m_world.makeFile("source/Contents/text", "some text");
        m_world.makeFile("source/Contents/empty");
        m_world.makeLink("source/Current", "Contents");
        m_world.makeFolder("source/folder");
        m_world.makeFile("source/one", "one file");
        EXPECT_EQ(::link(path("source/one").c_str(), path("source/folder/two").c_str()), 0);
        m_hasAttributes =
            ::setxattr(path("source/Contents/text").c_str(), "user.note", "first", 5, 0) == 0;
    }

    std::string path(const std::string &name) const { return m_world.path(name); }

    void copy(CopiedRights rights = CopiedRights::All) const {
        const Result<void> copied = copyTree({.source = {AT_FDCWD, path("source"), path("source")},
                                              .target = {AT_FDCWD, path("copy"), path("copy")},
                                              .rights = rights});
        ASSERT_TRUE(copied) << copied.error().text();
    }

    // Empty when the copy is like its source, else what is told.
    std::string verify(CopiedRights rights = CopiedRights::All) const {
        const Result<void> same = verifyCopy({.source = {AT_FDCWD, path("source"), path("source")},
                                              .copy = {AT_FDCWD, path("copy"), path("copy")},
                                              .rights = rights});
        return same ? std::string() : same.error().text();
    }

    TemporaryFolder m_world;
    bool m_hasAttributes = false;
};

TEST_F(CopyVerificationTest, aCopyIsLikeItsSourceAndStaysAsItIs) {
    copy();
    const auto before = describeTree(path(""));
    EXPECT_EQ(verify(), "");
    EXPECT_EQ(describeTree(path("")), before);
}

TEST_F(CopyVerificationTest, aCopyWithFewerRightsIsLikeItsSourceAsSuch) {
    ASSERT_EQ(::chmod(path("source/Contents/program").c_str(), 0777), 0);
    copy(CopiedRights::ReadingAndRunning);
    EXPECT_EQ(verify(CopiedRights::ReadingAndRunning), "");
    EXPECT_THAT(verify(), EndsWith("copy/Contents/program: its mode is not that of the original"));
}

TEST_F(CopyVerificationTest, aSingleFileIsCompared) {
    const Result<void> copied =
        copyTree({.source = {AT_FDCWD, path("source/one"), path("source/one")},
                  .target = {AT_FDCWD, path("copy"), path("copy")}});
    ASSERT_TRUE(copied);
    const CopyVerification verification = {
        .source = {AT_FDCWD, path("source/one"), path("source/one")},
        .copy = {AT_FDCWD, path("copy"), path("copy")}};
    EXPECT_TRUE(verifyCopy(verification));
    std::ofstream(path("copy")) << "One file";
    EXPECT_FALSE(verifyCopy(verification));
}

TEST_F(CopyVerificationTest, timesAreComparedAsFarAsTheFileSystemTellsThem) {
    copy();
    const std::string text = path("copy/Contents/text");
    struct stat status = {};
    ASSERT_EQ(::stat(text.c_str(), &status), 0);
    const auto setTime = [&](timespec time) {
        const std::array<timespec, 2> times = {time, time};
        ASSERT_EQ(::utimensat(AT_FDCWD, text.c_str(), times.data(), 0), 0);
    };
    setTime({status.st_mtim.tv_sec, 0});
    EXPECT_EQ(verify(), "");
    setTime({status.st_mtim.tv_sec / 2 * 2, 0});
    EXPECT_EQ(verify(), "");
    setTime({status.st_mtim.tv_sec / 2 * 2 + 2, 0});
    EXPECT_THAT(verify(), EndsWith("copy/Contents/text: its time is not that of the original"));
}

TEST_F(CopyVerificationTest, aStopRequestEndsIt) {
    copy();
    std::stop_source stopping;
    stopping.request_stop();
    const Result<void> same = verifyCopy({.source = {AT_FDCWD, path("source"), path("source")},
                                          .copy = {AT_FDCWD, path("copy"), path("copy")},
                                          .stop = stopping.get_token()});
    ASSERT_FALSE(same);
    EXPECT_EQ(same.error().code, ECANCELED);
}

// What happened to a copy, in a shell in its folder, and what is told of it.
struct DamageRow {
    const char *reason;
    const char *command;
    const char *told;
    bool needsAttributes = false;
};

void PrintTo(const DamageRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class DamageTest : public CopyVerificationTest, public ::testing::WithParamInterface<DamageRow> {};

TEST_P(DamageTest, whatDiffersIsTold) {
    if (GetParam().needsAttributes && !m_hasAttributes)
        GTEST_SKIP() << "no attributes on this file system";
    copy();
    ASSERT_EQ(verify(), "");
    // The times stay as they were, so that nothing else tells of the damage.
    const std::string command = "cd '" + path("copy") +
                                "' && keep() { find . -exec touch -hr ../source/{} {} ';'; } && " +
                                GetParam().command + " && cd ../copy && keep 2>/dev/null; true";
    ASSERT_EQ(std::system(command.c_str()), 0); // NOLINT(cert-env33-c)
    EXPECT_THAT(verify(), EndsWith(GetParam().told));
}

INSTANTIATE_TEST_SUITE_P(
    Damages, DamageTest,
    ::testing::Values(
        DamageRow{"aByteChanged",
                  "printf X | dd of=Contents/program bs=1 seek=150000 conv=notrunc 2>/dev/null",
                  "copy/Contents/program: its content is not that of the original"},
        DamageRow{"theEndIsMissing", "truncate -s 199999 Contents/program",
                  "copy/Contents/program: its size is not that of the original"},
        DamageRow{"somethingWasAppended", "echo >>Contents/empty",
                  "copy/Contents/empty: its size is not that of the original"},
        DamageRow{"aFileIsMissing", "rm Contents/text",
                  "copy/Contents/text: No such file or directory"},
        DamageRow{"aFolderIsMissing", "rm -r folder", "copy/folder: No such file or directory"},
        DamageRow{"somethingWasAdded", "echo >Contents/more",
                  "copy/Contents/more: its name is not that of the original"},
        DamageRow{"aFileBecameAFolder", "rm Contents/text && mkdir Contents/text",
                  "copy/Contents/text: its kind is not that of the original"},
        DamageRow{"aFolderBecameALink", "mv folder ../other && ln -s ../other folder",
                  "copy/folder: Not a directory"},
        DamageRow{"aLinkLeadsElsewhere", "ln -sfn Contenta Current",
                  "copy/Current: its text is not that of the original"},
        DamageRow{"theModeOfAFileChanged", "chmod 0744 Contents/program",
                  "copy/Contents/program: its mode is not that of the original"},
        DamageRow{"theModeOfAFolderChanged", "chmod 0700 folder",
                  "copy/folder: its mode is not that of the original"},
        DamageRow{"rightsWereLent", "chmod u+s Contents/program",
                  "copy/Contents/program: its mode is not that of the original"},
        DamageRow{"twoNamesBecameTwoFiles", "cp one new && mv -f new folder/two",
                  ": its file is not that of the original"},
        DamageRow{"anAttributeChanged", "setfattr -n user.note -v other Contents/text",
                  "copy/Contents/text: its attribute user.note is not that of the original", true}),
    [](const auto &row) { return row.param.reason; });

} // namespace
} // namespace zt
