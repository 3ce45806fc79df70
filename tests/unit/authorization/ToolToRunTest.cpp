// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ToolToRun.h"

#include "tests/unit/copy/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace zt {
namespace {

constexpr uid_t somebodyElse = 4711;

class ToolToRunTest : public ::testing::Test {
protected:
    ToolToRunTest() {
        ::chmod(folder.path().c_str(), 0755);
        ::setenv("XDG_RUNTIME_DIR", places.path().c_str(), 1);
    }

    static std::string contentOf(const std::string &path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    ::zt::testing::TemporaryFolder folder;
    ::zt::testing::TemporaryFolder places;
    const std::string tool = folder.makeFile("bundle/train", "the tool", 0755);
};

TEST_F(ToolToRunTest, whereNobodyElseCanWriteItRunsInPlace) {
    const auto prepared = ToolToRun::prepare(tool);
    ASSERT_TRUE(prepared) << prepared.error().text();
    EXPECT_EQ(prepared->path(), fs::canonical(tool));
    EXPECT_FALSE(prepared->isCopy());
}

TEST_F(ToolToRunTest, aLinkToItIsReplacedByThePlaceItself) {
    const std::string link = folder.makeLink("link", folder.path("bundle"));
    const auto prepared = ToolToRun::prepare(link + "/train");
    ASSERT_TRUE(prepared);
    EXPECT_EQ(prepared->path(), fs::canonical(tool));
}

TEST_F(ToolToRunTest, aCopyIsThisUsersAloneAndGoesWithItsOwner) {
    ::chmod(tool.c_str(), 0777);
    std::string path;
    {
        const auto prepared = ToolToRun::prepare(tool);
        ASSERT_TRUE(prepared) << prepared.error().text();
        ASSERT_TRUE(prepared->isCopy());
        path = prepared->path();
        EXPECT_EQ(contentOf(path), "the tool");
        EXPECT_TRUE(isSafeWhereItLies(path));
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
        EXPECT_EQ(fs::path(path).parent_path().parent_path(), places.path());
    }
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::is_empty(places.path()));
}

TEST_F(ToolToRunTest, aCopyOutlivesBeingMoved) {
    ::chmod(tool.c_str(), 0777);
    auto first = ToolToRun::prepare(tool);
    ASSERT_TRUE(first);
    const ToolToRun second = *std::move(first);
    EXPECT_EQ(contentOf(second.path()), "the tool");
}

TEST_F(ToolToRunTest, aMissingToolIsAnError) {
    const auto prepared = ToolToRun::prepare(folder.path("missing"));
    ASSERT_FALSE(prepared);
    EXPECT_EQ(prepared.error().code, ENOENT);
}

TEST_F(ToolToRunTest, aFolderIsNotSafeToRun) {
    EXPECT_FALSE(isSafeWhereItLies(folder.path("bundle")));
}

struct Row {
    const char *reason;
    const char *item; // in the folder
    mode_t mode;
    bool isSafe;
};

void PrintTo(const Row &row, std::ostream *out) {
    *out << row.reason;
}

class PlaceTest : public ToolToRunTest, public ::testing::WithParamInterface<Row> {};

TEST_P(PlaceTest, isSafeOnlyWhenNobodyElseCanExchangeTheTool) {
    const Row &row = GetParam();
    ASSERT_EQ(::chmod(folder.path(row.item).c_str(), row.mode), 0);
    EXPECT_EQ(isSafeWhereItLies(tool), row.isSafe);
    ::chmod(folder.path(row.item).c_str(), 0755);
}

INSTANTIATE_TEST_SUITE_P(Modes, PlaceTest,
                         ::testing::Values(Row{"asUsual", "bundle/train", 0755, true},
                                           Row{"toolOfAllToWrite", "bundle/train", 0757, false},
                                           Row{"toolOfTheGroupToWrite", "bundle/train", 0775,
                                               false},
                                           Row{"folderOfAllToWrite", "bundle", 0777, false},
                                           Row{"folderOfTheGroupToWrite", "bundle", 0775, false},
                                           Row{"folderOfAllButSticky", "bundle", 01777, true},
                                           Row{"folderAboveOfAllToWrite", ".", 0777, false},
                                           Row{"folderAboveButSticky", ".", 01777, true}),
                         [](const auto &row) { return row.param.reason; });

TEST_F(ToolToRunTest, whatBelongsToSomebodyElseIsNotSafe) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    ASSERT_EQ(::chown(folder.path("bundle").c_str(), somebodyElse, somebodyElse), 0);
    EXPECT_FALSE(isSafeWhereItLies(tool));
    ASSERT_EQ(::chown(folder.path("bundle").c_str(), 0, 0), 0);
    ASSERT_EQ(::chown(tool.c_str(), somebodyElse, somebodyElse), 0);
    EXPECT_FALSE(isSafeWhereItLies(tool));
}

} // namespace
} // namespace zt
