// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where the tool puts things, and where it will not.

#include "Installer/train/ExitStatus.h"
#include "Installer/train/PrivilegedPlan.h"
#include "tests/privileged/train/MadeUpVolume.h"
#include "tests/privileged/train/TrainFixture.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;

constexpr int usage = static_cast<int>(ExitStatus::Usage);
constexpr int refused = static_cast<int>(ExitStatus::Refused);
constexpr int copyFailed = static_cast<int>(ExitStatus::CopyFailed);

using TrainDestinationTest = TrainTest;

TEST_F(TrainDestinationTest, aProductIsInstalledForAll) {
    const auto before = rest();
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(end.output, "started\n");
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_EQ(wrongRightsBelow(m_destination), "");
    EXPECT_EQ(rest(), before);
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
    EXPECT_EQ(asOrdinaryUser([&] { return versionAt(m_destination); }), "new");
}

TEST_F(TrainDestinationTest, aFolderThatHandsDownItsGroupAndListsDoesNotHandThemToTheProduct) {
    const std::string applications = m_world.path("Applications");
    ASSERT_EQ(::chown(applications.c_str(), 0, askersGroup), 0);
    ASSERT_EQ(::chmod(applications.c_str(), 02755), 0);
    if (!runQuietly("setfacl -d -m u:4242:rwx " + applications))
        GTEST_SKIP() << "no access lists on this file system";
    EXPECT_EQ(train().status, 0);
    EXPECT_EQ(wrongRightsBelow(m_destination), "");
}

// Arguments that are wrong by themselves, told by the world they are used in.
struct ArgumentsRow {
    const char *reason;
    std::function<std::vector<std::string>(const std::string &source, const std::string &target)>
        arguments;
};

