// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcFsText.h"

#include <gtest/gtest.h>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

// Of a shell on a kernel 6.1.
constexpr std::string_view shellStat =
    "2714 (bash) S 2713 2714 2714 34816 2790 4194304 1553 28913 0 12 37 5 211 80 20 0 1 0 "
    "1260533 8409088 1257 18446744073709551615 94209403994112 94209404902245 140725338398208 0 0 "
    "0 65536 3686404 1266761467 1 0 0 17 1 0 0 0 0 0 94209405142576 94209405191012 "
    "94209412534272 140725338403170 140725338403176 140725338403176 140725338406894 0\n";

std::string withName(const std::string &name) {
    return "2714 (" + name + std::string(shellStat.substr(shellStat.find(") S")));
}

std::string withState(char state, int threads) {
    std::string text(shellStat);
    text.replace(text.find(") S") + 2, 1, 1, state);
    text.replace(text.find(" 20 0 1 0 ") + 6, 1, std::to_string(threads));
    return text;
}

} // namespace

TEST(ProcStatTest, aCapturedLineIsRead) {
    const auto stat = zt::parseProcStat(shellStat);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->pid, 2714);
    EXPECT_EQ(stat->name, "bash");
    EXPECT_EQ(stat->state, 'S');
    EXPECT_EQ(stat->parent, 2713);
    EXPECT_EQ(stat->userTicks, 37U);
    EXPECT_EQ(stat->threads, 1);
    EXPECT_EQ(stat->startTicks, 1260533U);
    EXPECT_TRUE(stat->isRunning());
}

class ProcStatNameTest : public testing::TestWithParam<std::pair<const char *, std::string>> {};

TEST_P(ProcStatNameTest, theNameMayHoldAnything) {
    const std::string &name = GetParam().second;
    const auto stat = zt::parseProcStat(withName(name));
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, name);
    EXPECT_EQ(stat->pid, 2714);
    EXPECT_EQ(stat->startTicks, 1260533U);
}

INSTANTIATE_TEST_SUITE_P(
    Names, ProcStatNameTest,
    testing::Values(std::pair("blanks", "Web Content x"s), std::pair("closingBracket", "a) S 1"s),
                    std::pair("openingBracket", "(sd-pam)"s), std::pair("newline", "a\nb"s),
                    std::pair("onlyBrackets", ")))"s), std::pair("empty", ""s),
                    std::pair("notUtf8", "\xFF\xFE"s),
                    std::pair("aThreadOfTheKernel", "kworker/u16:3-events_unbound"s)),
    [](const auto &information) { return std::string(information.param.first); });

TEST(ProcStatTest, aTextOfAnotherKindIsRefused) {
    for (const std::string_view text :
         {""sv, "2714"sv, "2714 (bash)"sv, "2714 (bash) "sv, "2714 (bash) S 1 2"sv, "(bash) S"sv,
          "x (bash) S 1"sv, ") ("sv, " (a) S"sv, "\n\n"sv})
        EXPECT_FALSE(zt::parseProcStat(text)) << text;
    EXPECT_FALSE(zt::parseProcStat("99999999999 (bash" + std::string(shellStat.substr(10))));
}

TEST(ProcStatTest, fieldsThatAnOldKernelDoesNotWriteAreNotMissed) {
    const std::string_view old = shellStat.substr(0, shellStat.find(" 0 65536"));
    EXPECT_TRUE(zt::parseProcStat(old));
}

TEST(ProcStatTest, aZombieDoesNotRun) {
    EXPECT_FALSE(zt::parseProcStat(withState('Z', 1))->isRunning());
    EXPECT_FALSE(zt::parseProcStat(withState('X', 1))->isRunning());
}

TEST(ProcStatTest, aProcessWhoseFirstThreadAloneHasEndedRuns) {
    EXPECT_TRUE(zt::parseProcStat(withState('Z', 2))->isRunning());
}

TEST(ProcStatTest, aStoppedProcessRuns) {
    EXPECT_TRUE(zt::parseProcStat(withState('T', 1))->isRunning());
}

TEST(ProcStatTest, anotherProgramHasAnotherImage) {
    const auto before = zt::parseProcStat(shellStat);
    std::string text(shellStat);
    text.replace(text.find("140725338398208"), 15, "140725338398224");
    EXPECT_NE(zt::parseProcStat(text)->image, before->image);
}

