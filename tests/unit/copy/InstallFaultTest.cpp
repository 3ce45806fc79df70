// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeRemoval.h"
#include "tests/unit/copy/InstallFixture.h"
#include "tests/unit/copy/SystemCallWatch.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace zt::testing {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// In the daily run only some of the calls; which ones is the same each time.
int stride() {
    return std::getenv("VELMORA_EVERY_CALL") ? 1 : 9;
}

class FaultTest : public InstallTest {
protected:
    FaultTest() : InstallTest(fastTemporaryParent()) {
        m_world.makeFile("medium/Product.app/Contents/large", std::string(300'000, 'l'));
        m_world.makeFile("medium/Product.app/Contents/twin", "one of two");
        EXPECT_EQ(::link(m_world.path("medium/Product.app/Contents/twin").c_str(),
                         m_world.path("medium/Product.app/Contents/0/twin").c_str()),
                  0);
    }

    void SetUp() override {
        if (!canWatchCalls())
            GTEST_SKIP() << "this machine lets no process step in at another's system calls";
        m_medium = describeTree(m_world.path("medium"));
    }

    void reset() {
        for (const std::string &name : {std::string("home"), std::string("Applications"), m_other})
            ASSERT_TRUE(removeTree(AT_FDCWD, m_world.path(name).c_str()));
        makeProduct("Applications/Product.app", "old");
        m_log.clear();
    }

    // The installation as a process of its own would make it, with its log in a file.
    int installDurably() {
        InstallServices durable = services();
        durable.durability = Durability::Durable;
        const InstallResult result = install({m_source, m_destination, {}}, durable);
        for (const std::string &line : m_log)
            m_world.makeFile("log", line);
        return static_cast<int>(result);
    }

    // Whatever has happened: one whole copy at the destination, or the old one in the Trash with
    // its record; and the medium as it was.
    void expectOneWholeCopy(const std::string &when) {
        const std::string atDestination = versionAt(m_destination);
        EXPECT_THAT(atDestination, AnyOf("old", "new", "<missing>")) << when;
        // When the Trash at home cannot be made, the volume has another one.
        std::vector<std::string> trashed = trashedVersions();
        const std::string atHome = std::exchange(m_trashPath, m_world.path(m_other));
        const std::vector<std::string> onVolume = trashedVersions();
        m_trashPath = atHome;
        trashed.insert(trashed.end(), onVolume.begin(), onVolume.end());
        if (atDestination == "old") {
            EXPECT_THAT(trashed, IsEmpty()) << when;
        } else {
            EXPECT_THAT(trashed, ElementsAre("old")) << when;
        }
        EXPECT_EQ(describeTree(m_world.path("medium")), m_medium) << when;
    }

    const std::string m_other = ".Trash-" + std::to_string(::geteuid());
    std::vector<std::string> m_medium;
};

TEST_F(FaultTest, aKillBeforeAnyChangeLeavesAWholeCopyAndTheNextRunCleansUp) {
    bool wasEnded = true;
    for (int last = 1; wasEnded && !HasFailure(); last += stride()) {
        reset();
        const auto status = runWatched([this] { return installDurably(); }, WatchedCalls::Changing,
                                       [last](int number, const std::string &) {
                                           return number == last
                                                      ? CallFate{CallFate::Kind::EndsTheProcess}
                                                      : CallFate{};
                                       });
        wasEnded = !status;
        const std::string when = "before call " + std::to_string(last);
        expectOneWholeCopy(when);
        if (!wasEnded) {
            EXPECT_EQ(*status, 0) << when;
            EXPECT_GT(last, 100) << "the installation makes more calls than this";
        }
        ASSERT_EQ(install(), InstallResult::Success) << when << ::testing::PrintToString(m_log);
        ASSERT_EQ(versionAt(m_destination), "new") << when;
        ASSERT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app")) << when;
    }
}

struct FailureRow {
    const char *reason;
    WatchedCalls calls;
    int code;
};

void PrintTo(const FailureRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class FailureTest : public FaultTest, public ::testing::WithParamInterface<FailureRow> {
protected:
    // What the installation reported has to be what is there.
    void expectTruth(int result, const std::string &failed, const std::string &when) {
        expectOneWholeCopy(when);
        const std::string atDestination = versionAt(m_destination);
        if (result == static_cast<int>(InstallResult::Success)) {
            EXPECT_EQ(atDestination, "new") << when;
        } else {
            const bool isTrashError = result == static_cast<int>(InstallResult::TrashFailed);
            EXPECT_EQ(contentOf(m_world.path("log")),
                      isTrashError ? "ERROR -- Could not trash existing " + m_destination
                                   : "ERROR -- Could not copy myself to " + m_destination)
                << when;
            EXPECT_TRUE(!isTrashError || atDestination == "old") << when;
        }
        // What could not be removed when it was to be is left to the next run.
        if (failed != "unlinkat" && failed != "newfstatat" && failed != "getdents64" &&
            failed != "openat") {
            std::vector<std::string> names = namesIn(m_world.path("Applications"));
            std::erase(names, "Product.app");
            EXPECT_THAT(names, IsEmpty()) << when;
        }
    }
};

TEST_P(FailureTest, whicheverCallFailsTheResultIsTrueAndNothingIsLost) {
    const FailureRow &row = GetParam();
    bool hasFailed = true;
    for (int chosen = 1; hasFailed && !HasFailure(); chosen += stride()) {
        reset();
        std::string failed;
        const auto status = runWatched([this] { return installDurably(); }, row.calls,
                                       [&](int number, const std::string &name) {
                                           if (number != chosen)
                                               return CallFate{};
                                           failed = name;
                                           return CallFate{CallFate::Kind::Fails, row.code};
                                       });
        const std::string when = "call " + std::to_string(chosen) + ", " + failed;
        ASSERT_TRUE(status) << when;
        hasFailed = !failed.empty();
        expectTruth(*status, failed, when);
        EXPECT_TRUE(hasFailed || (*status == 0 && chosen > 50)) << when;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Failures, FailureTest,
    ::testing::Values(FailureRow{"diskFull", WatchedCalls::Changing, ENOSPC},
                      FailureRow{"quotaUsedUp", WatchedCalls::Changing, EDQUOT},
                      FailureRow{"errorOfTheDisk", WatchedCalls::Changing, EIO},
                      FailureRow{"becameReadOnly", WatchedCalls::Changing, EROFS},
                      FailureRow{"readErrorOfTheMedium", WatchedCalls::Reading, EIO},
                      FailureRow{"outOfMemory", WatchedCalls::Reading, ENOMEM}),
    [](const auto &row) { return row.param.reason; });

TEST_F(FaultTest, eachStepReachesTheDiskBeforeTheNextNeedsIt) {
    reset();
    std::vector<std::string> calls =
        callsOf([this] { return installDurably(); }, WatchedCalls::Changing);
    std::erase_if(calls, [](const std::string &name) {
        return name != "renameat2" && name != "rename" && name != "fsync" && name != "syncfs";
    });
    // The record and its folder, then the old copy into the Trash; the new copy as a whole, then
    // its name, then the folder that has the name.
    EXPECT_THAT(calls, ElementsAre("fsync", "fsync", "renameat2", "syncfs", "renameat2", "fsync"));
}

} // namespace
} // namespace zt::testing
