// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/Waiting.h"
#include "tests/unit/child_processes/ShellFixture.h"
#include "tests/unit/copy/ChildProcess.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

using ShellCommandTest = ShellFixture;

TEST_F(ShellCommandTest, aCommandsOutputIsTheAnswer) {
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"echo hi"_s), u"hi\n"_s);
    EXPECT_TRUE(hasNoChildren());
}

TEST_F(ShellCommandTest, theLineIsTheShells) {
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"a='x y'; printf '%s|' $a \"$a\" \u00E4"_s),
              u"x|y|x y|\u00E4|"_s);
}

TEST_F(ShellCommandTest, aCommandThatFailsHasPrintedWhatItHas) {
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"echo partly; exit 3"_s), u"partly\n"_s);
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"exit 3"_s), u""_s);
    EXPECT_TRUE(fakes.log.lines().isEmpty());
}

TEST_F(ShellCommandTest, theErrorStreamIsThisProcesss) {
    EXPECT_EQ(zt::testing::inChildProcess([&]() -> std::string {
                  const std::string path = folder.makeFile("errors");
                  ::dup2(::open(path.c_str(), O_WRONLY | O_CLOEXEC), STDERR_FILENO);
                  const auto output = ZTUtilities::shellCommandResult(u"echo out; echo err >&2"_s);
                  return output.value_or(u"none"_s).toStdString() + zt::testing::contentOf(path);
              }),
              "out\nerr\n");
}

TEST_F(ShellCommandTest, theInputIsThisProcesss) {
    EXPECT_EQ(
        zt::testing::inChildProcess([&]() -> std::string {
            const std::string path = folder.makeFile("input", "to be read\n");
            ::dup2(::open(path.c_str(), O_RDONLY | O_CLOEXEC), STDIN_FILENO);
            return ZTUtilities::shellCommandResult(u"cat"_s).value_or(u"none"_s).toStdString();
        }),
        "to be read\n");
}

TEST_F(ShellCommandTest, megabytesOfOutputAreReadWhole) {
    constexpr qsizetype size = 20'000'000;
    const auto output =
        ZTUtilities::shellCommandResult(u"head -c 20000000 /dev/zero | tr '\\0' x"_s);
    ASSERT_TRUE(output);
    EXPECT_EQ(output->size(), size);
    EXPECT_EQ(output->count(u'x'), size);
}

TEST_F(ShellCommandTest, outputThatIsNotUtf8IsNoAnswer) {
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"printf '\\377'"_s), std::nullopt);
    EXPECT_TRUE(fakes.log.lines().isEmpty());
}

TEST_F(ShellCommandTest, whoClosesItsOutputMayLiveOnAndLeavesNoZombie) {
    const auto output = ZTUtilities::shellCommandResult(u"echo $$; exec sleep 600 >&-"_s);
    ASSERT_TRUE(output);
    const pid_t child = output->trimmed().toInt();
    EXPECT_FALSE(isGone(child));
    ::kill(child, SIGKILL);
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
}

TEST_F(ShellCommandTest, aCommandRunsInTheGroupOfThisProcess) {
    // So that an interrupt from the keyboard ends both.
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"ps -o pgid= -p $$"_s)->trimmed(),
              QString::number(::getpgrp()));
}
