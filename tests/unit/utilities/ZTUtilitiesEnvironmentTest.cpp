// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::int32_t ownPid = 100;

class ZTUtilitiesEnvironmentTest : public testing::Test {
protected:
    ZTUtilitiesEnvironmentTest() { ZTUtilities::platformChanged(); }
    ~ZTUtilitiesEnvironmentTest() override { ZTUtilities::platformChanged(); }

    void useSystem(std::int32_t major, std::int32_t minor, std::int32_t bugFix) {
        platform.systemVersion.major = major;
        platform.systemVersion.minor = minor;
        platform.systemVersion.bugFix = bugFix;
        ZTUtilities::platformChanged();
    }

    void runAs(const FakeProcess &process) {
        platform.processManager.start(ownPid, process);
        platform.processManager.setCurrent(ownPid);
    }

    FakePlatform platform;
};

const QString secure = u"https://example.org/a?b=https:"_s;
const QString plain = u"http://example.org/a?b=https:"_s;

} // namespace

struct AddressRow {
    const char *reason;
    std::array<std::int32_t, 3> system;
    std::optional<QVariant> setting;
    QString expected;
};

TEST_F(ZTUtilitiesEnvironmentTest, oldSystemsOpenAddressesWithoutEncryption) {
    const AddressRow rows[] = {
        {"the first system that is new enough", {10, 13, 0}, {}, secure},
        {"a newer one", {12, 4, 0}, {}, secure},
        {"the last one that is too old", {10, 12, 9}, {}, plain},
        {"an unknown one counts as old", {0, 0, 0}, {}, plain},
        {"the setting lowers the limit", {10, 12, 0}, u"101200"_s, secure},
        {"and lower than that is too old", {10, 11, 6}, u"101200"_s, plain},
        {"it raises the limit", {10, 13, 6}, u"101400"_s, plain},
        {"the least that counts", {10, 0, 0}, u"100000"_s, secure},
        {"the greatest that counts", {10, 99, 98}, u"109999"_s, plain},
        {"a number", {10, 12, 0}, qlonglong{101200}, secure},
        {"a number with words behind it", {10, 12, 0}, u"101200 or so"_s, secure},
        {"too small", {10, 12, 0}, u"90000"_s, plain},
        {"just too small", {10, 12, 0}, u"99999"_s, plain},
        {"too large", {10, 13, 0}, u"110000"_s, secure},
        {"too large on an old system", {10, 12, 0}, u"110000"_s, plain},
        {"no number", {10, 12, 0}, u"never"_s, plain},
    };
    for (const AddressRow &row : rows) {
        useSystem(row.system[0], row.system[1], row.system[2]);
        platform.userDefaults.values.clear();
        if (row.setting)
            platform.userDefaults.values.insert(u"httpsMinSys"_s, *row.setting);
        EXPECT_EQ(ZTUtilities::safeHTTPS(secure), row.expected) << row.reason;
    }
}

TEST_F(ZTUtilitiesEnvironmentTest, otherAddressesStayAsTheyAre) {
    for (const std::int32_t major : {9, 12}) {
        useSystem(major, 0, 0);
        for (const QString &address :
             {u"http://example.org"_s, u"ftp://example.org"_s, u"mailto:a@example.org"_s,
              u"HTTPS://example.org"_s, u" https://example.org"_s, u"https"_s, u""_s}) {
            const QString answer = ZTUtilities::safeHTTPS(address);
            EXPECT_EQ(answer, address) << address.toStdString() << " on " << major;
            EXPECT_EQ(answer.constData(), address.constData()) << address.toStdString();
        }
    }
}

TEST_F(ZTUtilitiesEnvironmentTest, anAddressThatStaysIsNotCopied) {
    useSystem(12, 4, 0);
    EXPECT_EQ(ZTUtilities::safeHTTPS(secure).constData(), secure.constData());
}

TEST_F(ZTUtilitiesEnvironmentTest, idleTimeIsInSeconds) {
    platform.userInput.idle = 1500ms;
    EXPECT_EQ(ZTUtilities::idleTime(), 1.5F);
    platform.userInput.idle = 0ns;
    EXPECT_EQ(ZTUtilities::idleTime(), 0.0F);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTUtilitiesEnvironmentTest, anUnknownIdleTimeIsNotedOnce) {
    platform.userInput.idle.reset();
    EXPECT_EQ(ZTUtilities::idleTime(), -1.0F);
    EXPECT_EQ(ZTUtilities::idleTime(), -1.0F);
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"The desktop does not tell how long its user has been idle."_s});
}

TEST_F(ZTUtilitiesEnvironmentTest, theTypeOfAFileSystemIsAskedForByPath) {
    platform.fileSystems.typeNames = {{u"/a"_s, u"ext4"_s}};
    EXPECT_EQ(ZTUtilities::fileSystemTypeFor(u"/a"_s), u"ext4"_s);
    EXPECT_EQ(ZTUtilities::fileSystemTypeFor(u"/gone"_s), u""_s);
    EXPECT_EQ(platform.log.lines(), (QStringList{u"FS Info /a"_s, u"statfs err = 0"_s,
                                                 u"FS Info /gone"_s, u"statfs err = -1"_s}));
}

TEST_F(ZTUtilitiesEnvironmentTest, theLauncherIsKnownByItsCreatorCode) {
    runAs({.name = u"self"_s, .launcherInformation = {{u"FileCreator"_s, u"MACS"_s}}});
    EXPECT_TRUE(ZTUtilities::wasLaunchedByProcess(u"MACS"_s));
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u"macs"_s));
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u""_s));
    EXPECT_FALSE(ZTUtilities::wasLaunchedAsLoginItem());
}

TEST_F(ZTUtilitiesEnvironmentTest, theLoginWindowLaunchesLoginItems) {
    runAs({.name = u"self"_s, .launcherInformation = {{u"FileCreator"_s, u"lgnw"_s}}});
    EXPECT_TRUE(ZTUtilities::wasLaunchedAsLoginItem());
}

TEST_F(ZTUtilitiesEnvironmentTest, anUnknownLauncherIsNobody) {
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u"MACS"_s)) << "this process is unknown";
    runAs({.name = u"self"_s});
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u"MACS"_s)) << "the launcher is unknown";
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u""_s));
    platform.processManager.change(ownPid,
                                   {.name = u"self"_s, .launcherInformation = {{u"pid"_s, 1}}});
    EXPECT_FALSE(ZTUtilities::wasLaunchedByProcess(u""_s)) << "it has no creator code";
}

TEST_F(ZTUtilitiesEnvironmentTest, aDebuggerIsNoticedWhenItComesAndGoes) {
    EXPECT_FALSE(ZTUtilities::debugging()) << "this process is unknown";
    runAs({.name = u"self"_s});
    EXPECT_FALSE(ZTUtilities::debugging());
    platform.processManager.change(ownPid, {.name = u"self"_s, .isBeingDebugged = true});
    EXPECT_TRUE(ZTUtilities::debugging());
    platform.processManager.change(ownPid, {.name = u"self"_s});
    EXPECT_FALSE(ZTUtilities::debugging());
}

TEST_F(ZTUtilitiesEnvironmentTest, displaysAreNeverZoomed) {
    EXPECT_FALSE(ZTUtilities::displayIsZoomed());
}
