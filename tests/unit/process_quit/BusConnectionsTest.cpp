// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BusConnections.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Case {
    const char *reason;
    QStringList names;
    QStringList paths;
};

const Case cases[] = {
    {"dots become slashes", {u"org.example.Editor"_s}, {u"/org/example/Editor"_s}},
    {"a path has no dashes", {u"org.my-company.App"_s}, {u"/org/my_company/App"_s}},
    {"an instance's id is no part of the path",
     {u"org.example.Editor-4711"_s},
     {u"/org/example/Editor_4711"_s, u"/org/example/Editor"_s}},
    {"a dash before a word stays", {u"org.example.Editor-beta"_s}, {u"/org/example/Editor_beta"_s}},
    {"each path once",
     {u"org.example.Editor"_s, u"org.example.Editor-1"_s},
     {u"/org/example/Editor"_s, u"/org/example/Editor_1"_s}},
    {"a player's name says nothing of the application", {u"org.mpris.MediaPlayer2.editor"_s}, {}},
    {"no names", {}, {}},
};

class BusConnectionsTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(BusConnectionsTest, namesLeadToPaths) {
    const zt::BusConnection connection = {.uniqueName = u":1.1"_s, .knownNames = GetParam().names};
    EXPECT_EQ(connection.applicationPaths(), GetParam().paths) << GetParam().reason;
}

INSTANTIATE_TEST_SUITE_P(Paths, BusConnectionsTest, testing::ValuesIn(cases));

TEST(BusConnectionsMediaPlayerTest, aPlayerIsKnownByItsName) {
    zt::BusConnection connection = {.uniqueName = u":1.1"_s, .knownNames = {u"org.example.A"_s}};
    EXPECT_FALSE(connection.isMediaPlayer());
    connection.knownNames << u"org.mpris.MediaPlayer2.a"_s;
    EXPECT_TRUE(connection.isMediaPlayer());
}
