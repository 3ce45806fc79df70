// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TerminationRequests.h"

#include <gtest/gtest.h>

#include <poll.h>

#include <csignal>

namespace zt {
namespace {

bool isReadable(int descriptor) {
    pollfd entry{.fd = descriptor, .events = POLLIN, .revents = 0};
    return ::poll(&entry, 1, 0) == 1;
}

// What the signal does now.
auto handlerOf(int signal) {
    struct sigaction action = {};
    EXPECT_EQ(::sigaction(signal, nullptr, &action), 0);
    return action.sa_handler;
}

class TerminationRequestsTest : public ::testing::TestWithParam<int> {};

TEST_P(TerminationRequestsTest, aRequestIsSeenInPlaceOfTheProcessesEnd) {
    const TerminationRequests requests;
    EXPECT_FALSE(isReadable(requests.descriptor()));
    ASSERT_EQ(::raise(GetParam()), 0);
    EXPECT_TRUE(isReadable(requests.descriptor()));
    ASSERT_EQ(::raise(GetParam()), 0);
    EXPECT_TRUE(isReadable(requests.descriptor()));
}

TEST_P(TerminationRequestsTest, afterwardsTheSignalDoesWhatItDidBefore) {
    const auto before = handlerOf(GetParam());
    {
        const TerminationRequests requests;
        EXPECT_NE(handlerOf(GetParam()), before);
    }
    EXPECT_EQ(handlerOf(GetParam()), before);
}

TEST_P(TerminationRequestsTest, whatWasIgnoredStaysIgnored) {
    const auto before = ::signal(GetParam(), SIG_IGN);
    {
        const TerminationRequests requests;
        ASSERT_EQ(::raise(GetParam()), 0);
        EXPECT_FALSE(isReadable(requests.descriptor()));
    }
    EXPECT_EQ(handlerOf(GetParam()), SIG_IGN);
    ::signal(GetParam(), before);
}

INSTANTIATE_TEST_SUITE_P(Signals, TerminationRequestsTest,
                         ::testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto &row) { return 'n' + std::to_string(row.param); });

} // namespace
} // namespace zt
