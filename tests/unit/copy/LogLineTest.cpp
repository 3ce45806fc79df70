// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/LogLine.h"
#include "Platform/posix/RecentLines.h"
#include "Platform/posix/SystemCalls.h"
#include "tests/unit/copy/ScopedEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <array>
#include <cerrno>

namespace zt {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::system_clock;

class LogLineTest : public ::testing::Test {
protected:
    testing::ScopedEnvironment m_zone{"TZ", "UTC-3"}; // three hours east of Greenwich
};

TEST_F(LogLineTest, aLineHasLocalTimeProgramAndProcess) {
    const system_clock::time_point time(seconds(1795214152) + milliseconds(7));
    EXPECT_EQ(formatLogLine(time, "VelmoraInstaller", 1234, "Install"),
              "2026-11-21 01:35:52.007 VelmoraInstaller[1234] Install");
}

TEST_F(LogLineTest, aTimeBeforeTheEpochIsRoundedDown) {
    EXPECT_THAT(formatLogLine(system_clock::time_point(milliseconds(-1)), "p", 1, "m"),
                ::testing::StartsWith("1970-01-01 02:59:59.999 "));
}

struct EscapeRow {
    const char *reason;
    std::string message;
    std::string shown;
};

void PrintTo(const EscapeRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class LogLineEscapeTest : public ::testing::TestWithParam<EscapeRow> {};

TEST_P(LogLineEscapeTest, oneEventIsOneLine) {
    const std::string line = formatLogLine(system_clock::time_point(), "p", 1, GetParam().message);
    EXPECT_EQ(line.substr(line.find("] ") + 2), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, LogLineEscapeTest,
    ::testing::Values(
        EscapeRow{"plain", "Quitting 'abcd': Product", "Quitting 'abcd': Product"},
        EscapeRow{"lineEnd", "a\nb\r\nc", "a\\nb\\r\\nc"}, EscapeRow{"tab", "a\tb", "a\\tb"},
        EscapeRow{"terminalControl", "\x1b[2J", "\\x1b[2J"},
        EscapeRow{"nul", std::string("a\0b", 3), "a\\x00b"}, EscapeRow{"delete", "\x7f", "\\x7f"},
        EscapeRow{"nextLine", "a\xC2\x85z", "a\\u0085z"},
        EscapeRow{"lineSeparator", "\xE2\x80\xA8", "\\u2028"},
        EscapeRow{"paragraphSeparator", "\xE2\x80\xA9", "\\u2029"},
        EscapeRow{"letters", "Gr\xC3\xBC\xC3\x9F \xE2\x80\x93 \xF0\x9F\x8D\x8E",
                  "Gr\xC3\xBC\xC3\x9F \xE2\x80\x93 \xF0\x9F\x8D\x8E"},
        EscapeRow{"nonBreakingSpace", "\xC2\xA0", "\xC2\xA0"},
        EscapeRow{"bytesThatAreNotUtf8", "\xFF\xC2 \x80\xE2\x80", "\xFF\xC2 \x80\xE2\x80"},
        EscapeRow{"empty", "", ""}),
    [](const auto &row) { return row.param.reason; });

// Runs `body` in a child whose standard error is a pipe, and answers what came through it.
template <typename Body>
std::string standardErrorOf(Body body) {
    std::array<int, 2> ends = {};
    EXPECT_EQ(::pipe(ends.data()), 0);
    const UniqueFd reading(ends[0]);
    UniqueFd writing(ends[1]);
    const UniqueFd saved(::dup(STDERR_FILENO));
    ::dup2(writing.get(), STDERR_FILENO);
    body();
    ::dup2(saved.get(), STDERR_FILENO);
    writing.reset();
    std::string text(65536, '\0');
    const ssize_t count = readFully(reading.get(), text.data(), text.size());
    text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return text;
}

TEST_F(LogLineTest, writingEndsTheLineAndNamesThisProcess) {
    const std::string text = standardErrorOf([] { writeLogLine("one\ntwo"); });
    EXPECT_THAT(text,
                ::testing::EndsWith("posix_tests[" + std::to_string(::getpid()) + "] one\\ntwo\n"));
}

TEST_F(LogLineTest, writingLeavesErrnoAsItIs) {
    const UniqueFd saved(::dup(STDERR_FILENO));
    ::close(STDERR_FILENO);
    errno = ENOTTY;
    writeLogLine("nobody reads this");
    const int after = errno;
    ::dup2(saved.get(), STDERR_FILENO);
    EXPECT_EQ(after, ENOTTY);
}

} // namespace
} // namespace zt

TEST(RecentLinesTest, linesAreKeptInTheirOrder) {
    zt::RecentLines lines(10);
    EXPECT_TRUE(lines.lines().empty());
    lines.add("one");
    lines.add("two\nthree\n");
    lines.add("");
    lines.add("\nfour");
    EXPECT_EQ(lines.lines(), (std::vector<std::string>{"one", "two", "three", "", "four"}));
}

TEST(RecentLinesTest, theOldestOfTooManyAreDropped) {
    zt::RecentLines lines(2);
    lines.add("one\ntwo\nthree");
    EXPECT_EQ(lines.lines(), (std::vector<std::string>{"two", "three"}));
}
