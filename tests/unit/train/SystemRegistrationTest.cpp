// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/SystemRegistration.h"

#include "Platform/posix/SystemCalls.h"

#include "tests/unit/copy/TemporaryFolder.h"
#include "tests/unit/registration/SampleRecord.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace zt {
namespace {

class SystemRegistrationTest : public ::testing::Test {
protected:
    SystemRegistrationTest() {
        folder.makeFile("Notes.app/Contents/Linux/Notes", "program");
        record.bundlePath = destination;
    }

    Result<ApplicationRecord> check() const {
        return checkPreparedRecord(packedRecord(record), destination);
    }

    ::zt::testing::TemporaryFolder folder;
    const std::string destination = folder.path("Notes.app");
    ApplicationRecord record = sampleRecord();
};

TEST_F(SystemRegistrationTest, theProductsOwnRecordIsTaken) {
    const auto taken = check();
    ASSERT_TRUE(taken) << taken.error().text();
    EXPECT_EQ(taken->executable, "Contents/Linux/Notes");
}

TEST_F(SystemRegistrationTest, theRecordOfAnotherPlaceIsRefused) {
    record.bundlePath = folder.path("Other.app");
    EXPECT_FALSE(check());
}

TEST_F(SystemRegistrationTest, aProgramThatIsNotThereIsRefused) {
    record.executable = "Contents/Linux/Other";
    EXPECT_FALSE(check());
}

TEST_F(SystemRegistrationTest, aProgramThatIsAFolderIsRefused) {
    record.executable = "Contents/Linux";
    EXPECT_FALSE(check());
}

TEST_F(SystemRegistrationTest, aProgramBehindALinkIsRefused) {
    folder.makeLink("Notes.app/Contents/Linux/Link", "/bin/true");
    record.executable = "Contents/Linux/Link";
    EXPECT_FALSE(check());
    folder.makeLink("Notes.app/bin", "/bin");
    record.executable = "bin/true";
    EXPECT_FALSE(check());
}

TEST_F(SystemRegistrationTest, garbageIsRefused) {
    EXPECT_FALSE(checkPreparedRecord("garbage", destination));
    EXPECT_FALSE(checkPreparedRecord(packedRecord(record) + "!", destination));
}

class PreparedRecordTest : public ::testing::Test {
protected:
    PreparedRecordTest() {
        int ends[2] = {-1, -1};
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        reader = UniqueFd(ends[0]);
        writer = UniqueFd(ends[1]);
    }

    UniqueFd reader;
    UniqueFd writer;
};

TEST_F(PreparedRecordTest, isReadToItsEnd) {
    ASSERT_TRUE(writeFully(writer.get(), "one "));
    ASSERT_TRUE(writeFully(writer.get(), "two"));
    writer.reset();
    const auto bytes = readPreparedRecord(reader.get());
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, "one two");
}

TEST_F(PreparedRecordTest, mayBeMissing) {
    writer.reset();
    const auto bytes = readPreparedRecord(reader.get());
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, "");
    const UniqueFd nothing = openAt(AT_FDCWD, "/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(*readPreparedRecord(nothing.get()), "");
}

TEST_F(PreparedRecordTest, thatIsEndlessIsRefused) {
    const UniqueFd endless = openAt(AT_FDCWD, "/dev/zero", O_RDONLY | O_CLOEXEC);
    EXPECT_FALSE(readPreparedRecord(endless.get()));
}

TEST_F(PreparedRecordTest, thatCannotBeReadIsRefused) {
    const UniqueFd folder = openAt(AT_FDCWD, "/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_FALSE(readPreparedRecord(folder.get()));
}

} // namespace
} // namespace zt
