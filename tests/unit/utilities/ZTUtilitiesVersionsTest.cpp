// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ZTUtilitiesVersionsTest : public testing::Test {
protected:
    FakePlatform platform;
};

struct VersionRow {
    const char *reason;
    QString a;
    QString b;
    Ordering ordering;
};

TEST_F(ZTUtilitiesVersionsTest, versionsAreOrdered) {
    const VersionRow rows[] = {
        {"same", u"2.1"_s, u"2.1"_s, Ordering::Same},
        {"a lettered build precedes its release", u"2.1b3"_s, u"2.1"_s, Ordering::Ascending},
        {"rests by number", u"2.1b3"_s, u"2.1b10"_s, Ordering::Ascending},
        {"alpha precedes beta", u"2.1a9"_s, u"2.1b1"_s, Ordering::Ascending},
        {"development precedes alpha", u"2.1d9"_s, u"2.1a1"_s, Ordering::Ascending},
        {"prototype precedes development", u"2.1p9"_s, u"2.1d1"_s, Ordering::Ascending},
        {"final candidate follows beta", u"2.1f1"_s, u"2.1b7"_s, Ordering::Descending},
        {"final candidate precedes release", u"2.1f1"_s, u"2.1"_s, Ordering::Ascending},
        {"numbers by value", u"10.9"_s, u"10.10"_s, Ordering::Ascending},
        {"the shorter base is smaller", u"10.13"_s, u"10.13.0"_s, Ordering::Ascending},
        {"an unknown letter ranks below d", u"2.1r2"_s, u"2.1d1"_s, Ordering::Ascending},
        {"an upper-case letter is unknown", u"2.1B2"_s, u"2.1d1"_s, Ordering::Ascending},
        {"unknown letters rank like p", u"2.1r2"_s, u"2.1p2"_s, Ordering::Same},
        {"a letter of another script", u"2.1\u03b22"_s, u"2.1p2"_s, Ordering::Same},
        {"a letter outside the first plane", u"2.1\U0001D4D02"_s, u"2.1p2"_s, Ordering::Same},
        {"only the first letter is looked at", u"2.1b3rc1"_s, u"2.1b3rc2"_s, Ordering::Ascending},
        {"the base decides before the stage", u"2.2a1"_s, u"2.1"_s, Ordering::Descending},
        {"both empty", u""_s, u""_s, Ordering::Same},
        {"empty is smallest", u""_s, u"1"_s, Ordering::Ascending},
    };
    for (const VersionRow &row : rows)
        EXPECT_EQ(ZTUtilities::compareVersion(row.a, row.b), row.ordering) << row.reason;
}

TEST_F(ZTUtilitiesVersionsTest, developmentStagesFollowTheirTable) {
    EXPECT_EQ(developmentStage(u'p'), 0);
    EXPECT_EQ(developmentStage(u'd'), 1);
    EXPECT_EQ(developmentStage(u'a'), 2);
    EXPECT_EQ(developmentStage(u'b'), 3);
    EXPECT_EQ(developmentStage(u'f'), 4);
    EXPECT_EQ(developmentStage(u' '), 5);
    EXPECT_EQ(developmentStage(u'x'), 0);
}

TEST_F(ZTUtilitiesVersionsTest, plainVersionsStopAtTheFirstOtherCharacter) {
    EXPECT_EQ(ZTUtilities::plainVersionOf(u"1.2.3b4"_s), u"1.2.3"_s);
    EXPECT_EQ(ZTUtilities::plainVersionOf(u"1.2.3 (5)"_s), u"1.2.3"_s);
    EXPECT_EQ(ZTUtilities::plainVersionOf(u"b2"_s), u""_s);
    EXPECT_EQ(ZTUtilities::plainVersionOf(u""_s), u""_s);
    const QString whole = u"12"_s;
    EXPECT_EQ(ZTUtilities::plainVersionOf(whole).constData(), whole.constData());
}

TEST_F(ZTUtilitiesVersionsTest, theApplicationsOwnFactsComeFromItsBundle) {
    platform.bundles.setMainBundle(u"/x/Demo.app"_s, {{u"CFBundleExecutable"_s, u"Demo"_s},
                                                      {u"CFBundleVersion"_s, u"1042b"_s}});
    EXPECT_EQ(ZTUtilities::applicationName(), u"Demo"_s);
    EXPECT_EQ(ZTUtilities::versionString(), u"1042b"_s);
    EXPECT_EQ(ZTUtilities::plainVersionString(), u"1042"_s);
}

TEST_F(ZTUtilitiesVersionsTest, missingBundleKeysAreEmptyTexts) {
    platform.bundles.setMainBundle(u"/x/Demo.app"_s, {{u"CFBundleVersion"_s, 12}});
    EXPECT_EQ(ZTUtilities::applicationName(), u""_s);
    EXPECT_EQ(ZTUtilities::versionString(), u""_s);
}

TEST_F(ZTUtilitiesVersionsTest, theSystemVersionHasThreeParts) {
    platform.systemVersion.major = 10;
    platform.systemVersion.minor = 13;
    platform.systemVersion.bugFix = 6;
    EXPECT_EQ(ZTUtilities::threePartVersion(), (ZTUtilities::ThreePartVersion{10, 13, 6}));
    EXPECT_EQ(ZTUtilities::systemVersionString(), u"10.13.6"_s);
    platform.systemVersion.bugFix = 0;
    EXPECT_EQ(ZTUtilities::systemVersionString(), u"10.13"_s);
}

TEST_F(ZTUtilitiesVersionsTest, aPartThatCannotBeReadIsLoggedAndZero) {
    platform.systemVersion.minor = std::nullopt;
    platform.systemVersion.bugFix = std::nullopt;
    EXPECT_EQ(ZTUtilities::threePartVersion(), (ZTUtilities::ThreePartVersion{12, 0, 0}));
    EXPECT_EQ(platform.log.lines(), (QStringList{u"cannot get minor version number"_s,
                                                 u"cannot get bugfix version number"_s}));
}

