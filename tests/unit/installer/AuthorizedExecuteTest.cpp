// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/AuthorizedExecute.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = zt::ChildEnd::Kind;

namespace {

struct Row {
    const char *reason;
    std::int32_t executeStatus;
    zt::ChildEnd end;
    std::int32_t result;
    QStringList log;
};

void PrintTo(const Row &row, std::ostream *out) {
    *out << row.reason;
}

} // namespace

class AuthorizedExecuteTest : public testing::TestWithParam<Row> {};

TEST_P(AuthorizedExecuteTest, tellsHowTheToolEnded) {
    const Row &row = GetParam();
    FakePlatform platform;
    platform.authorization.executeStatus = row.executeStatus;
    platform.authorization.end = row.end;
    const auto authorization = platform.authorization.create();
    EXPECT_EQ(
        AuthorizedExecute(*authorization, {.tool = u"/i/train"_s, .arguments = {}, .input = {}}),
        row.result);
    EXPECT_EQ(platform.log.lines(), row.log);
}

INSTANTIATE_TEST_SUITE_P(
    Ends, AuthorizedExecuteTest,
    testing::Values(
        Row{"well", 0, {Kind::Exited, 0}, 0, {}},
        Row{"withAStatus", 0, {Kind::Exited, 1}, -1, {u"WEXITSTATUS"_s}},
        Row{"withTheStatusOfARefusedPrompt", 0, {Kind::Exited, 126}, -1, {u"WEXITSTATUS"_s}},
        Row{"byASignal", 0, {Kind::Signaled, 9}, -1, {u"!WIFEXITED"_s}},
        Row{"lostCountsAsWell", 0, {Kind::Lost, 0}, 0, {u"no pid"_s}},
        Row{"neverStarted",
            zt::AuthorizationStatus::toolExecuteFailure,
            {Kind::Exited, 0},
            zt::AuthorizationStatus::toolExecuteFailure,
            {u"AuthorizationExecuteWithPrivileges failed (/i/train)"_s}}),
    [](const auto &row) { return row.param.reason; });
