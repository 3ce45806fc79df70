// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/PropertyList.h"
#include "Platform/macos/CFText.h"
#include "Platform/macos/CFValues.h"

#include "tests/unit/macos/StandInTest.h"

#include <QDateTime>
#include <QPointF>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using standin::referenceTo;

class CoreFoundationTest : public StandInTest {};

TEST_F(CoreFoundationTest, textsComeBackAsTheyWere) {
    const std::pair<const char *, QString> rows[] = {
        {"empty", QString()},
        {"ASCII", u"Sample Notes"_s},
        {"a scalar of two units", u"\U0001F600"_s},
        {"a lone surrogate", QString(QChar(0xD800))},
        {"a zero within", u"a\0b"_s},
    };
    for (const auto &[reason, text] : rows) {
        const auto native = zt::makeCFText(text);
        EXPECT_EQ(zt::textOf(native.get()), text) << reason;
    }
    EXPECT_EQ(zt::textOf(static_cast<CFStringRef>(nullptr)), QString());
}

TEST_F(CoreFoundationTest, pathsComeBackAsTheyWere) {
    const auto url = zt::makeFileUrl(u"/Applications/Sample Notes.app"_s);
    EXPECT_EQ(zt::pathOf(url.get()), u"/Applications/Sample Notes.app"_s);
    EXPECT_FALSE(zt::makeFileUrl(QString()));
    EXPECT_EQ(zt::pathOf(static_cast<CFURLRef>(nullptr)), std::nullopt);
}

TEST_F(CoreFoundationTest, anOwnerReleasesWhatItOwnsOnce) {
    int released = 0;
    {
        zt::CFOwner first(referenceTo<CFTypeRef>(standin::makeOther([&] { ++released; })));
        zt::CFOwner second(std::move(first));
        zt::CFOwner<CFTypeRef> third;
        third = std::move(second);
        EXPECT_TRUE(third);
        EXPECT_EQ(released, 0);
    }
    EXPECT_EQ(released, 1);
}

TEST_F(CoreFoundationTest, valuesOfPropertyListsKeepTheirTypes) {
    const QVariantMap map = {
        {u"text"_s, u"a"_s},
        {u"true"_s, true},
        {u"number"_s, qlonglong(1) << 40},
        {u"real"_s, 1.5},
        {u"data"_s, QByteArray("\0\1", 2)},
        {u"date"_s, QDateTime::fromMSecsSinceEpoch(1'500, Qt::UTC)},
        {u"array"_s, QVariantList{u"a"_s, qlonglong(1)}},
        {u"dictionary"_s, QVariantMap{{u"k"_s, false}}},
    };
    const zt::CFOwner native(referenceTo<CFDictionaryRef>(standin::make(map)));
    EXPECT_EQ(zt::mapOf(native.get()), map);
    EXPECT_EQ(zt::mapOf(native.get())[u"number"_s].typeId(), QMetaType::LongLong);
    EXPECT_EQ(zt::mapOf(native.get())[u"true"_s].typeId(), QMetaType::Bool);
}

TEST_F(CoreFoundationTest, whatNoPropertyListHoldsIsLeftOut) {
    const QVariant other = QVariant::fromValue(QPointF(1, 2));
    const zt::CFOwner native(referenceTo<CFDictionaryRef>(
        standin::make(QVariantMap{{u"other"_s, other}, {u"list"_s, QVariantList{other, u"a"_s}}})));
    EXPECT_EQ(zt::mapOf(native.get()), (QVariantMap{{u"list"_s, QVariantList{u"a"_s}}}));
    EXPECT_FALSE(zt::valueOf(nullptr).isValid());
    EXPECT_TRUE(zt::mapOf(nullptr).isEmpty());
}

TEST_F(CoreFoundationTest, aPropertyListIsReadByTheSystem) {
    standin::files.propertyLists = {{"{ k = a; }", QVariantMap{{u"k"_s, u"a"_s}}}};
    const auto list = zt::parsePropertyList("{ k = a; }");
    ASSERT_TRUE(list);
    EXPECT_EQ(*list, QVariant(QVariantMap{{u"k"_s, u"a"_s}}));
}

TEST_F(CoreFoundationTest, aMalformedPropertyListSaysWhy) {
    const auto list = zt::parsePropertyList("{");
    ASSERT_FALSE(list);
    EXPECT_EQ(list.error().cause, "it is malformed");
}

TEST_F(CoreFoundationTest, propertyListsAreReadFromFilesOfSensibleSize) {
    const QTemporaryDir folder;
    const auto write = [&](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    };
    standin::files.propertyLists = {{"list", u"a"_s}};
    EXPECT_EQ(*zt::readPropertyList(write(u"good"_s, "list")), QVariant(u"a"_s));
    EXPECT_FALSE(zt::readPropertyList(write(u"bad"_s, "other")));
    const auto large =
        zt::readPropertyList(write(u"large"_s, QByteArray(zt::maximumPropertyListSize + 1, ' ')));
    ASSERT_FALSE(large);
    EXPECT_EQ(large.error().cause, "it is too large for a property list");
    EXPECT_FALSE(zt::readPropertyList(folder.filePath(u"missing"_s)));
}
