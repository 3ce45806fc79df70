// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

struct PathRow {
    QString path;
    QString last;
    QString parent;
    QString withoutExtension;
};

TEST(PathComponentsTest, pathsAreTakenApart) {
    const PathRow rows[] = {
        {u"/a/b.app"_s, u"b.app"_s, u"/a"_s, u"/a/b"_s},
        {u"/a/b.app/"_s, u"b.app"_s, u"/a"_s, u"/a/b"_s},
        {u"/a"_s, u"a"_s, u"/"_s, u"/a"_s},
        {u"/"_s, u"/"_s, u"/"_s, u"/"_s},
        {u"//"_s, u"/"_s, u"/"_s, u"/"_s},
        {u""_s, u""_s, u""_s, u""_s},
        {u"a"_s, u"a"_s, u""_s, u"a"_s},
        {u"a/b"_s, u"b"_s, u"a"_s, u"a/b"_s},
        {u"/a//b"_s, u"b"_s, u"/a"_s, u"/a//b"_s},
        {u"/a.b/c"_s, u"c"_s, u"/a.b"_s, u"/a.b/c"_s},
        {u"/a/.hidden"_s, u".hidden"_s, u"/a"_s, u"/a/.hidden"_s},
        {u"/a/x.tar.gz"_s, u"x.tar.gz"_s, u"/a"_s, u"/a/x.tar"_s},
    };
    for (const PathRow &row : rows) {
        const std::string name = row.path.toStdString();
        EXPECT_EQ(lastPathComponent(row.path), row.last) << name;
        EXPECT_EQ(deletingLastPathComponent(row.path), row.parent) << name;
        EXPECT_EQ(deletingPathExtension(row.path), row.withoutExtension) << name;
    }
}

TEST(PathComponentsTest, aComponentIsAddedBehindOneSlash) {
    EXPECT_EQ(appendingPathComponent(u"/a"_s, u"b"_s), u"/a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/a/"_s, u"b"_s), u"/a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/"_s, u"b"_s), u"/b"_s);
    EXPECT_EQ(appendingPathComponent(u""_s, u"b"_s), u"b"_s);
}
