// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/FreedesktopTrashRecord.h"

#include "tests/unit/copy/ScopedEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace zt {
namespace {

struct EncodingRow {
    const char *reason;
    std::string path;
    std::string encoded;
};

void PrintTo(const EncodingRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class PercentEncodedPathTest : public ::testing::TestWithParam<EncodingRow> {};

TEST_P(PercentEncodedPathTest, bytesThatMayNotStandAreEscaped) {
    EXPECT_EQ(percentEncodedPath(GetParam().path), GetParam().encoded);
}

INSTANTIATE_TEST_SUITE_P(Paths, PercentEncodedPathTest,
                         ::testing::Values(EncodingRow{"plain", "/a/B-9_.~", "/a/B-9_.~"},
                                           EncodingRow{"space", "/a b", "/a%20b"},
                                           EncodingRow{"percent", "/100%", "/100%25"},
                                           EncodingRow{"lineEnd", "/a\nPath=/b", "/a%0APath%3D/b"},
                                           EncodingRow{"letters", "/\xC3\xBC", "/%C3%BC"},
                                           EncodingRow{"anyByte", "/\xFF\x01", "/%FF%01"},
                                           EncodingRow{"empty", "", ""}),
                         [](const auto &row) { return row.param.reason; });

TEST(TrashRecordTest, aRecordHoldsOriginAndLocalDate) {
    const testing::ScopedEnvironment zone("TZ", "UTC-3");
    EXPECT_EQ(trashRecord("/opt/A b.app", 1795214152),
              "[Trash Info]\nPath=/opt/A%20b.app\nDeletionDate=2026-11-21T01:35:52\n");
}

TEST(NameInTrashTest, theFirstNameIsTheItemsOwn) {
    EXPECT_EQ(nameInTrash("Product.app", 1), "Product.app");
}

TEST(NameInTrashTest, aFurtherNameHasANumberBeforeTheExtension) {
    EXPECT_EQ(nameInTrash("Product.app", 2), "Product.2.app");
    EXPECT_EQ(nameInTrash("Product", 3), "Product.3");
    EXPECT_EQ(nameInTrash(".hidden", 2), ".hidden.2");
}

TEST(NameInTrashTest, afterManyAttemptsTheNamesAreRandom) {
    EXPECT_NE(nameInTrash("Product.app", 1000), nameInTrash("Product.app", 1000));
}

TEST(NameInTrashTest, aLongNameLeavesRoomForTheRecord) {
    const std::string longName = std::string(251, 'n') + ".app";
    for (const unsigned attempt : {1U, 2U, 1000U}) {
        const std::string name = nameInTrash(longName, attempt);
        EXPECT_LE(name.size() + std::string(".trashinfo").size(), 255U);
        EXPECT_THAT(name, ::testing::EndsWith(".app"));
    }
}

TEST(NameInTrashTest, aLongNameIsNotCutWithinACharacter) {
    std::string longName;
    for (int i = 0; i < 85; ++i)
        longName += "\xE2\x82\xAC"; // three bytes each
    const std::string name = nameInTrash(longName, 1);
    EXPECT_LE(name.size(), 245U);
    EXPECT_EQ(name.size() % 3, 0U);
}

TEST(NameInTrashTest, aLongNameOfOtherBytesIsCutAnywhere) {
    EXPECT_EQ(nameInTrash(std::string(255, '\x80'), 1), std::string(245, '\x80'));
}

} // namespace
} // namespace zt
