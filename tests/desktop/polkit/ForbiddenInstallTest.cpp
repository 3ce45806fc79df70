// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// As a user to whom polkit's rules allow nothing.

#include "tests/desktop/polkit/PrivilegedInstallFixture.h"

using ForbiddenInstallTest = PrivilegedInstallTest;

TEST_F(ForbiddenInstallTest, nobodyIsAskedAndTheLogSaysWhy) {
    start();
    PolkitAgent &agent = answer(PolkitAgent::Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(failed));
    EXPECT_TRUE(isLogged(u"not authorized: the system's rules do not allow it"_s));
    EXPECT_EQ(agent.requests, 0);
    EXPECT_TRUE(contentOfApplications().isEmpty());
}