void PrintTo(const ArgumentsRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class TrainArgumentsAttackTest : public TrainTest,
                                 public ::testing::WithParamInterface<ArgumentsRow> {};

TEST_P(TrainArgumentsAttackTest, wrongArgumentsChangeNothing) {
    const auto arguments = GetParam().arguments(m_source, m_destination);
    expectRefused({arguments,
                   {"PKEXEC_UID=4242"},
                   [this] {
                       // A relative path would be one of this folder.
                       if (::chdir(m_world.path().c_str()) != 0)
                           ::_exit(98);
                   }},
                  usage, "");
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, TrainArgumentsAttackTest,
    ::testing::Values(
        ArgumentsRow{"none", [](auto &, auto &) { return std::vector<std::string>{}; }},
        ArgumentsRow{"one", [](auto &source, auto &) { return std::vector{source}; }},
        ArgumentsRow{"four",
                     [](auto &source, auto &target) {
                         return std::vector{source, target, source, source};
                     }},
        ArgumentsRow{"relativeSource",
                     [](auto &, auto &target) {
                         return std::vector{std::string("medium/Product.app"), target};
                     }},
        ArgumentsRow{"relativeDestination",
                     [](auto &source, auto &) {
                         return std::vector{source, std::string("Applications/Product.app")};
                     }},
        ArgumentsRow{"dotsInTheSource",
                     [](auto &source, auto &target) {
                         return std::vector{source + "/../Product.app", target};
                     }},
        ArgumentsRow{"dotsInTheDestination",
                     [](auto &source, auto &target) {
                         return std::vector{source, target + "/../Product.app"};
                     }},
        ArgumentsRow{"slashAtTheEnd",
                     [](auto &source, auto &target) {
                         return std::vector{source, target + '/'};
                     }},
        ArgumentsRow{"twoSlashes",
                     [](auto &source, auto &target) {
                         return std::vector{source, '/' + target};
                     }},
        ArgumentsRow{"empty",
                     [](auto &source, auto &) {
                         return std::vector{source, std::string()};
                     }},
        ArgumentsRow{"overlongDestination",
                     [](auto &source, auto &target) {
                         std::string path = target;
                         while (path.size() < 5000)
                             path += "/a";
                         return std::vector{source, path};
                     }},
        ArgumentsRow{"overlongName", [](auto &source, auto &target) {
                         return std::vector{source, target + std::string(300, 'n')};
                     }}));

// A destination that is not safe, and how the world is made so.
struct DestinationRow {
    const char *reason;
    std::function<std::string(const TemporaryFolder &world)> prepare; // answers the destination
    const char *inLog;
};

void PrintTo(const DestinationRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class TrainDestinationAttackTest : public TrainTest,
                                   public ::testing::WithParamInterface<DestinationRow> {};

TEST_P(TrainDestinationAttackTest, anUnsafeDestinationChangesNothing) {
    expectRefused({{m_source, GetParam().prepare(m_world)}}, refused, GetParam().inLog);
    EXPECT_THAT(namesIn(m_world.path("private")), ElementsAre("Contents", "secret"));
}

// Folders "a/b/c" in the world, all root's, with one that is changed.
std::string destinationBelow(const TemporaryFolder &world, const std::string &changed,
                             const std::function<int(const char *)> &change) {
    world.makeFolder("a/b/c");
    if (change(world.path(changed).c_str()) != 0)
        ::abort();
    return world.path("a/b/c/Product.app");
}

INSTANTIATE_TEST_SUITE_P(
    Destinations, TrainDestinationAttackTest,
    ::testing::Values(
        DestinationRow{"linkAtTheFirstFolder",
                       [](auto &world) {
                           world.makeFolder("real/b/c");
                           world.makeLink("a", world.path("real"));
                           return world.path("a/b/c/Product.app");
                       },
                       "/a: Not a directory"},
        DestinationRow{"linkAtAFolderInTheMiddle",
                       [](auto &world) {
                           world.makeFolder("real/b/c");
                           world.makeLink("a/b", world.path("real/b"));
                           return world.path("a/b/c/Product.app");
                       },
                       "/a/b: Not a directory"},
        DestinationRow{"linkAtTheLastFolder",
                       [](auto &world) {
                           world.makeFolder("real/b/c");
                           world.makeLink("a/b/c", world.path("real/b/c"));
                           return world.path("a/b/c/Product.app");
                       },
                       "/a/b/c: Not a directory"},
        DestinationRow{"linkToRootsOwnFolder",
                       [](auto &world) {
                           world.makeLink("a/b/c", world.path("private"));
                           return world.path("a/b/c/Product.app");
                       },
                       "/a/b/c: Not a directory"},
        DestinationRow{"danglingLink",
                       [](auto &world) {
                           world.makeLink("a/b/c", "nowhere");
                           return world.path("a/b/c/Product.app");
                       },
                       "/a/b/c: Not a directory"},
        DestinationRow{"folderOfTheAsker",
                       [](auto &world) {
                           return destinationBelow(world, "a/b/c", [](const char *path) {
                               return ::chown(path, asker, askersGroup);
                           });
                       },
                       "it belongs to another user than root"},
        DestinationRow{"folderAboveOfTheAsker",
                       [](auto &world) {
                           return destinationBelow(world, "a", [](const char *path) {
                               return ::chown(path, asker, askersGroup);
                           });
                       },
                       "it belongs to another user than root"},
        DestinationRow{"forAllToWrite",
                       [](auto &world) {
                           return destinationBelow(world, "a/b/c", [](const char *path) {
                               return ::chmod(path, 0777);
                           });
                       },
                       "may write to it"},
        DestinationRow{"stickyForAllToWrite",
                       [](auto &world) {
                           return destinationBelow(world, "a/b/c", [](const char *path) {
                               return ::chmod(path, 01777);
                           });
                       },
                       "may write to it"},
        DestinationRow{"folderAboveStickyForAllToWrite",
                       [](auto &world) {
                           return destinationBelow(
                               world, "a/b", [](const char *path) { return ::chmod(path, 01777); });
                       },
                       "may write to it"},
        DestinationRow{"forTheGroupToWrite",
                       [](auto &world) {
                           return destinationBelow(world, "a/b/c", [](const char *path) {
                               return ::chmod(path, 0775);
                           });
                       },
                       "may write to it"},
        DestinationRow{"folderAboveForTheGroupToWrite",
                       [](auto &world) {
                           return destinationBelow(
                               world, "a/b", [](const char *path) { return ::chmod(path, 0770); });
                       },
                       "may write to it"},
        DestinationRow{"forTheAskerToWriteByAccessList",
                       [](auto &world) {
                           return destinationBelow(world, "a/b/c", [](const char *path) {
                               return runQuietly(std::string("setfacl -m u:4242:rwx ") + path) ? 0
                                                                                               : -1;
                           });
                       },
                       "may write to it"},
        DestinationRow{"missingFolder",
                       [](auto &world) {
                           world.makeFolder("a/b");
                           return world.path("a/b/c/Product.app");
                       },
                       "No such file or directory"},
        DestinationRow{"fileInPlaceOfAFolder",
                       [](auto &world) {
                           world.makeFile("a/b/c");
                           return world.path("a/b/c/Product.app");
                       },
                       "Not a directory"},
        DestinationRow{"pipeInPlaceOfAFolder",
                       [](auto &world) {
                           world.makeFolder("a/b");
                           ::mkfifo(world.path("a/b/c").c_str(), 0644);
                           return world.path("a/b/c/Product.app");
                       },
                       "Not a directory"},
        DestinationRow{"beneathAll", [](auto &) { return std::string("/Product.app"); },
                       "belongs to the system"},
        DestinationRow{"settingsOfTheSystem",
                       [](auto &) { return std::string("/etc/cron.d/Product.app"); },
                       "belongs to the system"},
        DestinationRow{"programsOfTheSystem",
                       [](auto &) { return std::string("/usr/bin/Product.app"); },
                       "belongs to the system"},
        DestinationRow{
            "insideTheSource",
            [](auto &world) { return world.path("medium/Product.app/Contents/Inner.app"); },
            "it belongs to another user than root"}));

// Nobody but root may write there, it says; but who knows what its program does with it.
TEST_F(TrainDestinationTest, aVolumeThatAProgramMakesUpIsNotTrusted) {
    const std::string folder = m_world.makeFolder("a/volume");
    const MadeUpVolume volume(folder);
    if (!volume)
        GTEST_SKIP() << "this machine has no such volumes";
    expectRefused({{m_source, folder + "/Product.app"}}, refused,
                  "it lies on a volume that a program makes up");
}

class TrainApartTest : public TrainTest {
protected:
    // A source that is root's too, for otherwise no destination would be near it.
    void SetUp() override {
        TrainTest::SetUp();
        if (reasonForNoWorld().empty())
            give(m_world.path("medium"), 0);
    }
};

TEST_F(TrainApartTest, aDestinationInsideTheSourceIsRefused) {
    expectRefused({{m_source, m_source + "/Contents/Inner.app"}}, copyFailed,
                  "it lies within the source");
}

TEST_F(TrainApartTest, theSourceItselfIsNoDestination) {
    expectRefused({{m_source, m_source}}, copyFailed, "it is the source itself");
}

TEST_F(TrainApartTest, aDestinationAroundTheSourceIsRefused) {
    expectRefused({{m_source, m_world.path("medium")}}, copyFailed, "the source lies within it");
}

// A folder that counts as always there is made; here one of the world stands for it.
using GuaranteedFolderTest = TrainTest;

TEST_F(GuaranteedFolderTest, aGuaranteedFolderIsMadeForAllToReadAndRootToWrite) {
    const std::string folder = m_world.path("Guaranteed");
    Result<InstallPlan> plan =
        planPrivilegedInstallation({m_source, folder + "/Product.app"}, {asker, asker}, {folder});
    ASSERT_TRUE(plan) << plan.error().text();
    EXPECT_FALSE(itemExists(folder));
    EXPECT_TRUE(plan->folderAbove.descriptor);
    InstallServices forAll = services();
    forAll.rights = CopiedRights::ReadingAndRunning;
    EXPECT_EQ(InstallApplication(*std::move(plan), forAll), InstallResult::Success);
    EXPECT_EQ(versionAt(folder + "/Product.app"), "new");
    EXPECT_EQ(wrongRightsBelow(folder), "");
}

TEST_F(GuaranteedFolderTest, aLinkThatComesInItsPlaceMeanwhileIsNotFollowed) {
    const std::string folder = m_world.path("Guaranteed");
    Result<InstallPlan> plan =
        planPrivilegedInstallation({m_source, folder + "/Product.app"}, {asker, asker}, {folder});
    ASSERT_TRUE(plan) << plan.error().text();
    m_world.makeLink("Guaranteed", m_world.path("private"));
    EXPECT_EQ(InstallApplication(*std::move(plan), services()), InstallResult::CopyFailed);
    EXPECT_THAT(namesIn(m_world.path("private")), ElementsAre("Contents", "secret"));
}

// What was opened stays what it was, whatever is done to the paths afterwards.
TEST_F(TrainDestinationTest, aFolderThatIsReplacedAfterItWasOpenedGetsNothing) {
    Result<InstallPlan> plan =
        planPrivilegedInstallation({m_source, m_destination}, {asker, asker}, {});
    ASSERT_TRUE(plan) << plan.error().text();
    const std::string applications = m_world.path("Applications");
    ASSERT_EQ(std::rename(applications.c_str(), m_world.path("before").c_str()), 0);
    ASSERT_EQ(std::rename(m_source.c_str(), (m_source + ".before").c_str()), 0);
    m_world.makeLink("Applications", m_world.path("private"));
    makeProduct("medium/Product.app", "another");
    EXPECT_EQ(InstallApplication(*std::move(plan), services()), InstallResult::Success);
    EXPECT_THAT(namesIn(m_world.path("private")), ElementsAre("Contents", "secret"));
    EXPECT_EQ(versionAt(m_world.path("before/Product.app")), "new");
}

} // namespace
} // namespace zt::testing
