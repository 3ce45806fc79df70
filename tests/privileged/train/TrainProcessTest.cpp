// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tool makes of a process that somebody prepared, and of other tools beside it.

#include "Installer/train/ExitStatus.h"
#include "tests/privileged/train/TrainFixture.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <linux/capability.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int refused = static_cast<int>(ExitStatus::Refused);
constexpr int copyFailed = static_cast<int>(ExitStatus::CopyFailed);
constexpr int notPrivileged = static_cast<int>(ExitStatus::NotPrivileged);

void becomeAsker() {
    if (::setgroups(0, nullptr) != 0 || ::setresgid(asker, asker, asker) != 0 ||
        ::setresuid(asker, asker, asker) != 0)
        ::_exit(98);
}

class TrainProcessTest : public TrainTest {
protected:
    // Holds the tool's lock, so that a tool stands still where all its preparations are done.
    class HeldLock {
    public:
        HeldLock() : m_file(::open(lockPath, O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
            EXPECT_EQ(::flock(m_file, LOCK_EX), 0);
        }
        HeldLock(const HeldLock &) = delete;
        HeldLock &operator=(const HeldLock &) = delete;
        ~HeldLock() { ::close(m_file); }

    private:
        int m_file;
    };

    static constexpr const char *waiting = "Waiting for another installation to end";

    // The value of a line of the process's status, as "CapEff" has one.
    static std::string statusLine(pid_t pid, const std::string &key) {
        std::istringstream lines(contentOf("/proc/" + std::to_string(pid) + "/status"));
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(key + ":\t"))
                return line.substr(key.size() + 2);
        }
        return "<missing>";
    }

    static std::vector<std::string> descriptorsOf(pid_t pid) {
        std::vector<std::string> targets;
        const std::string folder = "/proc/" + std::to_string(pid) + "/fd";
        for (const auto &entry : std::filesystem::directory_iterator(folder)) {
            targets.push_back(entry.path().filename().string() + ' ' +
                              std::filesystem::read_symlink(entry.path()).string());
        }
        std::sort(targets.begin(), targets.end());
        return targets;
    }
};

TEST_F(TrainProcessTest, anOrdinaryUserGetsNothingDone) {
    expectRefused({.arguments = {m_source, m_destination}, .beforehand = becomeAsker},
                  notPrivileged, "only root may do what this does");
}

TEST_F(TrainProcessTest, aSetUserIdBitOfTheToolIsNoPrivilege) {
    const std::string program = "/run/set-user-id-train";
    std::filesystem::copy_file(trainPath, program,
                               std::filesystem::copy_options::overwrite_existing);
    ASSERT_EQ(::chmod(program.c_str(), 06755), 0);
    expectRefused({.arguments = {m_source, m_destination},
                   .beforehand = becomeAsker,
                   .program = program.c_str()},
                  notPrivileged, "with the rights of a file");
}

TEST_F(TrainProcessTest, withoutPrivilegesNothingIsSaidToHaveStarted) {
    const TrainEnd end = train({.arguments = {m_source, m_destination}, .beforehand = becomeAsker});
    EXPECT_EQ(end.output, "");
}

TEST_F(TrainProcessTest, anAskerWhomNobodyKnowsIsRefused) {
    for (const char *user : {"", "ann", "-1", "+4242", "0x1092", "4242 ", "4242\n", "77777",
                             "4294967295", "4294967296"}) {
        expectRefused({{m_source, m_destination}, {std::string("PKEXEC_UID=") + user}}, refused,
                      "");
    }
}

TEST_F(TrainProcessTest, aHostileEnvironmentHasNoSay) {
    makeProduct("Applications/Product.app", "old");
    const std::string evil = m_world.makeFolder("evil");
    give(evil, asker);
    const auto before = describeTree(evil);
    std::vector<std::string> environment = {"PKEXEC_UID=4242", "IFS=/", "LC_ALL=../../evil",
                                            "LANG=xx_YY", "LANGUAGE=xx"};
    for (const char *name : {"HOME", "PATH", "TMPDIR", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TZ",
                             "TZDIR", "GCONV_PATH", "LOCPATH", "NLSPATH", "MALLOC_TRACE",
                             "LD_LIBRARY_PATH", "GETCONF_DIR", "HOSTALIASES", "RES_OPTIONS"})
        environment.push_back(std::string(name) + '=' + evil);
    const TrainEnd end = train({{m_source, m_destination}, environment});
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_EQ(describeTree(evil), before);
}

