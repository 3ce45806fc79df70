// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/TrainArguments.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <string>
#include <vector>

namespace zt {
namespace {

struct PathRow {
    const char *reason;
    std::string path;
    bool isCanonical;
};

void PrintTo(const PathRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class CanonicalPathTest : public ::testing::TestWithParam<PathRow> {};

TEST_P(CanonicalPathTest, aPathHasOneSpelling) {
    EXPECT_EQ(isCanonicalPath(GetParam().path), GetParam().isCanonical);
}

// A path of components of 100 bytes each, that is so long in all.
std::string pathOfLength(std::size_t length) {
    std::string path;
    while (path.size() < length)
        path += '/' + std::string(99, 'n');
    path.resize(length);
    return path;
}

INSTANTIATE_TEST_SUITE_P(
    Paths, CanonicalPathTest,
    ::testing::Values(
        PathRow{"usual", "/Applications/Product.app", true}, PathRow{"oneComponent", "/a", true},
        PathRow{"dotsInNames", "/..a/.b/c..", true},
        PathRow{"blanksAndControls", "/a b/c\nd\x01", true},
        PathRow{"bytesThatAreNoText", "/a\xFF\xC0", true}, PathRow{"empty", "", false},
        PathRow{"root", "/", false}, PathRow{"relative", "Applications/Product.app", false},
        PathRow{"relativeWithDot", "./a", false}, PathRow{"dot", "/a/./b", false},
        PathRow{"dotAtTheEnd", "/a/.", false}, PathRow{"dots", "/a/../b", false},
        PathRow{"dotsAtTheEnd", "/a/..", false}, PathRow{"dotsAtTheStart", "/../a", false},
        PathRow{"emptyComponent", "/a//b", false}, PathRow{"twoSlashesFirst", "//a", false},
        PathRow{"slashAtTheEnd", "/a/", false}, PathRow{"nul", std::string("/a\0b", 4), false},
        PathRow{"longestComponent", '/' + std::string(NAME_MAX, 'n'), true},
        PathRow{"overlongComponent", '/' + std::string(NAME_MAX + 1, 'n'), false},
        PathRow{"longest", pathOfLength(PATH_MAX - 2), true},
        PathRow{"overlong", pathOfLength(PATH_MAX + 2), false}));

TEST(TrainArgumentsTest, twoPathsAreSourceAndDestination) {
    const Result<InstallPaths> paths = readTrainArguments({"/m/P.app", "/a/P.app"});
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths->source, "/m/P.app");
    EXPECT_EQ(paths->destination, "/a/P.app");
    EXPECT_EQ(paths->wrapper, std::nullopt);
}

TEST(TrainArgumentsTest, theThirdPathIsTheWrapper) {
    EXPECT_EQ(readTrainArguments({"/m/P/P.app", "/a/P/P.app", "/m/P"})->wrapper, "/m/P");
    EXPECT_EQ(readTrainArguments({"/m/P.app", "/a/P/P.app", "/m/P"})->wrapper, "/m/P");
    EXPECT_EQ(readTrainArguments({"/P.app", "/a/P/P.app", "/m"})->wrapper, "/m");
}

struct ArgumentsRow {
    const char *reason;
    std::vector<std::string> arguments;
};

void PrintTo(const ArgumentsRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class WrongArgumentsTest : public ::testing::TestWithParam<ArgumentsRow> {};

TEST_P(WrongArgumentsTest, wrongArgumentsAreRefused) {
    const Result<InstallPaths> paths = readTrainArguments(GetParam().arguments);
    ASSERT_FALSE(paths);
    EXPECT_EQ(paths.error().code, EINVAL);
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, WrongArgumentsTest,
    ::testing::Values(ArgumentsRow{"none", {}}, ArgumentsRow{"one", {"/m/P.app"}},
                      ArgumentsRow{"four", {"/m/P.app", "/a/P.app", "/m", "/n"}},
                      ArgumentsRow{"sourceNotCanonical", {"/m/../P.app", "/a/P.app"}},
                      ArgumentsRow{"destinationNotCanonical", {"/m/P.app", "a/P.app"}},
                      ArgumentsRow{"wrapperNotCanonical", {"/m/P.app", "/a/P.app", "/m/./W"}},
                      ArgumentsRow{"wrapperElsewhere", {"/m/P.app", "/a/P.app", "/n/W"}},
                      ArgumentsRow{"wrapperAboveTheSourcesFolder",
                                   {"/m/W/P.app", "/a/W/P.app", "/m"}}));

} // namespace
} // namespace zt
