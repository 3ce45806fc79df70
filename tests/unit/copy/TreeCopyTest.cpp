// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeCopy.h"

#include "Platform/posix/SystemCalls.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TemporaryFolder.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace zt {
namespace {

using testing::contentOf;
using testing::describeTree;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::itemExists;
using testing::namesIn;
using testing::TemporaryFolder;

std::string textOf(std::size_t size) {
    return std::string(size, 'x');
}

class TreeCopyTest : public ::testing::Test {
protected:
    TreeCopyRequest request() const {
        return {.source = {AT_FDCWD, m_world.path("source"), m_world.path("source")},
                .target = {AT_FDCWD, m_world.path("target"), m_world.path("target")},
                .stop = {},
                .progress = {},
                .note = {}};
    }

    Result<void> copy() const { return copyTree(request()); }

    TemporaryFolder m_world;
};

TEST_F(TreeCopyTest, aTreeOfEverythingIsCopiedAlike) {
    m_world.makeFile("source/Contents/Info.plist", "<plist/>");
    m_world.makeFile("source/Contents/Linux/Product", std::string(70'000, 'x'), 0755);
    m_world.makeFile("source/Contents/large", textOf(3'000'000), 0640);
    m_world.makeFile("source/Contents/empty");
    m_world.makeFile("source/.hidden", "h", 0600);
    m_world.makeLink("source/Current", "Contents/Linux");
    m_world.makeLink("source/dangling", "/nowhere/at all");
    m_world.makeFolder("source/a/b/c/d/e");
    for (int i = 0; i < 300; ++i)
        m_world.makeFile("source/many/" + std::to_string(i), std::to_string(i));
    const Result<void> copied = copy();
    ASSERT_TRUE(copied) << copied.error().text();
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
    EXPECT_THAT(namesIn(m_world.path()), ElementsAre("source", "target"));
}

TEST_F(TreeCopyTest, aSingleFileIsCopied) {
    m_world.makeFile("source", "content", 0751);
    ASSERT_TRUE(copy());
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
}

TEST_F(TreeCopyTest, aLinkIsCopiedItself) {
    m_world.makeLink("source", "elsewhere");
    ASSERT_TRUE(copy());
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
}

TEST_F(TreeCopyTest, aLinkToAFolderAboveIsNotFollowed) {
    m_world.makeLink("source/a/up", "../..");
    ASSERT_TRUE(copy());
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
}

TEST_F(TreeCopyTest, aLinkOfTheLongestTextIsCopied) {
    m_world.makeLink("source/link", std::string(4095, 't'));
    ASSERT_TRUE(copy());
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
}

TEST_F(TreeCopyTest, namesOfAnyBytesAreKept) {
    m_world.makeFile("source/a\xFF\xFE\n\x01", "1");
    m_world.makeFile("source/" + std::string(255, '\xC3'), "2");
    m_world.makeFile("source/ leading and trailing ", "3");
    m_world.makeFile("source/-rf", "4");
    ASSERT_TRUE(copy());
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
}

TEST_F(TreeCopyTest, aMissingSourceIsAnErrorThatNamesIt) {
    const Result<void> copied = copy();
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, ENOENT);
    EXPECT_EQ(copied.error().object, m_world.path("source"));
}

TEST_F(TreeCopyTest, anExistingTargetIsNotTouched) {
    m_world.makeFile("source", "new");
    m_world.makeFile("target", "old");
    const Result<void> copied = copy();
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, EEXIST);
    EXPECT_EQ(contentOf(m_world.path("target")), "old");
}

TEST_F(TreeCopyTest, aPipeIsRefusedByName) {
    m_world.makeFolder("source/a");
    ASSERT_EQ(::mkfifo(m_world.path("source/a/pipe").c_str(), 0644), 0);
    const Result<void> copied = copy();
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().text(), "copy " + m_world.path("source/a/pipe") +
                                         ": it is neither a file nor a folder nor a link");
}

TEST_F(TreeCopyTest, aSocketIsRefused) {
    m_world.makeFolder("source");
    const UniqueFd folder = openAt(AT_FDCWD, m_world.path("source").c_str(), O_RDONLY);
    const UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const std::string path = "/proc/self/fd/" + std::to_string(folder.get()) + "/socket";
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address),
              0);
    EXPECT_FALSE(copy());
}

