// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every service for child processes does, shown by the native one and by the fake.

#include "tests/Waiting.h"
#include "tests/unit/child_processes/ShellFixture.h"

using namespace Qt::StringLiterals;

namespace {

const zt::ChildProcesses::Program printsHi = {
    .path = u"/bin/echo"_s, .arguments = {u"hi"_s}, .workingFolder = u"/"_s};
const zt::ChildProcesses::Program goesOn = {
    .path = u"/bin/sleep"_s, .arguments = {u"600"_s}, .workingFolder = u"/"_s};
const zt::ChildProcesses::Program isMissing = {
    .path = u"/missing/program"_s, .arguments = {}, .workingFolder = u"/"_s};

struct RealCase {
    zt::SpawnedChildProcesses service{std::chrono::milliseconds(20)};
    void expect(const FakeChild & /*child*/) {}
};

struct FakeCase {
    FakeChildProcesses service;
    void expect(const FakeChild &child) { service.child = child; }
};

} // namespace

template <typename Case>
class ChildProcessesContractTest : public testing::Test {
protected:
    Case implementation;
};

using Services = testing::Types<RealCase, FakeCase>;
TYPED_TEST_SUITE(ChildProcessesContractTest, Services);

TYPED_TEST(ChildProcessesContractTest, whatAnEndedProgramPrintedCanBeRead) {
    this->implementation.expect({.questions = 2, .output = "hi\n"});
    const auto child = this->implementation.service.start(printsHi);
    ASSERT_TRUE(child);
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return !(*child)->isRunning(); }));
    const auto output = (*child)->output();
    ASSERT_TRUE(output);
    EXPECT_EQ(*output, "hi\n");
}

TYPED_TEST(ChildProcessesContractTest, aProgramRunsUntilItIsTerminated) {
    this->implementation.expect({.questions = -1, .output = {}});
    const auto child = this->implementation.service.start(goesOn);
    ASSERT_TRUE(child);
    EXPECT_TRUE((*child)->isRunning());
    (*child)->terminate();
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return !(*child)->isRunning(); }));
}

TYPED_TEST(ChildProcessesContractTest, waitingEndsWithTheProgram) {
    this->implementation.expect({.questions = 2, .output = {}});
    const auto child = this->implementation.service.start(printsHi);
    ASSERT_TRUE(child);
    (*child)->waitForEnd(std::chrono::hours(1));
    EXPECT_FALSE((*child)->isRunning());
}

TYPED_TEST(ChildProcessesContractTest, waitingForAProgramThatGoesOnIsOverInTime) {
    this->implementation.expect({.questions = -1, .output = {}});
    const auto child = this->implementation.service.start(goesOn);
    ASSERT_TRUE(child);
    (*child)->waitForEnd(std::chrono::milliseconds(1));
    EXPECT_TRUE((*child)->isRunning());
    (*child)->terminate();
}

TYPED_TEST(ChildProcessesContractTest, anEndedProgramMayBeTerminated) {
    this->implementation.expect({.questions = 0, .output = {}});
    const auto child = this->implementation.service.start(printsHi);
    ASSERT_TRUE(child);
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return !(*child)->isRunning(); }));
    (*child)->terminate();
    EXPECT_FALSE((*child)->isRunning());
}

TYPED_TEST(ChildProcessesContractTest, aMissingProgramIsAnErrorThatNamesIt) {
    this->implementation.expect(
        {.questions = 0,
         .output = {},
         .startFailure = zt::Error::fromErrno("launch", "/missing/program", ENOENT)});
    const auto child = this->implementation.service.start(isMissing);
    ASSERT_FALSE(child);
    EXPECT_EQ(child.error().text(), "launch /missing/program: No such file or directory");
    EXPECT_EQ(child.error().code, ENOENT);
}

TYPED_TEST(ChildProcessesContractTest, aShellPrintsToItsCaller) {
    this->implementation.expect({.questions = 0, .output = "hi\n"});
    const auto output = this->implementation.service.standardOutputOfShell(u"echo hi"_s);
    ASSERT_TRUE(output);
    EXPECT_EQ(*output, "hi\n");
}
