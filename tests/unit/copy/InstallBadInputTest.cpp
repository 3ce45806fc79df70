// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/SystemCalls.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/InstallFixture.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// The paths of an installation that must be refused, told by the world they are used in.
struct BadInputRow {
    const char *reason;
    std::function<InstallPaths(const TemporaryFolder &world)> paths;
    const char *cause;
};

void PrintTo(const BadInputRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class BadInputTest : public InstallTest, public ::testing::WithParamInterface<BadInputRow> {};

TEST_P(BadInputTest, badInputIsToldAndNothingIsTouched) {
    makeProduct("Applications/Product.app", "old");
    const InstallPaths paths = GetParam().paths(m_world);
    const auto before = describeTree(m_world.path());
    EXPECT_EQ(install(paths), InstallResult::CopyFailed);
    EXPECT_EQ(describeTree(m_world.path()), before);
    ASSERT_EQ(m_log.size(), 2U) << ::testing::PrintToString(m_log);
    EXPECT_THAT(m_log[0], HasSubstr(GetParam().cause));
    EXPECT_EQ(m_log[1], "ERROR -- Could not copy myself to " + paths.destination);
    EXPECT_THAT(m_noted, IsEmpty());
}

InstallPaths fromTo(const TemporaryFolder &world, const std::string &source,
                    const std::string &destination) {
    return {world.path(source), world.path(destination), {}};
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, BadInputTest,
    ::testing::Values(
        BadInputRow{"emptySourcePath",
                    [](const TemporaryFolder &world) -> InstallPaths {
                        return {"", world.path("Applications/Product.app"), {}};
                    },
                    "its path is empty"},
        BadInputRow{"emptyDestinationPath",
                    [](const TemporaryFolder &world) -> InstallPaths {
                        return {world.path("medium/Product.app"), "", {}};
                    },
                    "its path is empty"},
        BadInputRow{"rootAsDestination",
                    [](const TemporaryFolder &world) -> InstallPaths {
                        return {world.path("medium/Product.app"), "/", {}};
                    },
                    "not the path of an item in a folder"},
        BadInputRow{"dotsAsDestination",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app", "Applications/..");
                    },
                    "not the path of an item in a folder"},
        BadInputRow{"missingSource",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Missing.app", "Applications/Product.app");
                    },
                    "No such file or directory"},
        BadInputRow{"danglingSource",
                    [](const TemporaryFolder &world) {
                        world.makeLink("medium/dangling.app", "nowhere");
                        return fromTo(world, "medium/dangling.app", "Applications/Product.app");
                    },
                    "No such file or directory"},
        BadInputRow{"sourceIsALoopOfLinks",
                    [](const TemporaryFolder &world) {
                        world.makeLink("medium/one.app", "two.app");
                        world.makeLink("medium/two.app", "one.app");
                        return fromTo(world, "medium/one.app", "Applications/Product.app");
                    },
                    "Too many levels of symbolic links"},
        BadInputRow{"emptySourceFolder",
                    [](const TemporaryFolder &world) {
                        world.makeFolder("medium/Empty.app");
                        return fromTo(world, "medium/Empty.app", "Applications/Product.app");
                    },
                    "it is empty"},
        BadInputRow{"emptySourceFile",
                    [](const TemporaryFolder &world) {
                        world.makeFile("medium/empty");
                        return fromTo(world, "medium/empty", "Applications/Product.app");
                    },
                    "it is empty"},
        BadInputRow{"sourceIsAPipe",
                    [](const TemporaryFolder &world) {
                        ::mkfifo(world.path("medium/pipe").c_str(), 0644);
                        return fromTo(world, "medium/pipe", "Applications/Product.app");
                    },
                    "neither a folder nor a file"},
        BadInputRow{"destinationIsTheSource",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app", "medium/Product.app");
                    },
                    "it is the source itself"},
        BadInputRow{"destinationIsTheSourceThroughALink",
                    [](const TemporaryFolder &world) {
                        world.makeLink("alias", "medium");
                        return fromTo(world, "medium/Product.app", "alias/Product.app");
                    },
                    "it is the source itself"},
        BadInputRow{"destinationIsTheSourceThroughDots",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app",
                                      "medium/../medium/./Product.app");
                    },
                    "it is the source itself"},
        BadInputRow{"destinationInsideTheSource",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app",
                                      "medium/Product.app/Contents/Inner.app");
                    },
                    "it lies within the source"},
        BadInputRow{"destinationInsideTheSourceThroughALink",
                    [](const TemporaryFolder &world) {
                        world.makeLink("inside", "medium/Product.app/Contents");
                        return fromTo(world, "medium/Product.app", "inside/Inner.app");
                    },
                    "it lies within the source"},
        BadInputRow{"destinationAroundTheSource",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app", "medium");
                    },
                    "the source lies within it"},
        BadInputRow{"destinationAroundTheSourceThroughALink",
                    [](const TemporaryFolder &world) {
                        world.makeLink("alias.app", "medium/Product.app");
                        return fromTo(world, "alias.app", "medium");
                    },
                    "the source lies within it"},
        BadInputRow{"missingDestinationFolder",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app", "missing/Product.app");
                    },
                    "No such file or directory"},
        BadInputRow{"destinationFolderIsAFile",
                    [](const TemporaryFolder &world) {
                        world.makeFile("file");
                        return fromTo(world, "medium/Product.app", "file/Product.app");
                    },
                    "Not a directory"},
        BadInputRow{"destinationFolderIsADanglingLink",
                    [](const TemporaryFolder &world) {
                        world.makeLink("guaranteed", "nowhere");
                        return fromTo(world, "medium/Product.app", "guaranteed/Product.app");
                    },
                    "No such file or directory"},
        BadInputRow{"guaranteedFolderButOneBelow",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app", "guaranteed/sub/Product.app");
                    },
                    "No such file or directory"},
        BadInputRow{"destinationNameTooLong",
                    [](const TemporaryFolder &world) {
                        return fromTo(world, "medium/Product.app",
                                      "Applications/" + std::string(256, 'n'));
                    },
                    "File name too long"},
        BadInputRow{"missingWrapper",
                    [](const TemporaryFolder &world) {
                        InstallPaths paths =
                            fromTo(world, "medium/Product.app", "Applications/Product.app");
                        paths.wrapper = world.path("missing");
                        return paths;
                    },
                    "No such file or directory"},
        BadInputRow{"wrapperIsAFile",
                    [](const TemporaryFolder &world) {
                        InstallPaths paths =
                            fromTo(world, "medium/Product.app", "Applications/Product.app");
                        paths.wrapper = world.makeFile("file", "x");
                        return paths;
                    },
                    "Not a directory"},
        BadInputRow{"wrapperIsTheDestinationFolder",
                    [](const TemporaryFolder &world) {
                        InstallPaths paths =
                            fromTo(world, "medium/Product.app", "Applications/Product.app");
                        paths.wrapper = world.path("Applications");
                        return paths;
                    },
                    "the destination lies within it"},
        BadInputRow{"wrapperAroundTheDestinationFolder",
                    [](const TemporaryFolder &world) {
                        InstallPaths paths =
                            fromTo(world, "medium/Product.app", "Applications/Product.app");
                        paths.wrapper = world.path();
                        return paths;
                    },
                    "the destination lies within it"},
        BadInputRow{"wrapperItemNamedLikeTheWrapper",
                    [](const TemporaryFolder &world) {
                        InstallPaths paths =
                            fromTo(world, "medium/Product.app", "Applications/Product.app");
                        world.makeFile("Applications/Wrapper/Wrapper/file", "x");
                        paths.wrapper = world.path("Applications/Wrapper");
                        return paths;
                    },
                    "it holds what is to be copied"},
        BadInputRow{"wrapperItemNamedLikeTheSourcesFolder",
                    [](const TemporaryFolder &world) {
                        world.makeFile("Applications/Disk/Product.app/file", "x");
                        InstallPaths paths = fromTo(world, "Applications/Disk/Product.app",
                                                    "Applications/Product.app");
                        world.makeFile("Wrapper/Disk", "x");
                        paths.wrapper = world.path("Wrapper");
                        return paths;
                    },
                    "it holds what is to be copied"}),
    [](const auto &row) { return row.param.reason; });