TEST(ProcStatTest, theImageStaysWhileTheProgramRuns) {
    std::string text = withState('R', 3);
    text.replace(text.find(" 37 5 "), 6, " 99 7 ");
    EXPECT_EQ(zt::parseProcStat(text)->image, zt::parseProcStat(shellStat)->image);
}

TEST(ProcFsTextTest, aCommandLineIsSplitAtItsZeroBytes) {
    EXPECT_EQ(zt::parseCommandLine("sh\0-c\0a b\nc\0"sv),
              (std::vector<std::string>{"sh", "-c", "a b\nc"}));
    EXPECT_EQ(zt::parseCommandLine("sh\0\0x\0"sv), (std::vector<std::string>{"sh", "", "x"}));
    EXPECT_EQ(zt::parseCommandLine("title without end"sv),
              std::vector<std::string>{"title without end"});
    EXPECT_TRUE(zt::parseCommandLine("").empty());
}

TEST(ProcFsTextTest, theEffectiveUserIsTheSecondOne) {
    EXPECT_EQ(zt::parseEffectiveUser("Name:\tsu\nUmask:\t0022\nUid:\t1000\t0\t0\t0\nGid:\t1\t1\n"),
              0U);
    EXPECT_EQ(zt::parseEffectiveUser("Uid:\t0\t1000\t0\t0\n"), 1000U);
}

TEST(ProcFsTextTest, aStatusWithoutUsersGivesNone) {
    EXPECT_FALSE(zt::parseEffectiveUser("Name:\tUid:\t1\t2\n"));
    EXPECT_FALSE(zt::parseEffectiveUser("Uid:\t1000"));
    EXPECT_FALSE(zt::parseEffectiveUser(""));
}

TEST(ProcFsTextTest, theTracerIsAProcessOrNone) {
    EXPECT_EQ(zt::parseTracer("Name:\tsu\nPPid:\t1\nTracerPid:\t4711\nUid:\t0\n"), 4711);
    EXPECT_EQ(zt::parseTracer("TracerPid:\t0\n"), 0);
    for (const std::string_view status : {""sv, "Name:\tTracerPid:\t1\n"sv, "TracerPid:\tx\n"sv})
        EXPECT_FALSE(zt::parseTracer(status)) << status;
}

TEST(ProcFsTextTest, theLastProcessIdEndsTheLoadAverages) {
    EXPECT_EQ(zt::parseLastProcessId("0.42 0.33 0.21 2/612 31337\n"), 31337);
    EXPECT_FALSE(zt::parseLastProcessId("0.42 0.33 0.21 2/612\n"));
    EXPECT_FALSE(zt::parseLastProcessId(""));
}

TEST(ProcFsTextTest, onlyNumbersAreFoldersOfProcesses) {
    EXPECT_EQ(zt::parseProcessId("1"), 1);
    EXPECT_EQ(zt::parseProcessId("4194304"), 4194304);
    for (const std::string_view name : {""sv, "0"sv, "-1"sv, "self"sv, "12a"sv, "99999999999"sv})
        EXPECT_FALSE(zt::parseProcessId(name)) << name;
}

TEST(ProcFsTextTest, theMarkOfADeletedFileIsTakenOff) {
    const zt::MarkedPath marked = zt::splitDeletedMark("/a/b (deleted)");
    EXPECT_EQ(marked.path, "/a/b");
    EXPECT_TRUE(marked.hasDeletedMark);
    const zt::MarkedPath plain = zt::splitDeletedMark("/a (deleted)/b");
    EXPECT_EQ(plain.path, "/a (deleted)/b");
    EXPECT_FALSE(plain.hasDeletedMark);
}

TEST(ProcFsTextTest, theInnermostBundleIsFound) {
    EXPECT_EQ(zt::innermostBundlePath("/A/X.app/Contents/Linux/x"), "/A/X.app");
    EXPECT_EQ(zt::innermostBundlePath("/A/X.app/Contents/Y.APP/y"), "/A/X.app/Contents/Y.APP");
    EXPECT_EQ(zt::innermostBundlePath("/A/X.app"), "/A/X.app");
    EXPECT_EQ(zt::innermostBundlePath("/A/X.apps/x"), "");
    EXPECT_EQ(zt::innermostBundlePath("/usr/bin/app"), "");
    EXPECT_EQ(zt::innermostBundlePath(""), "");
}
