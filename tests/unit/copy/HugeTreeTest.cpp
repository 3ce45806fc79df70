// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Trees so large that making them takes a while.

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeCopy.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <limits>
#include <string>

namespace zt::testing {
namespace {

// Kibibytes. The sanitizers need memory of their own.
#ifdef VELMORA_SANITIZED
constexpr long littleMemory = std::numeric_limits<long>::max();
#else
constexpr long littleMemory = 32 * 1024;
#endif

class HugeTreeTest : public ::testing::Test {
protected:
    // Copies in a process of its own and answers its errors, and whether it took too much memory.
    std::string copyInLittleMemory() const {
        return inChildProcess([&]() -> std::string {
            const Result<void> copied =
                copyTree({.source = {AT_FDCWD, m_world.path("source"), m_world.path("source")},
                          .target = {AT_FDCWD, m_world.path("target"), m_world.path("target")}});
            if (!copied)
                return copied.error().text();
            rusage usage = {};
            ::getrusage(RUSAGE_SELF, &usage);
            return usage.ru_maxrss <= littleMemory ? "" : std::to_string(usage.ru_maxrss) + " KiB";
        });
    }

    UniqueFd openFolder(const std::string &name) const {
        return openAt(AT_FDCWD, m_world.makeFolder(name).c_str(), O_RDONLY | O_DIRECTORY);
    }

    TemporaryFolder m_world{fastTemporaryParent()};
};

TEST_F(HugeTreeTest, aFolderOfAHundredThousandLongNamesIsCopied) {
    const UniqueFd folder = openFolder("source/folder");
    for (int i = 0; i < 100'000; ++i) {
        const std::string name = std::string(200, 'n') + std::to_string(i);
        ASSERT_TRUE(openAt(folder.get(), name.c_str(), O_WRONLY | O_CREAT, 0644));
    }
    EXPECT_EQ(copyInLittleMemory(), "");
    EXPECT_EQ(namesIn(m_world.path("target/folder")).size(), 100'000U);
}

TEST_F(HugeTreeTest, aHundredThousandFoldersAreCopied) {
    for (int i = 0; i < 10; ++i) {
        const UniqueFd folder = openFolder("source/" + std::to_string(i));
        for (int j = 0; j < 10'000; ++j)
            ASSERT_EQ(::mkdirat(folder.get(), std::to_string(j).c_str(), 0755), 0);
    }
    EXPECT_EQ(copyInLittleMemory(), "");
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(namesIn(m_world.path("target/" + std::to_string(i))).size(), 10'000U);
}

TEST_F(HugeTreeTest, aHundredThousandFilesWithTwoNamesAreCopied) {
    const UniqueFd first = openFolder("source/first");
    const UniqueFd second = openFolder("source/second");
    for (int i = 0; i < 100'000; ++i) {
        const std::string name = std::to_string(i);
        ASSERT_TRUE(openAt(first.get(), name.c_str(), O_WRONLY | O_CREAT, 0644));
        ASSERT_EQ(::linkat(first.get(), name.c_str(), second.get(), name.c_str(), 0), 0);
    }
    EXPECT_EQ(copyInLittleMemory(), "");
    struct stat status = {};
    ASSERT_EQ(::stat(m_world.path("target/second/99999").c_str(), &status), 0);
    EXPECT_EQ(status.st_nlink, 2U);
}

TEST_F(HugeTreeTest, aTreeOfTwentyThousandLevelsIsCopied) {
    UniqueFd current = openFolder("source");
    for (int i = 0; i < 20'000; ++i) {
        ASSERT_EQ(::mkdirat(current.get(), "d", 0755), 0);
        current = openAt(current.get(), "d", O_RDONLY | O_DIRECTORY);
    }
    EXPECT_EQ(copyInLittleMemory(), "");
    current = openFolder("target");
    int depth = 0;
    while (UniqueFd next = openAt(current.get(), "d", O_RDONLY | O_DIRECTORY)) {
        current = std::move(next);
        ++depth;
    }
    EXPECT_EQ(depth, 20'000);
}

} // namespace
} // namespace zt::testing
