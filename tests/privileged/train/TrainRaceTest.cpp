// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Somebody changes things while the tool is at work.

#include "tests/privileged/train/TrainFixture.h"
#include "tests/unit/copy/ChildProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio> // renameat2
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>

namespace zt::testing {
namespace {

using ::testing::IsEmpty;

constexpr int runs = 60;

void exchange(const std::string &a, const std::string &b) {
    ::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_EXCHANGE);
}

// What is exchanged with what, and how the one that does not belong there is made.
struct RaceRow {
    const char *reason;
    const char *item; // in the world
    std::function<void(const std::string &other, const TemporaryFolder &world)> makeOther;
};

void PrintTo(const RaceRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class TrainRaceTest : public TrainTest, public ::testing::WithParamInterface<RaceRow> {
protected:
    // What is wrong below the folder for applications: something of root's alone has got there.
    std::string giveawayIn(const std::string &folder) const {
        for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.is_symlink())
                continue;
            if (entry.is_regular_file() && contentOf(entry.path()).find("of root") == 0)
                return entry.path().string() + " tells a secret";
            if (!entry.is_regular_file() && !entry.is_directory())
                return entry.path().string() + " is of another kind";
        }
        return wrongRightsBelow(folder);
    }
};

TEST_P(TrainRaceTest, nothingIsGivenAway) {
    const std::string item = m_world.path(GetParam().item);
    const std::string other = m_world.path("medium/other");
    GetParam().makeOther(other, m_world);
    give(m_world.path("medium"), asker);
    // A hard link to the secret is none of the asker's after all.
    ASSERT_EQ(::chown(m_secret.c_str(), 0, 0), 0);
    const Attacker attacker(asker, [&] { exchange(item, other); });
    int successes = 0;
    for (int run = 0; run < runs; ++run) {
        const TrainEnd end = train();
        ASSERT_EQ(end.signal, 0) << end.log;
        ASSERT_THAT(end.status, ::testing::AnyOf(0, 2, 4)) << end.log;
        ASSERT_EQ(giveawayIn(m_world.path("Applications")), "");
        ASSERT_EQ(itemExists(m_destination), end.status == 0);
        successes += end.status == 0 ? 1 : 0;
        std::filesystem::remove_all(m_destination);
        ASSERT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    }
    RecordProperty("successes", successes);
    EXPECT_EQ(contentOf(m_secret), "of root");
    EXPECT_THAT(namesIn(m_world.path("private")), ::testing::ElementsAre("Contents", "secret"));
}

INSTANTIATE_TEST_SUITE_P(
    Races, TrainRaceTest,
    ::testing::Values(
        RaceRow{"theSourceBecomesALink", "medium/Product.app",
                [](auto &other, auto &world) {
                    std::filesystem::create_symlink(world.path("private"), other);
                }},
        RaceRow{"aFolderBecomesALink", "medium/Product.app/Contents/0",
                [](auto &other, auto &world) {
                    std::filesystem::create_symlink(world.path("private"), other);
                }},
        RaceRow{"aFileBecomesALink", "medium/Product.app/Contents/version",
                [](auto &other, auto &world) {
                    std::filesystem::create_symlink(world.path("private/secret"), other);
                }},
        RaceRow{"aFileBecomesAHardLink", "medium/Product.app/Contents/version",
                [](auto &other, auto &world) {
                    std::filesystem::create_hard_link(world.path("private/secret"), other);
                }},
        RaceRow{"aFileBecomesAPipe", "medium/Product.app/Contents/version",
                [](auto &other, auto &) { ::mkfifo(other.c_str(), 0666); }},
        RaceRow{"aFileBecomesAFolder", "medium/Product.app/Contents/version",
                [](auto &other, auto &) { std::filesystem::create_directory(other); }},
        RaceRow{"aFileGetsASetUserIdBit", "medium/Product.app/Contents/version",
                [](auto &other, auto &world) {
                    std::filesystem::copy_file(world.path("medium/Product.app/Contents/version"),
                                               other);
                    ::chmod(other.c_str(), 06777);
                }},
        RaceRow{"anotherBundleTakesItsPlace", "medium/Product.app", [](auto &other, auto &world) {
                    std::filesystem::create_directories(other + "/Contents");
                    std::filesystem::create_hard_link(world.path("private/secret"),
                                                      other + "/Contents/innocent");
                    std::filesystem::copy_file(world.path("medium/Product.app/Contents/Info.plist"),
                                               other + "/Contents/Info.plist");
                }}));

// The asker's Trash changes while a copy is put there.
class TrashRaceTest : public TrainTest {};

TEST_F(TrashRaceTest, aTrashThatBecomesALinkTakesNothingElsewhere) {
    const std::string others = m_world.makeFolder("others");
    const std::string trash = std::string(askersHome) + "/.local/share/Trash";
    std::filesystem::create_directories(trash + "/files");
    std::filesystem::create_directories(trash + "/info");
    const std::string link = std::string(askersHome) + "/.local/share/link";
    std::filesystem::create_symlink(others, link);
    give(askersHome, asker);
    const Attacker attacker(asker, [&] {
        exchange(trash, link);
        exchange(trash + "/files", link);
    });
    for (int run = 0; run < runs; ++run) {
        makeProduct("Applications/Product.app", "old");
        const TrainEnd end = train();
        ASSERT_EQ(end.signal, 0) << end.log;
        ASSERT_THAT(end.status, ::testing::AnyOf(0, 1)) << end.log;
        ASSERT_EQ(versionAt(m_destination), end.status == 0 ? "new" : "old");
        ASSERT_THAT(namesIn(others), IsEmpty());
        std::filesystem::remove_all(m_destination);
    }
}

} // namespace
} // namespace zt::testing
