// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The Trash on real volumes, mounted where only the test sees them, and beside the desktop's own
// tool.

#include "Platform/linux/FreedesktopTrash.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <string>

namespace zt::testing {
namespace {

class TrashVolumesTest : public ::testing::Test {
protected:
    TrashVolumesTest() { m_world.makeFolder("volume"); }

    // With a volume in memory at "volume"; the body answers what is wrong.
    std::string onVolumeInMemory(const std::function<std::string()> &body) const {
        return withPrivateMounts([&]() -> std::string {
            if (::mount("tmpfs", m_world.path("volume").c_str(), "tmpfs", 0, "size=4m,mode=755") !=
                0)
                return cannotMount;
            return body();
        });
    }

    // With a file system in a file at "volume".
    std::string onVolumeInFile(const std::function<std::string()> &body) const {
        return withPrivateMounts([&]() -> std::string {
            const std::string image = m_world.makeFile("image");
            if (::truncate(image.c_str(), 16L << 20) != 0 || !runQuietly("mkfs.ext4 -q " + image) ||
                !runQuietly("mount -o loop " + image + ' ' + m_world.path("volume")))
                return cannotMount;
            return body();
        });
    }

    FreedesktopTrash makeTrash() const {
        return FreedesktopTrash({.dataHome = m_world.path("home"), .user = ::geteuid()});
    }

    std::string trashOfVolume() const {
        return m_world.path("volume/.Trash-" + std::to_string(::geteuid()));
    }

    // The origin that a record tells, as it stands there.
    static std::string originIn(const std::string &record) {
        const std::string text = contentOf(record);
        const std::size_t begin = text.find("Path=") + 5;
        return text.substr(begin, text.find('\n', begin) - begin);
    }

    TemporaryFolder m_world;
};

// Characters of every kind of treatment.
constexpr const char *oddName = "a b%25+\xC3\xBC'(x)!~*;,&=@:$#?[].txt";

TEST_F(TrashVolumesTest, anItemStaysOnItsVolume) {
    const std::string outcome = onVolumeInMemory([&]() -> std::string {
        const std::string file = m_world.makeFile("volume/apps/file", "x");
        const Result<std::string> moved = makeTrash().moveToTrash(file);
        if (!moved)
            return moved.error().text();
        if (*moved != trashOfVolume() + "/files/file" || contentOf(*moved) != "x")
            return *moved;
        return originIn(trashOfVolume() + "/info/file.trashinfo");
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "apps/file");
}

TEST_F(TrashVolumesTest, aReadOnlyVolumeKeepsItsItem) {
    const std::string outcome = onVolumeInMemory([&]() -> std::string {
        const std::string file = m_world.makeFile("volume/file", "kept");
        const unsigned long readOnly = MS_REMOUNT | MS_RDONLY;
        if (::mount("tmpfs", m_world.path("volume").c_str(), "tmpfs", readOnly, nullptr) != 0)
            return cannotMount;
        const Result<std::string> moved = makeTrash().moveToTrash(file);
        if (moved)
            return "it was moved";
        return contentOf(file) + ' ' + std::to_string(moved.error().code == EROFS);
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "kept 1");
    EXPECT_FALSE(itemExists(m_world.path("home/Trash/files/file")));
}

TEST_F(TrashVolumesTest, anItemOfAVolumeWhoseTrashIsAnotherUsersIsCopiedHome) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's folder";
    const std::string outcome = onVolumeInMemory([&]() -> std::string {
        const std::string file = m_world.makeFile("volume/apps/file", "x");
        ::mkdir(trashOfVolume().c_str(), 0700);
        if (::chown(trashOfVolume().c_str(), 1234, 1234) != 0)
            return "cannot give the folder away";
        const Result<std::string> moved = makeTrash().moveToTrash(file);
        if (!moved)
            return moved.error().text();
        return itemExists(file) || contentOf(*moved) != "x" ? "not moved" : *moved;
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, m_world.path("home/Trash/files/file"));
}

TEST_F(TrashVolumesTest, aMountedVolumeItselfIsNoItem) {
    const std::string outcome = onVolumeInMemory([&]() -> std::string {
        m_world.makeFile("volume/file");
        const Result<std::string> moved = makeTrash().moveToTrash(m_world.path("volume"));
        return moved ? "it was moved" : std::to_string(moved.error().code == EBUSY);
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "1");
    EXPECT_THAT(namesIn(m_world.path("home/Trash/info")), ::testing::IsEmpty());
}

TEST_F(TrashVolumesTest, theRecordOnAVolumeIsTheOneThatTheDesktopWrites) {
    if (!runQuietly("gio --version"))
        GTEST_SKIP() << "the desktop's tool is not installed";
    const std::string outcome = onVolumeInFile([&]() -> std::string {
        const std::string ours = m_world.makeFile(std::string("volume/apps/") + oddName);
        const Result<std::string> moved = makeTrash().moveToTrash(ours);
        const std::string ourOrigin = originIn(trashOfVolume() + "/info/" + oddName + ".trashinfo");
        if (!moved || !runQuietly("rm -r '" + trashOfVolume() + "'"))
            return "not moved";
        m_world.makeFile(std::string("volume/apps/") + oddName);
        if (!runQuietly("gio trash " + m_world.path("volume/apps/") + "*"))
            return "the desktop's tool failed";
        for (const std::string &name : namesIn(trashOfVolume() + "/info")) {
            const std::string theirs = originIn(trashOfVolume() + "/info/" + name);
            if (theirs != ourOrigin)
                return std::string(theirs).append(" is not ").append(ourOrigin);
        }
        return std::to_string(namesIn(trashOfVolume() + "/info").size());
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "1");
}

TEST_F(TrashVolumesTest, theRecordAtHomeIsTheOneThatTheDesktopWrites) {
    if (!runQuietly("gio --version"))
        GTEST_SKIP() << "the desktop's tool is not installed";
    FreedesktopTrash trash({.dataHome = m_world.path("ours"), .user = ::geteuid()});
    ASSERT_TRUE(trash.moveToTrash(m_world.makeFile(std::string("apps/") + oddName)));
    m_world.makeFile(std::string("apps/") + oddName);
    m_world.makeFolder("theirs");
    ASSERT_TRUE(runQuietly("XDG_DATA_HOME=" + m_world.path("theirs") + " gio trash " +
                           m_world.path("apps/") + "*"));
    const std::string record = std::string("/Trash/info/") + oddName + ".trashinfo";
    EXPECT_EQ(originIn(m_world.path("ours") + record), originIn(m_world.path("theirs") + record));
}

} // namespace
} // namespace zt::testing
