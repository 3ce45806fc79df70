// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/registration/SampleRecord.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using zt::ApplicationRecord;

TEST(ApplicationRecordTest, whatIsPackedIsRead) {
    ApplicationRecord record = sampleRecord();
    record.isBackgroundOnly = true;
    const auto read = zt::parseRecord(zt::packedRecord(record));
    ASSERT_TRUE(read) << read.error().text();
    EXPECT_EQ(zt::packedRecord(*read), zt::packedRecord(record));
    EXPECT_EQ(read->identifier, record.identifier);
    EXPECT_EQ(read->executable, record.executable);
    EXPECT_EQ(read->names[1].text, "Notizen");
    EXPECT_EQ(read->newFileTypes.front().suffixes, record.newFileTypes.front().suffixes);
    EXPECT_EQ(read->icons[2].content, record.icons[2].content);
    EXPECT_EQ(read->icons[2].size, 256U);
    EXPECT_TRUE(read->isBackgroundOnly);
}

TEST(ApplicationRecordTest, aRecordCutShortAnywhereIsNeverMoreThanItSays) {
    const std::string packed = zt::packedRecord(sampleRecord());
    for (std::size_t length = 0; length < packed.size(); ++length) {
        const auto read = zt::parseRecord(std::string_view(packed).substr(0, length));
        if (!read)
            continue; // else it was cut between two fields
        EXPECT_EQ(read->identifier, sampleRecord().identifier) << length;
        EXPECT_LE(read->mimeTypes.size(), sampleRecord().mimeTypes.size()) << length;
        for (std::size_t i = 0; i < read->mimeTypes.size(); ++i)
            EXPECT_EQ(read->mimeTypes[i], sampleRecord().mimeTypes[i]) << length;
    }
}

namespace {

struct Row {
    const char *reason;
    std::function<void(ApplicationRecord &)> spoil;
};

void PrintTo(const Row &row, std::ostream *out) {
    *out << row.reason;
}

} // namespace

class BadRecordTest : public testing::TestWithParam<Row> {};

TEST_P(BadRecordTest, isRefusedBothWays) {
    ApplicationRecord record = sampleRecord();
    GetParam().spoil(record);
    EXPECT_FALSE(zt::checkRecord(record));
    EXPECT_FALSE(zt::parseRecord(zt::packedRecord(record)));
}

INSTANTIATE_TEST_SUITE_P(
    Reasons, BadRecordTest,
    testing::Values(
        Row{"noIdentifier", [](auto &r) { r.identifier.clear(); }},
        Row{"identifierLeadsOut", [](auto &r) { r.identifier = "../x"; }},
        Row{"identifierHidesTheFile", [](auto &r) { r.identifier = ".x"; }},
        Row{"identifierHasASlash", [](auto &r) { r.identifier = "a/b"; }},
        Row{"identifierTooLong", [](auto &r) { r.identifier = std::string(201, 'a'); }},
        Row{"pathIsRelative", [](auto &r) { r.bundlePath = "Applications/Notes.app"; }},
        Row{"pathHasADetour", [](auto &r) { r.bundlePath = "/Applications/../etc"; }},
        Row{"programLeadsOut", [](auto &r) { r.executable = "../../usr/bin/env"; }},
        Row{"programIsAbsolute", [](auto &r) { r.executable = "/usr/bin/env"; }},
        Row{"noProgram", [](auto &r) { r.executable.clear(); }},
        Row{"programHasANul", [](auto &r) { r.executable = std::string("a\0b", 3); }},
        Row{"onlyLocalizedNames",
            [](auto &r) {
                r.names = {{"de", "Notizen"}};
            }},
        Row{"nameEndsTheLine", [](auto &r) { r.names[0].text = "a\nExec=evil"; }},
        Row{"nameIsEmpty", [](auto &r) { r.names[1].text.clear(); }},
        Row{"localeEndsTheKey", [](auto &r) { r.names[1].locale = "de]=x\nExec"; }},
        Row{"categoryEndsTheList", [](auto &r) { r.categories = {"Office;\nExec=evil"}; }},
        Row{"typeIsNone", [](auto &r) { r.mimeTypes = {"text"}; }},
        Row{"typeEndsTheLine", [](auto &r) { r.mimeTypes = {"text/plain\nExec=evil"}; }},
        Row{"typeHasTwoSlashes", [](auto &r) { r.mimeTypes = {"text/a/b"}; }},
        Row{"suffixIsAPattern", [](auto &r) { r.newFileTypes[0].suffixes = {"*"}; }},
        Row{"suffixIsEmpty", [](auto &r) { r.newFileTypes[0].suffixes = {""}; }},
        Row{"descriptionHasLines", [](auto &r) { r.newFileTypes[0].description = "a\nb"; }},
        Row{"iconOfAnUnusualSize", [](auto &r) { r.icons[1].size = 47; }},
        Row{"iconIsNoPicture", [](auto &r) { r.icons[1].content = "#!/bin/sh"; }}),
    [](const auto &row) { return row.param.reason; });

TEST(ApplicationRecordTest, garbageIsRefused) {
    const std::string packed = zt::packedRecord(sampleRecord());
    for (const std::string &bytes :
         {std::string(), std::string("velmora"), "x" + packed, packed + "z3:abc", packed + "i",
          packed + "i9999999999999999999999:", packed + "i-1:", packed + "i4:abc",
          std::string("velmora-application 1\nn1:x"), std::string("velmora-application 1\ns1:x"),
          std::string("velmora-application 1\nx1:x"), std::string("velmora-application 1\nd1:x"),
          std::string(zt::maximumRecordSize + 1, 'i')})
        EXPECT_FALSE(zt::parseRecord(bytes)) << bytes.substr(0, 60);
}
