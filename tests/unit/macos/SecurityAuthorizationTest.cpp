// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/SecurityAuthorization.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/macos/StandInTest.h"

#include <csignal>

using namespace Qt::StringLiterals;
namespace Status = zt::AuthorizationStatus;

class SecurityAuthorizationTest : public StandInTest {
protected:
    zt::ChildEnd endOf(const QString &script) {
        const auto reference = authorization.create();
        const zt::PrivilegedCommand command = {
            .tool = u"/bin/sh"_s, .arguments = {u"-c"_s, script}, .input = {}};
        EXPECT_EQ(reference->executeWithPrivileges(command), Status::success);
        return reference->waitForChild();
    }

    FakeLog log;
    zt::SecurityAuthorization authorization{log};
};

TEST_F(SecurityAuthorizationTest, theRightOfAdministratorsIsAskedFor) {
    EXPECT_EQ(authorization.create()->requestRight({}, {}), Status::success);
    EXPECT_EQ(standin::consent.rights, std::vector<std::string>{"system.privilege.admin"});
    EXPECT_EQ(standin::consent.flags, std::vector<AuthorizationFlags>{0x13});
}

TEST_F(SecurityAuthorizationTest, aDismissedDialogIsNoError) {
    standin::consent.answerToRequest = errAuthorizationCanceled;
    EXPECT_EQ(authorization.create()->requestRight({}, {}), Status::canceled);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(SecurityAuthorizationTest, aRefusalIsToldInTheLog) {
    standin::consent.answerToRequest = errAuthorizationDenied;
    EXPECT_EQ(authorization.create()->requestRight({}, {}), Status::denied);
    EXPECT_EQ(log.lines(), QStringList{u"not authorized: error -60005"_s});
}

TEST_F(SecurityAuthorizationTest, aStopRequestCountsAsCancellation) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(authorization.create()->requestRight({}, stop.get_token()), Status::canceled);
    EXPECT_TRUE(standin::consent.rights.empty());
}

TEST_F(SecurityAuthorizationTest, withoutAuthorizationsThereIsNoneAndALineSaysSo) {
    standin::consent.answerToCreation = errAuthorizationInternal;
    EXPECT_FALSE(authorization.create());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(SecurityAuthorizationTest, theToolGetsItsArgumentsAndNoOthers) {
    const auto reference = authorization.create();
    const zt::PrivilegedCommand command = {
        .tool = u"/bin/true"_s, .arguments = {u"/a \u00E9"_s, u""_s}, .input = {}};
    EXPECT_EQ(reference->executeWithPrivileges(command), Status::success);
    EXPECT_EQ(standin::consent.programs,
              (std::vector<std::vector<std::string>>{{"/bin/true", "/a \xC3\xA9", ""}}));
    EXPECT_EQ(reference->waitForChild().kind, zt::ChildEnd::Kind::Exited);
}

TEST_F(SecurityAuthorizationTest, theEndOfTheToolIsToldAsItWas) {
    const zt::ChildEnd good = endOf(u"exit 0"_s);
    EXPECT_EQ(good.kind, zt::ChildEnd::Kind::Exited);
    EXPECT_EQ(good.status, 0);
    const zt::ChildEnd failed = endOf(u"exit 3"_s);
    EXPECT_EQ(failed.kind, zt::ChildEnd::Kind::Exited);
    EXPECT_EQ(failed.status, 3);
    const zt::ChildEnd killed = endOf(u"kill -9 $$"_s);
    EXPECT_EQ(killed.kind, zt::ChildEnd::Kind::Signaled);
    EXPECT_EQ(killed.status, SIGKILL);
}

TEST_F(SecurityAuthorizationTest, aToolThatIsNotThereCannotBeExecuted) {
    const auto reference = authorization.create();
    EXPECT_EQ(reference->executeWithPrivileges(
                  {.tool = u"/missing/tool"_s, .arguments = {}, .input = {}}),
              Status::toolExecuteFailure);
    EXPECT_EQ(reference->waitForChild().kind, zt::ChildEnd::Kind::Lost);
}