TEST_F(TrainProcessTest, theTimeIsTheMachinesAndNotTheAskers) {
    const auto now = [] {
        const std::time_t time = std::time(nullptr);
        std::array<char, 32> text = {};
        std::tm local = {};
        std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", ::localtime_r(&time, &local));
        return std::string(text.data());
    };
    makeProduct("Applications/Product.app", "old");
    const std::string before = now();
    ASSERT_EQ(train({{m_source, m_destination}, {"PKEXEC_UID=4242", "TZ=XXX-13:37"}}).status, 0);
    const std::string after = now();
    const std::string record = contentOf(m_trashPath + "/info/Product.app.trashinfo");
    const std::string date = record.substr(record.find("DeletionDate=") + 13, before.size());
    EXPECT_LE(before, date);
    EXPECT_LE(date, after);
}

// Each way of closing some of the standard streams.
class ClosedStreamsTest : public TrainProcessTest, public ::testing::WithParamInterface<int> {};

TEST_P(ClosedStreamsTest, noLogLineGetsIntoAFile) {
    makeProduct("Applications/Product.app", "old");
    const TrainEnd end = train({.arguments = {m_source, m_destination}, .beforehand = [] {
                                    for (const int stream : {0, 1, 2}) {
                                        if ((GetParam() >> stream & 1) != 0)
                                            ::close(stream);
                                    }
                                }});
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_EQ(contentOf(lockPath), "");
    EXPECT_EQ(contentOf(installed("Info.plist")), "<plist/>");
}

INSTANTIATE_TEST_SUITE_P(Streams, ClosedStreamsTest, ::testing::Range(1, 8));

TEST_F(TrainProcessTest, noDescriptorIsInherited) {
    const HeldLock lock;
    RunningTrain running({.arguments = {m_source, m_destination}, .beforehand = [this] {
                              // Without close-on-exec, at several numbers.
                              const int secret = ::open(m_secret.c_str(), O_RDWR);
                              for (const int number : {3, 7, 200, 1000})
                                  ::dup2(secret, number);
                              ::close(STDIN_FILENO);
                          }});
    ASSERT_TRUE(running.waitForLog(waiting)) << running.log();
    const auto descriptors = descriptorsOf(running.pid());
    // The streams, and the lock with its folder.
    EXPECT_THAT(descriptors, ElementsAre("0 /dev/null", ::testing::StartsWith("1 /run/output-"),
                                         ::testing::StartsWith("2 /run/log-"), "3 /run",
                                         std::string("4 ") + lockPath));
}

TEST_F(TrainProcessTest, onlyThePowersThatItNeedsAreLeft) {
    const HeldLock lock;
    RunningTrain running({{m_source, m_destination}});
    ASSERT_TRUE(running.waitForLog(waiting)) << running.log();
    const auto power = [](unsigned capability) { return 1ULL << capability; };
    const unsigned long long needed = power(CAP_CHOWN) | power(CAP_DAC_OVERRIDE) |
                                      power(CAP_FOWNER) | power(CAP_SETGID) | power(CAP_SETUID);
    for (const char *set : {"CapPrm", "CapEff"})
        EXPECT_EQ(std::stoull(statusLine(running.pid(), set), nullptr, 16), needed) << set;
    for (const char *set : {"CapInh", "CapAmb"})
        EXPECT_EQ(std::stoull(statusLine(running.pid(), set), nullptr, 16), 0U) << set;
    EXPECT_EQ(statusLine(running.pid(), "NoNewPrivs"), "1");
    EXPECT_EQ(statusLine(running.pid(), "Uid"), "0\t0\t0\t0");
    EXPECT_EQ(statusLine(running.pid(), "Gid"), "0\t0\t0\t0");
    EXPECT_EQ(statusLine(running.pid(), "Groups"), "4242 4243 ");
}

