// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/RememberedPropertyLists.h"

#include "tests/unit/process/TestBundles.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RememberedPropertyListsTest : public testing::Test {
protected:
    void write(const QByteArray &value) {
        m_path = m_files.write(u"Info.plist"_s, "{ key = \"" + value + "\"; }");
    }

    // The text in the dictionary. A copy that was remembered shares its storage with the one
    // before.
    QString read() {
        const zt::Result<QVariant> content = m_lists.read(m_path);
        return content ? content->toMap().value(u"key"_s).toString() : u"failure"_s;
    }

    TestBundles m_files;
    QString m_path = m_files.path(u"Info.plist"_s);
    std::time_t m_age = 60; // of everything that the test writes
    zt::RememberedPropertyLists m_lists{[this] { return std::time(nullptr) + m_age; }};
};

TEST_F(RememberedPropertyListsTest, anUnchangedFileIsReadOnce) {
    write("first");
    const QString before = read();
    EXPECT_EQ(before, u"first"_s);
    EXPECT_EQ(read().constData(), before.constData());
}

TEST_F(RememberedPropertyListsTest, aFileThatChangedJustNowIsReadAgain) {
    m_age = 0;
    write("first");
    const QString before = read();
    EXPECT_EQ(before, u"first"_s);
    EXPECT_NE(read().constData(), before.constData());
}

TEST_F(RememberedPropertyListsTest, aChangeIsNoticed) {
    write("first");
    EXPECT_EQ(read(), u"first"_s);
    write("another");
    EXPECT_EQ(read(), u"another"_s);
}

TEST_F(RememberedPropertyListsTest, anotherFileInThePlaceIsNoticed) {
    write("first");
    EXPECT_EQ(read(), u"first"_s);
    const QString other = m_files.write(u"other"_s, "{ key = \"other\"; }");
    QFile::remove(m_path);
    ASSERT_TRUE(QFile::rename(other, m_path));
    EXPECT_EQ(read(), u"other"_s);
}

TEST_F(RememberedPropertyListsTest, aFileThatIsGoneIsAFailure) {
    write("first");
    read();
    QFile::remove(m_path);
    EXPECT_EQ(read(), u"failure"_s);
}

TEST_F(RememberedPropertyListsTest, whatCannotBeReadIsTriedAgain) {
    m_files.write(u"Info.plist"_s, "{ key = ");
    EXPECT_EQ(read(), u"failure"_s);
    write("first");
    EXPECT_EQ(read(), u"first"_s);
}

} // namespace
