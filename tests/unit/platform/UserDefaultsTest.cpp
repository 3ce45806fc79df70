// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LinuxUserDefaults.h"

#include "tests/fakes/FakePlatform.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(UserDefaultsTest, pairsOnTheCommandLineAreDefaults) {
    const QVariantMap defaults =
        zt::parseArgumentDefaults({u"installer"_s, u"-nosound"_s, u"YES"_s, u"-flag"_s, u"-delay"_s,
                                   u"2"_s, u"-delay"_s, u"3"_s, u"-last"_s});
    EXPECT_EQ(defaults, (QVariantMap{{u"nosound"_s, u"YES"_s}, {u"delay"_s, u"3"_s}}));
}

TEST(UserDefaultsTest, aPropertyListOnTheCommandLineIsRead) {
    const QVariantMap defaults = zt::parseArgumentDefaults(
        {u"installer"_s, u"-list"_s, u"(a, b)"_s, u"-broken"_s, u"(a,"_s});
    EXPECT_EQ(defaults.value(u"list"_s), QVariant(QVariantList{u"a"_s, u"b"_s}));
    EXPECT_EQ(defaults.value(u"broken"_s), QVariant(u"(a,"_s));
}

TEST(UserDefaultsTest, theCommandLineComesBeforeTheSettingsFile) {
    const QTemporaryDir folder;
    QSettings(folder.filePath(u"com.demo.conf"_s), QSettings::IniFormat)
        .setValue(u"nosound"_s, u"NO"_s);
    const zt::LinuxUserDefaults stored({u"x"_s}, folder.path(), u"com.demo"_s);
    EXPECT_EQ(stored.objectForKey(u"nosound"_s), QVariant(u"NO"_s));
    const zt::LinuxUserDefaults given({u"x"_s, u"-nosound"_s, u"YES"_s}, folder.path(),
                                      u"com.demo"_s);
    EXPECT_EQ(given.objectForKey(u"nosound"_s), QVariant(u"YES"_s));
}

TEST(UserDefaultsTest, theSystemsSettingsComeLast) {
    const QTemporaryDir folder;
    const auto system = [](const QString &key) {
        return key == u"style" ? std::optional<QVariant>(u"Dark"_s) : std::nullopt;
    };
    const zt::LinuxUserDefaults defaults({u"x"_s}, folder.path(), u"com.demo"_s, system);
    EXPECT_EQ(defaults.objectForKey(u"style"_s), QVariant(u"Dark"_s));
    EXPECT_EQ(defaults.objectForKey(u"other"_s), std::nullopt);
    EXPECT_EQ(defaults.objectForKey(u"style"_s, u"com.demo"_s), std::nullopt) << "a suite's own";
    QSettings(folder.filePath(u"com.demo.conf"_s), QSettings::IniFormat)
        .setValue(u"style"_s, u"Light"_s);
    EXPECT_EQ(defaults.objectForKey(u"style"_s), QVariant(u"Light"_s));
    const zt::LinuxUserDefaults given({u"x"_s, u"-style"_s, u"Plain"_s}, folder.path(),
                                      u"com.demo"_s, system);
    EXPECT_EQ(given.objectForKey(u"style"_s), QVariant(u"Plain"_s));
}

TEST(UserDefaultsTest, aSuiteCannotLeadOutOfTheConfigurationFolder) {
    const QTemporaryDir folder;
    QSettings(folder.filePath(u"secret.conf"_s), QSettings::IniFormat).setValue(u"k"_s, 1);
    QDir(folder.path()).mkdir(u"inside"_s);
    const zt::LinuxUserDefaults defaults({u"x"_s}, folder.filePath(u"inside"_s), u"com.demo"_s);
    EXPECT_EQ(defaults.objectForKey(u"k"_s, u"../secret"_s), std::nullopt);
    EXPECT_EQ(defaults.objectForKey(u"k"_s, u""_s), std::nullopt);
}

TEST(UserDefaultsTest, aBrokenSettingsFileHoldsNothing) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"com.demo.conf"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, '\xff'));
    file.close();
    const zt::LinuxUserDefaults defaults({u"x"_s}, folder.path(), u"com.demo"_s);
    EXPECT_EQ(defaults.objectForKey(u"nosound"_s), std::nullopt);
    EXPECT_FALSE(defaults.boolForKey(u"nosound"_s));
}
