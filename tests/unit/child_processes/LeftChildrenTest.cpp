// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What becomes of children when the service goes.

#include "tests/Waiting.h"
#include "tests/unit/child_processes/ShellFixture.h"

#include <cerrno>
#include <csignal>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

class LeftChildrenTest : public ShellFixture {
protected:
    zt::ChildProcesses::Program program(const std::string &lines) const {
        return {.path = script(lines), .arguments = {}, .workingFolder = u"/"_s};
    }

    // Waits for the end, of which the service took note when it came soon enough.
    static void endsAndIsReaped(pid_t child) {
        int status = 0;
        const pid_t ended = ::waitpid(child, &status, 0);
        EXPECT_TRUE((ended == child && WIFSIGNALED(status)) || (ended == -1 && errno == ECHILD));
        EXPECT_TRUE(isGone(child));
    }
};

} // namespace

TEST_F(LeftChildrenTest, whoWasAskedToEndIsForcedWhenTheServiceGoes) {
    const std::string pidFile = folder.path("pid");
    {
        zt::SpawnedChildProcesses service(std::chrono::hours(1));
        const auto child =
            service.start(program("trap '' TERM; echo $$ >" + pidFile + ".new; mv " + pidFile +
                                  ".new " + pidFile + "; while :; do sleep 600; done"));
        ASSERT_TRUE(child);
        ASSERT_TRUE(eventuallyWithoutEvents([&] { return zt::testing::itemExists(pidFile); }));
        (*child)->terminate();
        EXPECT_TRUE((*child)->isRunning());
    }
    endsAndIsReaped(processIn(pidFile));
}

TEST_F(LeftChildrenTest, whoWasOnlyLeftGoesOnWhenTheServiceGoes) {
    pid_t child = 0;
    {
        zt::SpawnedChildProcesses service;
        const auto output = service.standardOutputOfShell(u"echo $$; exec sleep 600 >&-"_s);
        ASSERT_TRUE(output);
        child = output->trimmed().toInt();
    }
    EXPECT_FALSE(isGone(child));
    ::kill(child, SIGKILL);
    endsAndIsReaped(child);
}

TEST_F(LeftChildrenTest, aChildThatIsLetGoOfGoesOnAndLeavesNoZombie) {
    const std::string ending = folder.path("end");
    const std::string ended = folder.path("ended");
    {
        const auto child = childProcesses.start(
            program("while ! [ -e " + ending + " ]; do sleep 0.01; done; : >" + ended));
        ASSERT_TRUE(child);
    }
    EXPECT_TRUE(temporaryFiles().empty());
    EXPECT_FALSE(zt::testing::itemExists(ended));
    folder.makeFile("end");
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
    EXPECT_TRUE(zt::testing::itemExists(ended));
}

TEST_F(LeftChildrenTest, whoIsAskedToEndHasTimeToTidyUp) {
    const std::string ready = folder.path("ready");
    const std::string tidied = folder.path("tidied");
    zt::SpawnedChildProcesses service(std::chrono::hours(1));
    {
        const auto child =
            service.start(program("trap 'sleep 0.1; : >" + tidied + "; exit' TERM; : >" + ready +
                                  "; while :; do sleep 0.01; done"));
        ASSERT_TRUE(child);
        ASSERT_TRUE(eventuallyWithoutEvents([&] { return zt::testing::itemExists(ready); }));
        (*child)->terminate();
    }
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return zt::testing::itemExists(tidied); }));
}