TEST_F(TrainProcessTest, whatAProcessInheritsIsSetAnew) {
    const HeldLock lock;
    RunningTrain running({.arguments = {m_source, m_destination}, .beforehand = [this] {
                              ::umask(0);
                              sigset_t all = {};
                              ::sigfillset(&all);
                              ::sigprocmask(SIG_SETMASK, &all, nullptr);
                              for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGCHLD, SIGXCPU})
                                  ::signal(signal, SIG_IGN);
                              const itimerval soon = {{0, 0}, {1000, 0}};
                              ::setitimer(ITIMER_REAL, &soon, nullptr);
                              const rlimit largeCore = {1 << 20, 1 << 20};
                              ::setrlimit(RLIMIT_CORE, &largeCore);
                              const rlimit smallFiles = {10, RLIM_INFINITY};
                              ::setrlimit(RLIMIT_FSIZE, &smallFiles);
                              if (::chdir(m_world.path().c_str()) != 0)
                                  ::_exit(98);
                          }});
    ASSERT_TRUE(running.waitForLog(waiting)) << running.log();
    const std::string process = "/proc/" + std::to_string(running.pid());
    EXPECT_EQ(statusLine(running.pid(), "Umask"), "0022");
    // Otherwise nothing would end it below.
    ASSERT_EQ(std::stoull(statusLine(running.pid(), "SigBlk"), nullptr, 16), 0U);
    ASSERT_EQ(std::stoull(statusLine(running.pid(), "SigIgn"), nullptr, 16),
              1ULL << (SIGPIPE - 1) | 1ULL << (SIGXFSZ - 1));
    EXPECT_EQ(std::filesystem::read_symlink(process + "/cwd"), "/");
    rlimit limit = {};
    ASSERT_EQ(::prlimit(running.pid(), RLIMIT_CORE, nullptr, &limit), 0);
    EXPECT_EQ(limit.rlim_max, 0U);
    ASSERT_EQ(::prlimit(running.pid(), RLIMIT_FSIZE, nullptr, &limit), 0);
    EXPECT_EQ(limit.rlim_cur, RLIM_INFINITY);
    // Neither ignored nor held back any more.
    ASSERT_EQ(::kill(running.pid(), SIGTERM), 0);
    EXPECT_EQ(running.wait().signal, SIGTERM);
}

TEST_F(TrainProcessTest, aLimitOnTheSizeOfFilesEndsNothingHalfDone) {
    m_world.makeFile("medium/Product.app/Contents/large", std::string(100'000, 'x'));
    const TrainEnd end = train({.arguments = {m_source, m_destination}, .beforehand = [] {
                                    // Only a root with all powers can lift such a limit.
                                    const rlimit smallFiles = {50'000, 50'000};
                                    ::setrlimit(RLIMIT_FSIZE, &smallFiles);
                                }});
    EXPECT_EQ(end.signal, 0);
    if (end.status == 0) {
        EXPECT_EQ(contentOf(installed("large")).size(), 100'000U);
    } else {
        EXPECT_EQ(end.status, copyFailed) << end.log;
        EXPECT_THAT(end.log, HasSubstr("large: File too large"));
        EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    }
}

TEST_F(TrainProcessTest, aListenerThatHasGoneDoesNotEndTheInstallation) {
    const TrainEnd end = train({.arguments = {m_source, m_destination}, .beforehand = [] {
                                    std::array<int, 2> ends = {};
                                    if (::pipe(ends.data()) != 0)
                                        ::_exit(98);
                                    ::close(ends[0]);
                                    ::dup2(ends[1], STDOUT_FILENO);
                                    ::dup2(ends[1], STDERR_FILENO);
                                }});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(versionAt(m_destination), "new");
}

TEST_F(TrainProcessTest, aSecondToolWaitsForTheFirst) {
    auto first = std::make_unique<HeldLock>();
    RunningTrain second({{m_source, m_destination}});
    ASSERT_TRUE(second.waitForLog(waiting)) << second.log();
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    first.reset();
    const TrainEnd end = second.wait();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(m_destination), "new");
}

TEST_F(TrainProcessTest, severalToolsAtOneDestinationAllSucceedOneAfterTheOther) {
    std::vector<std::unique_ptr<RunningTrain>> tools;
    tools.reserve(5);
    for (int i = 0; i < 5; ++i)
        tools.push_back(std::make_unique<RunningTrain>(TrainStart{{m_source, m_destination}}));
    for (const auto &tool : tools) {
        const TrainEnd end = tool->wait();
        EXPECT_EQ(end.status, 0) << end.log;
    }
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("new", "new", "new", "new"));
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

TEST_F(TrainProcessTest, onlyRootCanHoldUpInstallations) {
    ASSERT_EQ(train().status, 0);
    struct stat status = {};
    ASSERT_EQ(::stat(lockPath, &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
    EXPECT_EQ(status.st_uid, 0U);
}

TEST_F(TrainProcessTest, aLinkInPlaceOfTheLockIsNotFollowed) {
    ::unlink(lockPath);
    ASSERT_EQ(::symlink(m_world.path("made").c_str(), lockPath), 0);
    expectRefused({{m_source, m_destination}}, refused, lockPath);
    ::unlink(lockPath);
}

TEST_F(TrainProcessTest, helpAndVersionNeedNoPrivileges) {
    const TrainEnd help = train({.arguments = {"--help"}, .beforehand = becomeAsker});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("Usage: train SOURCE DESTINATION [WRAPPER]"));
    const TrainEnd version = train({.arguments = {"--version"}, .beforehand = becomeAsker});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.starts_with("train ")) << version.output;
}

} // namespace
} // namespace zt::testing
