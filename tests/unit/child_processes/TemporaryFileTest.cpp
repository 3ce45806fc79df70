// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The file that a script's output is collected in.

#include "tests/unit/child_processes/ShellFixture.h"
#include "tests/unit/copy/ChildProcess.h"

#include <gmock/gmock.h>

#include <sys/mount.h>

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class TemporaryFileTest : public ShellFixture {
protected:
    std::string run(const QString &path) const {
        return ZTUtilities::runShellScript(path, std::nullopt, endless)
            .value_or(u"none: "_s + fakes.log.lines().join(u'\n'))
            .toStdString();
    }

    // Runs the script with a file system of its own for temporary files, made with these options.
    std::string runWithVolume(const QString &path, const char *options, unsigned long flags) const {
        return zt::testing::withPrivateMounts([&]() -> std::string {
            const std::string volume = folder.path("temporary");
            if (::mount("tmpfs", volume.c_str(), "tmpfs", flags, options) != 0)
                return "cannot mount";
            return run(path);
        });
    }
};

} // namespace

TEST_F(TemporaryFileTest, onlyThisUserMayReadIt) {
    EXPECT_EQ(run(script("stat -L -c %a /proc/self/fd/1")), "600\n");
}

TEST_F(TemporaryFileTest, itLiesInTheFolderForTemporaryFiles) {
    EXPECT_THAT(run(script("ls $TMPDIR")), HasSubstr("velmora-"));
    EXPECT_THAT(temporaryFiles(), IsEmpty());
}

TEST_F(TemporaryFileTest, twoScriptsHaveFilesOfDifferentNames) {
    const QString path = script("ls $TMPDIR");
    EXPECT_NE(run(path), run(path));
}

TEST_F(TemporaryFileTest, itStaysWhenTheScriptCannotBeRun) {
    run(u"/missing/tool"_s);
    ASSERT_THAT(temporaryFiles(), SizeIs(1));
    EXPECT_EQ(zt::testing::contentOf(folder.path("temporary/" + temporaryFiles()[0])), "");
}

TEST_F(TemporaryFileTest, aScriptMayOpenItsOutputAnew) {
    // The shell empties the file then, as it does with any; nothing is written into its middle.
    EXPECT_EQ(run(script("echo a longer line; echo two >/dev/stderr; echo three")), "two\nthree\n");
}

TEST_F(TemporaryFileTest, aScriptMayRemoveIt) {
    EXPECT_EQ(run(script("echo one; rm $TMPDIR/velmora-*; echo two")), "one\ntwo\n");
}

TEST_F(TemporaryFileTest, itMayGrowTooLargeToRead) {
    EXPECT_THAT(run(script("truncate -s 100G /dev/stdout")),
                testing::MatchesRegex("none: error getting result: read .*: File too large"));
    EXPECT_THAT(temporaryFiles(), IsEmpty());
}

TEST_F(TemporaryFileTest, aFolderThatIsMissingIsReplacedByTheSystems) {
    const zt::testing::ScopedEnvironment missing("TMPDIR", folder.path("nowhere"));
    EXPECT_EQ(run(script("echo hi")), "hi\n");
}

TEST_F(TemporaryFileTest, inAFolderThatCannotBeWrittenToNoScriptIsRun) {
    const std::string answer = runWithVolume(script("echo hi"), "", MS_RDONLY);
    if (answer == zt::testing::cannotMount)
        GTEST_SKIP() << answer;
    EXPECT_THAT(answer, HasSubstr("script tool failed: make temporary file "));
    EXPECT_THAT(answer, HasSubstr(": Read-only file system"));
}

TEST_F(TemporaryFileTest, inAFolderWithoutRoomForAFileNoScriptIsRun) {
    const std::string answer = runWithVolume(script("echo hi"), "nr_inodes=1", 0);
    if (answer == zt::testing::cannotMount)
        GTEST_SKIP() << answer;
    EXPECT_THAT(answer, HasSubstr(": No space left on device"));
}

TEST_F(TemporaryFileTest, whatStillFitsIntoAFullFolderIsTheAnswer) {
    const QString path = script("head -c 100000 /dev/zero | tr '\\0' x 2>/dev/null || exit 1");
    const std::string answer = runWithVolume(path, "size=8k", 0);
    if (answer == zt::testing::cannotMount)
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, std::string(8192, 'x'));
}
