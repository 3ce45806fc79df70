// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Scripts that end by themselves, that are ended, and that cannot be run.

#include "tests/Waiting.h"
#include "tests/unit/child_processes/ShellFixture.h"
#include "tests/unit/copy/ChildProcess.h"

#include <gmock/gmock.h>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ScriptTest : public ShellFixture {
protected:
    std::optional<QString> run(const std::string &lines, double timeout = endless) const {
        return ZTUtilities::runShellScript(script(lines), std::nullopt, timeout);
    }
};

// Signals that the process has set aside, as the kernel writes them.
const char *const printSignals = "sed -n 's/^Sig\\(Blk\\|Ign\\):\\t//p' /proc/self/status";

} // namespace

TEST_F(ScriptTest, bothStreamsComeInTheOrderWritten) {
    EXPECT_EQ(run("echo one; echo two >&2; echo three; echo four >&2"),
              u"one\ntwo\nthree\nfour\n"_s);
    EXPECT_THAT(temporaryFiles(), IsEmpty());
}

TEST_F(ScriptTest, parametersArriveUnchanged) {
    const QStringList parameters = {u"two words"_s, u""_s, u"'\"$HOME`*"_s, u"a\nb"_s, u"\u00E4"_s};
    EXPECT_EQ(ZTUtilities::runShellScript(script("printf '<%s>' \"$@\""), parameters, endless),
              u"<two words><><'\"$HOME`*><a\nb><\u00E4>"_s);
}

TEST_F(ScriptTest, withoutParametersThereAreNone) {
    EXPECT_EQ(run("echo $#"), u"0\n"_s);
}

TEST_F(ScriptTest, theHomeFolderIsTheWorkingFolder) {
    EXPECT_EQ(run("pwd -P"), QString::fromStdString(folder.path("home") + '\n'));
}

TEST_F(ScriptTest, aPathMayBeginInTheHomeFolder) {
    script("echo here", "home/bin/tool");
    EXPECT_EQ(ZTUtilities::runShellScript(u"~/bin/tool"_s, std::nullopt, endless), u"here\n"_s);
}

TEST_F(ScriptTest, thereIsNothingToRead) {
    EXPECT_EQ(run("cat; echo done"), u"done\n"_s);
}

TEST_F(ScriptTest, theStatusDoesNotMatter) {
    EXPECT_EQ(run("echo failing; exit 7"), u"failing\n"_s);
}

TEST_F(ScriptTest, whatAKilledScriptPrintedIsTheAnswer) {
    EXPECT_EQ(run("echo before; kill -KILL $$; echo after"), u"before\n"_s);
    EXPECT_TRUE(fakes.log.lines().isEmpty());
}

TEST_F(ScriptTest, whatIsNotUtf8IsNoAnswer) {
    EXPECT_EQ(run("printf 'caf\\351'"), std::nullopt);
    EXPECT_EQ(fakes.log.lines(),
              QStringList{u"error getting result: read output of tool: it is not UTF-8"_s});
    EXPECT_THAT(temporaryFiles(), IsEmpty());
}

TEST_F(ScriptTest, aScriptHasNoDescriptorsOfThisProcess) {
    const int inherited = ::open("/dev/zero", O_RDONLY); // NOLINT(android-cloexec-open)
    ASSERT_GE(inherited, 0);
    const auto seen = run("for d in /proc/$$/fd/*; do readlink $d; done");
    ::close(inherited);
    ASSERT_TRUE(seen);
    EXPECT_FALSE(seen->contains(u"/dev/zero"_s)) << seen->toStdString();
    EXPECT_EQ(seen->count(u"/temporary/"_s), 2) << seen->toStdString();
}

TEST_F(ScriptTest, aScriptHearsAllSignals) {
    const auto before = ::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigset_t mask;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &mask);
    const auto seen = run(printSignals);
    ::pthread_sigmask(SIG_SETMASK, &mask, nullptr);
    ::signal(SIGPIPE, before);
    ASSERT_TRUE(seen);
    const QStringList sets = seen->split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(sets.size(), 2);
    // Those above are the C library's own.
    constexpr quint64 namedSignals = 0x7FFFFFFF;
    for (const QString &set : sets)
        EXPECT_EQ(set.toULongLong(nullptr, 16) & namedSignals, 0U) << seen->toStdString();
}

TEST_F(ScriptTest, aScriptThatIsDoneInTimeLeavesItsDaemonAlone) {
    const std::string pidFile = folder.path("pid");
    EXPECT_EQ(run("sleep 600 & echo $! >" + pidFile + "; echo started"), u"started\n"_s);
    const pid_t daemon = processIn(pidFile);
    EXPECT_FALSE(isGone(daemon));
    EXPECT_THAT(temporaryFiles(), IsEmpty());
    EXPECT_TRUE(hasNoChildren());
    ::kill(daemon, SIGKILL);
}

TEST_F(ScriptTest, aTimeoutAnswersWhatWasPrintedBefore) {
    holdClockUntil(folder.path("ready"));
    EXPECT_EQ(run("echo before; echo >" + folder.path("ready") + "; exec sleep 600", 0.25),
              u"before\n"_s);
    EXPECT_EQ(fakes.log.lines(), QStringList{u"script timeout: tool (null)"_s});
    EXPECT_THAT(temporaryFiles(), IsEmpty());
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

TEST_F(ScriptTest, aTimeoutEndsAllThatWasStarted) {
    const std::string pidFile = folder.path("pid");
    holdClockUntil(folder.path("ready"));
    run("sleep 600 & echo $! >" + pidFile + "; echo >" + folder.path("ready") + "; wait", 0.25);
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return isGone(processIn(pidFile)); }));
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

