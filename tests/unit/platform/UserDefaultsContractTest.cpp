// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every implementation of the user defaults does, shown by the Linux one and by the fake.

#include "Platform/linux/LinuxUserDefaults.h"

#include "tests/fakes/FakePlatform.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// An implementation, and the way to store values for it.
struct LinuxCase {
    QTemporaryDir folder;
    zt::LinuxUserDefaults defaults{{u"x"_s}, folder.path(), u"com.demo"_s};

    void store(const QString &key, const QVariant &value) {
        storeInSuite(u"com.demo"_s, key, value);
    }
    void storeInSuite(const QString &suite, const QString &key, const QVariant &value) {
        QSettings settings(folder.filePath(suite + u".conf"_s), QSettings::IniFormat);
        settings.setValue(key, value);
    }
};

struct FakeCase {
    FakeUserDefaults defaults;

    void store(const QString &key, const QVariant &value) { defaults.values[key] = value; }
    void storeInSuite(const QString &suite, const QString &key, const QVariant &value) {
        defaults.suites[suite][key] = value;
    }
};

} // namespace

template <typename Case>
class UserDefaultsContractTest : public testing::Test {
protected:
    Case implementation;
};

using Implementations = testing::Types<LinuxCase, FakeCase>;
TYPED_TEST_SUITE(UserDefaultsContractTest, Implementations);

TYPED_TEST(UserDefaultsContractTest, anUnknownKeyHasNoValue) {
    const auto &defaults = this->implementation.defaults;
    EXPECT_EQ(defaults.objectForKey(u"k"_s), std::nullopt);
    EXPECT_EQ(defaults.objectForKey(u"k"_s, u"suite"_s), std::nullopt);
    EXPECT_FALSE(defaults.boolForKey(u"k"_s));
    EXPECT_EQ(defaults.stringForKey(u"k"_s), std::nullopt);
}

TYPED_TEST(UserDefaultsContractTest, aChangeIsSeenAtOnce) {
    this->implementation.store(u"k"_s, u"one"_s);
    EXPECT_EQ(this->implementation.defaults.stringForKey(u"k"_s), u"one"_s);
    this->implementation.store(u"k"_s, u"two"_s);
    EXPECT_EQ(this->implementation.defaults.stringForKey(u"k"_s), u"two"_s);
}

TYPED_TEST(UserDefaultsContractTest, aSuiteIsApartFromTheApplicationsOwnSettings) {
    this->implementation.storeInSuite(u"com.other"_s, u"k"_s, u"there"_s);
    EXPECT_EQ(this->implementation.defaults.objectForKey(u"k"_s), std::nullopt);
    EXPECT_EQ(this->implementation.defaults.objectForKey(u"k"_s, u"com.other"_s),
              QVariant(u"there"_s));
}

TYPED_TEST(UserDefaultsContractTest, textsReadAsTruths) {
    const std::pair<QString, bool> rows[] = {
        {u"YES"_s, true}, {u"yes"_s, true},    {u"true"_s, true}, {u"1"_s, true},
        {u"007"_s, true}, {u" +2"_s, true},    {u"-1"_s, true},   {u"T"_s, true},
        {u"NO"_s, false}, {u"false"_s, false}, {u"0"_s, false},   {u"000"_s, false},
        {u""_s, false},   {u"on"_s, false},    {u"-"_s, false},
    };
    for (const auto &[text, truth] : rows) {
        this->implementation.store(u"k"_s, text);
        EXPECT_EQ(this->implementation.defaults.boolForKey(u"k"_s), truth) << text.toStdString();
    }
}
