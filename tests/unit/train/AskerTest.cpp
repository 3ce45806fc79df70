// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/Asker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace zt {
namespace {

struct NumberRow {
    const char *reason;
    const char *text;
    std::optional<uid_t> user;
};

void PrintTo(const NumberRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class UserIdTest : public ::testing::TestWithParam<NumberRow> {};

TEST_P(UserIdTest, onlyAPlainNumberIsAUser) {
    EXPECT_EQ(parseUserId(GetParam().text), GetParam().user);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, UserIdTest,
    ::testing::Values(NumberRow{"root", "0", 0}, NumberRow{"usual", "1000", 1000},
                      NumberRow{"highest", "4294967294", 4294967294},
                      NumberRow{"standsForNobody", "4294967295", std::nullopt},
                      NumberRow{"tooLarge", "4294967296", std::nullopt},
                      NumberRow{"wouldBeRootIfCutOff", "4294967296000", std::nullopt},
                      NumberRow{"negative", "-1", std::nullopt},
                      NumberRow{"withSign", "+1000", std::nullopt},
                      NumberRow{"hexadecimal", "0x3e8", std::nullopt},
                      NumberRow{"blankBefore", " 1000", std::nullopt},
                      NumberRow{"blankAfter", "1000 ", std::nullopt},
                      NumberRow{"name", "root", std::nullopt},
                      NumberRow{"nothing", "", std::nullopt}));

TEST(AskerTest, rootIsKnownOnEverySystem) {
    const Result<Asker> root = findAsker(0);
    ASSERT_TRUE(root) << root.error().text();
    EXPECT_TRUE(root->isRoot());
    EXPECT_EQ(root->identity.user, 0U);
    EXPECT_TRUE(root->homeFolder.starts_with('/'));
    EXPECT_THAT(root->groups, ::testing::Contains(root->identity.group));
}

TEST(AskerTest, aUserThatTheSystemDoesNotKnowIsNone) {
    const Result<Asker> unknown = findAsker(3'999'999'999);
    ASSERT_FALSE(unknown);
    EXPECT_EQ(unknown.error().code, ENOENT);
}

} // namespace
} // namespace zt