TEST_F(ScriptTest, whoRefusesToEndIsForced) {
    const std::string pidFile = folder.path("pid");
    holdClockUntil(folder.path("ready"));
    run("trap '' TERM; sleep 600 & echo $! >" + pidFile + "; echo >" + folder.path("ready") +
            "; wait",
        0.25);
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return isGone(processIn(pidFile)); }));
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

TEST_F(ScriptTest, whoRefusesIsForcedAlsoWhenTheScriptItselfHasEnded) {
    const std::string pidFile = folder.path("pid");
    holdClockUntil(pidFile);
    run("sh -c \"trap '' TERM; echo \\$\\$ >" + pidFile + "; exec sleep 600\" & wait", 0.25);
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return isGone(processIn(pidFile)); }));
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

TEST_F(ScriptTest, aStoppedScriptEndsAtItsTimeout) {
    const std::string pidFile = folder.path("pid");
    holdClockUntil(pidFile);
    run("echo $$ >" + pidFile + "; kill -STOP $$", 0.25);
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return isGone(processIn(pidFile)); }));
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

TEST_F(ScriptTest, whoPrintsForEverIsEndedAndHeardUntilThen) {
    const std::string pidFile = folder.path("pid");
    holdClockUntil(pidFile);
    const auto output = run("echo $$ >" + pidFile + "; exec yes", 0.02);
    ASSERT_TRUE(output);
    EXPECT_EQ(output->count(u'y') + output->count(u'\n'), output->size());
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return isGone(processIn(pidFile)); }));
    EXPECT_THAT(temporaryFiles(), IsEmpty());
}

TEST_F(ScriptTest, withoutTimeARunningScriptIsEndedAtOnce) {
    EXPECT_EQ(run("exec sleep 600", -1), u""_s);
    EXPECT_THAT(fakes.log.lines(), SizeIs(1));
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

struct FailureRow {
    const char *reason;
    std::string path;
    std::string cause;
};

TEST_F(ScriptTest, aScriptThatCannotBeRunIsNamedWithTheReason) {
    const FailureRow rows[] = {
        {"not executable", folder.makeFile("x/tool", "#!/bin/sh\n"), "Permission denied"},
        {"missing", folder.path("missing/tool"), "No such file or directory"},
        {"a folder", folder.makeFolder("y/tool"), "Permission denied"},
        {"no script, and no shell to take it for one", folder.makeFile("z/tool", "echo hi\n", 0755),
         "Exec format error"},
        {"of an unknown language", folder.makeFile("u/tool", "#!/missing/shell\n", 0755),
         "its interpreter is missing"},
    };
    for (const FailureRow &row : rows) {
        EXPECT_EQ(ZTUtilities::runShellScript(QString::fromStdString(row.path), std::nullopt, 1)
                      ->toStdString(),
                  "script tool failed: launch " + row.path + ": " + row.cause)
            << row.reason;
    }
    EXPECT_TRUE(fakes.log.lines().isEmpty());
    EXPECT_TRUE(hasNoChildren());
}

TEST_F(ScriptTest, aScriptWithTooManyParametersIsNamedWithTheReason) {
    const QString path = script("echo hi");
    const QString large(200'000, u'x');
    EXPECT_EQ(ZTUtilities::runShellScript(path, QStringList{large}, 1),
              u"script tool failed: launch "_s + path + u": Argument list too long"_s);
}

TEST_F(ScriptTest, withoutAHomeFolderNoScriptIsRun) {
    const zt::testing::ScopedEnvironment noHome("HOME", folder.path("nobody"));
    EXPECT_EQ(run("echo hi"),
              QString::fromStdString("script tool failed: enter folder " + folder.path("nobody") +
                                     ": No such file or directory"));
}

TEST_F(ScriptTest, aProcessWithoutStandardStreamsCanRunScripts) {
    const QString path = script("cat; echo out; echo error >&2");
    EXPECT_EQ(zt::testing::inChildProcess([&]() -> std::string {
                  const int pipe = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 10);
                  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
                      ::close(stream);
                  const auto output = ZTUtilities::runShellScript(path, std::nullopt, endless);
                  const auto shell = ZTUtilities::shellCommandResult(u"echo shell"_s);
                  ::dup2(pipe, STDOUT_FILENO);
                  return (output.value_or(u"none"_s) + shell.value_or(u"none"_s)).toStdString();
              }),
              "out\nerror\nshell\n");
}

TEST_F(ScriptTest, aProcessThatIgnoresTheEndsOfItsChildrenCanRunScripts) {
    const QString path = script("echo out");
    EXPECT_EQ(zt::testing::inChildProcess([&]() -> std::string {
                  ::signal(SIGCHLD, SIG_IGN);
                  const auto output = ZTUtilities::runShellScript(path, std::nullopt, endless);
                  const auto shell = ZTUtilities::shellCommandResult(u"echo shell"_s);
                  return (output.value_or(u"none"_s) + shell.value_or(u"none"_s)).toStdString();
              }),
              "out\nshell\n");
}

TEST_F(ScriptTest, nothingStaysOpen) {
    const QString path = script("echo hi");
    ZTUtilities::runShellScript(path, std::nullopt, endless);
    const std::size_t before = openDescriptors();
    for (int run = 0; run < 20; ++run) {
        ZTUtilities::runShellScript(path, std::nullopt, endless);
        ZTUtilities::runShellScript(u"/missing"_s, std::nullopt, endless);
        ZTUtilities::shellCommandResult(u"echo hi"_s);
    }
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_TRUE(hasNoChildren());
}