TEST_F(TreeCopyTest, anUnreadableFileIsAnErrorThatNamesIt) {
    m_world.makeFile("source/secret", "s", 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    const std::string error = testing::asOrdinaryUser([&] {
        const Result<void> copied = copy();
        return copied ? std::string("no error") : copied.error().text();
    });
    EXPECT_EQ(error, "open " + m_world.path("source/secret") + ": Permission denied");
}

TEST_F(TreeCopyTest, anUnreadableFolderIsAnErrorThatNamesIt) {
    m_world.makeFolder("source/closed");
    ASSERT_EQ(::chmod(m_world.path("source/closed").c_str(), 0), 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    const std::string error = testing::asOrdinaryUser([&] {
        const Result<void> copied = copy();
        return copied ? std::string("no error") : copied.error().text();
    });
    EXPECT_EQ(error, "open " + m_world.path("source/closed") + ": Permission denied");
}

TEST_F(TreeCopyTest, aFileThatGrowsMeanwhileIsAnError) {
    const std::string file = m_world.makeFile("source/log", textOf(20'000'000));
    TreeCopyRequest growing = request();
    growing.progress = [&](const CopyProgress &) { std::ofstream(file, std::ios::app) << "more"; };
    const Result<void> copied = copyTree(growing);
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().text(), "read " + file + ": it changed while it was read");
}

TEST_F(TreeCopyTest, aFileThatShrinksMeanwhileIsAnError) {
    const std::string file = m_world.makeFile("source/log", textOf(20'000'000));
    TreeCopyRequest shrinking = request();
    shrinking.progress = [&](const CopyProgress &) { std::filesystem::resize_file(file, 10); };
    const Result<void> copied = copyTree(shrinking);
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, ESTALE);
}

TEST_F(TreeCopyTest, filesThatVanishMeanwhileAreAnError) {
    for (int i = 0; i < 2000; ++i)
        m_world.makeFile("source/" + std::to_string(i), "x");
    TreeCopyRequest vanishing = request();
    vanishing.progress = [&](const CopyProgress &) {
        for (const auto &entry : std::filesystem::directory_iterator(m_world.path("source")))
            std::filesystem::remove(entry.path());
    };
    EXPECT_FALSE(copyTree(vanishing));
}

TEST_F(TreeCopyTest, progressGrowsToAllBytes) {
    for (int i = 0; i < 200; ++i) {
        m_world.makeFile("source/" + std::to_string(i % 7) + '/' + std::to_string(i),
                         std::string(static_cast<std::size_t>(i) * 100, 'x'));
    }
    std::filesystem::create_hard_link(m_world.path("source/1/1"), m_world.path("source/second"));
    std::vector<CopyProgress> told;
    TreeCopyRequest watched = request();
    watched.progress = [&](const CopyProgress &progress) { told.push_back(progress); };
    ASSERT_TRUE(copyTree(watched));
    ASSERT_THAT(told, ::testing::Not(IsEmpty()));
    std::uint64_t last = 0;
    for (const CopyProgress &progress : told) {
        EXPECT_EQ(progress.bytesInAll, 199U * 200U / 2U * 100U + 100U);
        EXPECT_GE(progress.bytesDone, last);
        EXPECT_LE(progress.bytesDone, progress.bytesInAll);
        last = progress.bytesDone;
    }
    EXPECT_EQ(last, told.back().bytesInAll);
}

TEST_F(TreeCopyTest, aStopRequestEndsTheCopyWithinALargeFile) {
    m_world.makeFile("source/large", textOf(40'000'000));
    std::stop_source stopping;
    TreeCopyRequest stopped = request();
    stopped.stop = stopping.get_token();
    stopped.progress = [&](const CopyProgress &) { stopping.request_stop(); };
    const Result<void> copied = copyTree(stopped);
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, ECANCELED);
    struct stat status = {};
    ASSERT_EQ(::stat(m_world.path("target/large").c_str(), &status), 0);
    EXPECT_LT(status.st_size, 40'000'000);
}