TEST_F(ZTUtilitiesVersionsTest, thePackedWordStandsInForTheParts) {
    platform.systemVersion.major = std::nullopt;
    platform.systemVersion.packed = 0x1094;
    EXPECT_EQ(ZTUtilities::threePartVersion(), (ZTUtilities::ThreePartVersion{10, 9, 4}));
    platform.systemVersion.packed = std::nullopt;
    EXPECT_EQ(ZTUtilities::threePartVersion(), (ZTUtilities::ThreePartVersion{0, 0, 0}));
    EXPECT_EQ(ZTUtilities::hexSystemVersion(), 0U);
    platform.systemVersion.packed = 0x1094;
    EXPECT_EQ(ZTUtilities::hexSystemVersion(), 0x1094U);
}

TEST_F(ZTUtilitiesVersionsTest, largePartsAreCutTo16Bits) {
    platform.systemVersion.major = 0x1000C;
    EXPECT_EQ(ZTUtilities::threePartVersion().major, 12);
}

// The only test that asks for the decimal version: the answer is kept for the whole process.
TEST_F(ZTUtilitiesVersionsTest, theDecimalVersionIsKeptOnceItIsKnown) {
    platform.systemVersion.major = std::nullopt;
    platform.systemVersion.packed = std::nullopt;
    EXPECT_EQ(ZTUtilities::decimalSystemVersion(), 0);
    platform.systemVersion.major = 10;
    platform.systemVersion.minor = 13;
    platform.systemVersion.bugFix = 6;
    EXPECT_EQ(ZTUtilities::decimalSystemVersion(), 101306);
    platform.systemVersion.bugFix = 7;
    EXPECT_EQ(ZTUtilities::decimalSystemVersion(), 101306);
}

TEST_F(ZTUtilitiesVersionsTest, theSystemComparesWithAMinimum) {
    platform.systemVersion.major = 10;
    platform.systemVersion.minor = 15;
    platform.systemVersion.bugFix = 0;
    const QString system = ZTUtilities::systemVersionString();
    EXPECT_EQ(ZTUtilities::compareVersion(system, u"10.15.0"_s), Ordering::Ascending);
    EXPECT_EQ(ZTUtilities::compareVersion(system, u"10.15"_s), Ordering::Same);
}

struct PredicateRow {
    const char *name;
    bool (*predicate)();
    double below;
    double at;
    bool answerBelow;
    bool answerAt;
};

TEST_F(ZTUtilitiesVersionsTest, predicatesSwitchAtTheirFrameworkVersion) {
    const PredicateRow rows[] = {
        {"panther or older", ZTUtilities::pantherOrOlder, 743.9, 744.0, true, false},
        {"leopard", ZTUtilities::leopardOrNewer, 824.9, 825.0, false, true},
        {"snow leopard", ZTUtilities::snowleopardOrNewer, 1037.9, 1038.0, false, true},
        {"lion", ZTUtilities::lionOrNewer, 1137.9, 1138.0, false, true},
        {"mountain lion", ZTUtilities::mountainLionOrNewer, 1186.9, 1187.0, false, true},
        {"mavericks", ZTUtilities::mavericksOrNewer, 1264.9, 1265.0, false, true},
        {"yosemite", ZTUtilities::yosemiteOrNewer, 1342.9, 1343.0, false, true},
        {"el capitan", ZTUtilities::elCapitanOrNewer, 1403.9, 1404.0, false, true},
        {"sierra", ZTUtilities::sierraOrNewer, 1489.9, 1490.0, false, true},
        {"high sierra", ZTUtilities::highSierraOrNewer, 1537.1, 1537.2, false, true},
        {"mojave", ZTUtilities::mojaveOrNewer, 1638.9, 1639.0, false, true},
    };
    for (const PredicateRow &row : rows) {
        platform.systemVersion.framework = row.below;
        EXPECT_EQ(row.predicate(), row.answerBelow) << row.name << " below";
        platform.systemVersion.framework = row.at;
        EXPECT_EQ(row.predicate(), row.answerAt) << row.name << " at";
    }
}

class LocalizedDateTest : public ZTUtilitiesVersionsTest {
protected:
    ~LocalizedDateTest() override {
        QLocale::setDefault(QLocale::system());
        setZone("UTC");
    }
    static void setZone(const char *zone) {
        qputenv("TZ", zone);
        tzset();
    }
};

TEST_F(LocalizedDateTest, datesTakeTheLocalesShortForm) {
    setZone("UTC");
    QLocale::setDefault(QLocale(u"en_US"_s));
    EXPECT_EQ(ZTUtilities::localizedDateString(u"2014-05-06"_s), u"5/6/14"_s);
    QLocale::setDefault(QLocale(u"de_DE"_s));
    EXPECT_EQ(ZTUtilities::localizedDateString(u"2014-05-06"_s), u"06.05.14"_s);
}

TEST_F(LocalizedDateTest, midnightUtcIsTheDayBeforeInTheWest) {
    setZone("EST5");
    QLocale::setDefault(QLocale(u"en_US"_s));
    EXPECT_EQ(ZTUtilities::localizedDateString(u"2014-05-06"_s), u"5/5/14"_s);
}

TEST_F(LocalizedDateTest, whatIsNoDateIsAnEmptyText) {
    for (const QString &text : {u""_s, u"soon"_s, u"2014-13-01"_s, u"2014-02-30"_s, u"6.5.2014"_s})
        EXPECT_EQ(ZTUtilities::localizedDateString(text), u""_s) << text.toStdString();
}