using BadAccessTest = InstallTest;

TEST_F(BadAccessTest, anUnreadableSourceChangesNothing) {
    makeProduct("Applications/Product.app", "old");
    for (const mode_t mode : {0U, 0111U, 0444U}) {
        ASSERT_EQ(::chmod(m_source.c_str(), mode), 0);
        ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
        const std::string line = asOrdinaryUser([&] {
            const bool failed = install() == InstallResult::CopyFailed;
            return failed && m_log.size() == 2 ? m_log[0] : std::string("not refused");
        });
        EXPECT_THAT(line, HasSubstr(m_source + ": Permission denied")) << mode;
        EXPECT_EQ(versionAt(m_destination), "old");
    }
}

TEST_F(BadAccessTest, aReadOnlyFolderKeepsItsOldCopy) {
    makeProduct("Applications/Product.app", "old");
    ASSERT_EQ(::chmod(m_world.path("Applications").c_str(), 0555), 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    const std::string outcome = asOrdinaryUser([&] {
        const InstallResult result = install();
        return std::to_string(static_cast<int>(result)) + ' ' + errorLines().back();
    });
    EXPECT_EQ(outcome, "1 ERROR -- Could not trash existing " + m_destination);
    EXPECT_EQ(versionAt(m_destination), "old");
}

TEST_F(BadAccessTest, aReadOnlyFolderTakesNoNewCopy) {
    ASSERT_EQ(::chmod(m_world.path("Applications").c_str(), 0555), 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    const std::string outcome = asOrdinaryUser([&] {
        const InstallResult result = install();
        return std::to_string(static_cast<int>(result)) + ' ' + errorLines().back();
    });
    EXPECT_EQ(outcome, "2 ERROR -- Could not copy myself to " + m_destination);
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
}

TEST_F(BadAccessTest, aTrashThatCannotBeWrittenKeepsTheOldCopy) {
    makeProduct("Applications/Product.app", "old");
    m_world.makeFile("home/Trash/files", "in the way");
    m_world.makeFile(".Trash-" + std::to_string(::geteuid()), "in the way");
    EXPECT_EQ(install(), InstallResult::TrashFailed);
    EXPECT_EQ(versionAt(m_destination), "old");
    EXPECT_EQ(m_log.size(), 3U);
}

TEST_F(BadAccessTest, aSecondMountOfTheSourceDoesNotDeceive) {
    m_world.makeFolder("mounted");
    const std::string outcome = withPrivateMounts([&]() -> std::string {
        const std::string mounted = m_world.path("mounted");
        if (::mount(m_world.path("medium").c_str(), mounted.c_str(), nullptr, MS_BIND, nullptr) !=
            0)
            return cannotMount;
        const bool same =
            install({m_source, mounted + "/Product.app", {}}) == InstallResult::CopyFailed &&
            m_log[0].ends_with("it is the source itself");
        const bool inside = install({m_source, mounted + "/Product.app/Contents/X.app", {}}) ==
                                InstallResult::CopyFailed &&
                            m_log[2].ends_with("it lies within the source");
        return same && inside ? "" : ::testing::PrintToString(m_log);
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "");
    EXPECT_EQ(versionAt(m_source), "new");
}

TEST_F(BadAccessTest, aFullDiskIsToldAndLeavesNothingUnfinished) {
    m_world.makeFile("medium/Product.app/large", std::string(3'000'000, 'x'));
    m_world.makeFolder("small");
    const std::string outcome = withPrivateMounts([&]() -> std::string {
        const std::string small = m_world.path("small");
        if (::mount("tmpfs", small.c_str(), "tmpfs", 0, "size=1m") != 0)
            return cannotMount;
        const std::string target = small + "/Product.app";
        if (install({m_source, target, {}}) != InstallResult::CopyFailed)
            return "it did not fail";
        if (!namesIn(small).empty())
            return "something is left";
        return m_log[0] + '\n' + m_log[1];
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    // Which of the files meets the end of the space first is up to the threads.
    EXPECT_THAT(outcome, HasSubstr(' ' + m_world.path("small/Product.app")));
    EXPECT_THAT(outcome, ::testing::EndsWith(": No space left on device\nERROR -- Could not copy "
                                             "myself to " +
                                             m_world.path("small/Product.app")));
}

TEST_F(BadAccessTest, aFullDiskLeavesTheOldCopyInTheVolumesTrash) {
    m_world.makeFile("medium/Product.app/large", std::string(3'000'000, 'x'));
    m_world.makeFolder("small");
    const std::string outcome = withPrivateMounts([&]() -> std::string {
        const std::string small = m_world.path("small");
        if (::mount("tmpfs", small.c_str(), "tmpfs", 0, "size=1m") != 0)
            return cannotMount;
        FreedesktopTrash volumeTrash({.dataHome = m_world.path("home"), .user = ::geteuid()});
        m_usedTrash = &volumeTrash;
        makeProduct("small/Product.app", "old");
        if (install({m_source, small + "/Product.app", {}}) != InstallResult::CopyFailed)
            return "it did not fail";
        // Within the namespace this user may have another number.
        const std::string trash = ".Trash-" + std::to_string(::geteuid());
        if (namesIn(small) != std::vector<std::string>{trash})
            return ::testing::PrintToString(namesIn(small));
        const std::string trashed = small + '/' + trash;
        return versionAt(trashed + "/files/Product.app") +
               contentOf(trashed + "/info/Product.app.trashinfo").substr(0, 31);
    });
    if (outcome == cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "old[Trash Info]\nPath=Product.app\nD");
}

} // namespace
} // namespace zt::testing