TEST_F(TreeCopyTest, aStopRequestEndsTheCopyBetweenFiles) {
    for (int i = 0; i < 3000; ++i)
        m_world.makeFile("source/" + std::to_string(i), "x");
    std::stop_source stopping;
    TreeCopyRequest stopped = request();
    stopped.stop = stopping.get_token();
    stopped.progress = [&](const CopyProgress &) { stopping.request_stop(); };
    const Result<void> copied = copyTree(stopped);
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, ECANCELED);
    EXPECT_LT(namesIn(m_world.path("target")).size(), 3000U);
}

// Makes a chain of folders with a file in each; far longer than a path can be.
void makeDeepTree(const std::string &root, const std::string &name, int depth) {
    std::filesystem::create_directory(root);
    UniqueFd current = openAt(AT_FDCWD, root.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < depth; ++i) {
        ASSERT_EQ(::mkdirat(current.get(), name.c_str(), 0750), 0);
        const UniqueFd file = openAt(current.get(), "file", O_WRONLY | O_CREAT, 0640);
        ASSERT_TRUE(writeFully(file.get(), std::to_string(i)));
        current = openAt(current.get(), name.c_str(), O_RDONLY | O_DIRECTORY);
        ASSERT_TRUE(current);
    }
}

// How many levels have the right file and folder.
int depthOfGoodTree(const std::string &root, const std::string &name) {
    UniqueFd current = openAt(AT_FDCWD, root.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0;; ++i) {
        const std::optional<struct stat> status = statusAt(current.get(), name.c_str());
        if (!status || (status->st_mode & 07777U) != 0750)
            return i;
        const UniqueFd file = openAt(current.get(), "file", O_RDONLY);
        std::string content(16, '\0');
        const ssize_t size = readFully(file.get(), content.data(), content.size());
        if (size < 0 || content.substr(0, static_cast<std::size_t>(size)) != std::to_string(i))
            return i;
        current = openAt(current.get(), name.c_str(), O_RDONLY | O_DIRECTORY);
    }
}

TEST_F(TreeCopyTest, aTreeDeeperThanAnyPathIsCopied) {
    const std::string name(200, 'd');
    makeDeepTree(m_world.path("source"), name, 500);
    const Result<void> copied = copy();
    ASSERT_TRUE(copied) << copied.error().cause;
    EXPECT_EQ(depthOfGoodTree(m_world.path("target"), name), 500);
}

TEST_F(TreeCopyTest, aDeepTreeIsCopiedWithFewDescriptors) {
    makeDeepTree(m_world.path("source"), "d", 300);
    const std::string error = testing::inChildProcess([&]() -> std::string {
        const rlimit limit = {48, 48};
        ::setrlimit(RLIMIT_NOFILE, &limit);
        const Result<void> copied = copy();
        return copied ? "" : copied.error().text();
    });
    EXPECT_EQ(error, "");
    EXPECT_EQ(depthOfGoodTree(m_world.path("target"), "d"), 300);
}

TEST_F(TreeCopyTest, aFolderOfManyEntriesIsCopied) {
    m_world.makeFolder("source/folder");
    const UniqueFd folder = openAt(AT_FDCWD, m_world.path("source/folder").c_str(), O_RDONLY);
    for (int i = 0; i < 5000; ++i) {
        const std::string name = std::to_string(i);
        if (i % 5 == 0) {
            ASSERT_EQ(::mkdirat(folder.get(), name.c_str(), 0755), 0);
        } else {
            ASSERT_TRUE(openAt(folder.get(), name.c_str(), O_WRONLY | O_CREAT, 0644));
        }
    }
    ASSERT_TRUE(copy());
    EXPECT_EQ(namesIn(m_world.path("target/folder")), namesIn(m_world.path("source/folder")));
}

TEST_F(TreeCopyTest, aTreeThatIsBroadAndDeepIsCopied) {
    for (int i = 0; i < 6; ++i) {
        for (int j = 0; j < 6; ++j) {
            for (int k = 0; k < 6; ++k) {
                const std::string folder = "source/" + std::to_string(i) + '/' + std::to_string(j) +
                                           '/' + std::to_string(k);
                m_world.makeFile(folder + "/one", folder);
                m_world.makeFile(folder + "/two", folder);
            }
        }
    }
    ASSERT_TRUE(copy());
    EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
}

} // namespace
} // namespace zt
