// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ResourceForkMaker.h"
#include "tests/unit/process/TestBundles.h"
#include "tests/unit/process/ZTProcessFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString bundlePath = QStringLiteral("/Applications/Sample.app");

struct BundleVersionCase {
    const char *reason;
    QVariantMap information;
    QString version;
};

class ZTProcessBundleVersionTest : public ZTProcessFixture,
                                   public testing::WithParamInterface<BundleVersionCase> {};

TEST_P(ZTProcessBundleVersionTest, theBundleTellsTheVersion) {
    platform.bundles.add(bundlePath, GetParam().information);
    const auto process = start(10, {.name = u"A"_s, .location = bundlePath});
    EXPECT_EQ(process->version(), GetParam().version);
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, ZTProcessBundleVersionTest,
    testing::Values(
        BundleVersionCase{
            "theShortVersion",
            {{u"CFBundleShortVersionString"_s, u"5.1"_s}, {u"CFBundleVersion"_s, u"512"_s}},
            u"5.1"_s},
        BundleVersionCase{
            "aShortVersionWithoutADotDoesNotCount",
            {{u"CFBundleShortVersionString"_s, u"5"_s}, {u"CFBundleVersion"_s, u"512"_s}},
            u"512"_s},
        BundleVersionCase{
            "aShortVersionThatIsANumberDoesNotCount",
            {{u"CFBundleShortVersionString"_s, 5.1}, {u"CFBundleVersion"_s, u"512"_s}},
            u"512"_s},
        BundleVersionCase{"onlyTheBuildVersion", {{u"CFBundleVersion"_s, u"7"_s}}, u"7"_s},
        BundleVersionCase{
            "aBuildVersionThatIsANumberDoesNotCount", {{u"CFBundleVersion"_s, 7}}, u"1.0"_s},
        BundleVersionCase{"neither", {{u"CFBundleName"_s, u"A"_s}}, u"1.0"_s},
        BundleVersionCase{"anEmptyBuildVersionIsOne", {{u"CFBundleVersion"_s, u""_s}}, u""_s}),
    [](const auto &information) { return std::string(information.param.reason); });

class ZTProcessVersionTest : public ZTProcessFixture {
protected:
    ZTProcess::Pointer startWithVersion(std::int32_t pid, const QString &version) {
        const QString location = u"/Applications/%1.app"_s.arg(pid);
        platform.bundles.add(location, {{u"CFBundleVersion"_s, version}});
        return start(pid, {.name = u"A"_s, .location = location});
    }

    // The version of a program file whose resource begins with these bytes.
    std::optional<QString> carbonVersion(const QByteArray &resource) {
        m_files.write(u"program"_s, "code");
        m_files.write(u"._program"_s,
                      makeAppleDouble(makeResourceFork(
                          {{.type = fourCharCode("vers"), .number = 1, .data = resource}})));
        const auto process =
            start(++m_pid, {.name = u"A"_s, .location = m_files.path(u"program"_s)});
        return process->carbonVersion();
    }

    TestBundles m_files;
    std::int32_t m_pid = 100;
};

TEST_F(ZTProcessVersionTest, aProgramWithoutABundleAndAResourceHasVersionOne) {
    const auto process = start(10, {.name = u"A"_s, .location = u"/usr/bin/a"_s});
    EXPECT_EQ(process->version(), u"1.0"_s);
    EXPECT_EQ(process->majorVersionNumber(), 1);
    EXPECT_EQ(process->carbonVersion(), std::nullopt);
}

TEST_F(ZTProcessVersionTest, theVersionIsFoundOutOnce) {
    const auto process = startWithVersion(10, u"2.0"_s);
    EXPECT_EQ(process->version(), u"2.0"_s);
    startWithVersion(11, u"3.0"_s);
    platform.bundles.add(u"/Applications/10.app"_s, {{u"CFBundleVersion"_s, u"4.0"_s}});
    EXPECT_EQ(process->version(), u"2.0"_s);
}

TEST_F(ZTProcessVersionTest, theMajorNumberEndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(startWithVersion(10, u"10.2"_s)->majorVersionNumber(), 10);
    EXPECT_EQ(startWithVersion(11, u"7b3"_s)->majorVersionNumber(), 7);
    EXPECT_EQ(startWithVersion(12, u"beta"_s)->majorVersionNumber(), 0);
}

TEST_F(ZTProcessVersionTest, theResourceIsReadFromItsLastByteToItsFirst) {
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("00002010")), u"10.2"_s);
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("00002305")), u"5.2.3"_s);
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("00000099")), u"99.0"_s);
}

TEST_F(ZTProcessVersionTest, aResourceAsItsWritersMeantItIsReadTheSameWay) {
    // 1.2.3b5: stored as 01 23 60 05.
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("01236005")), u"5.6"_s + u"1"_s);
}

TEST_F(ZTProcessVersionTest, theStageIsWrittenWithARevisionAlone) {
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("03201001")), u"1.1d3"_s);
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("03401001")), u"1.1a3"_s);
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("0C601201")), u"1.1.2b12"_s);
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("00601001")), u"1.1"_s);
}

TEST_F(ZTProcessVersionTest, otherStagesHaveNoLetter) {
    for (const char *stage : {"00", "10", "21", "80", "A0", "FF"})
        EXPECT_EQ(carbonVersion(QByteArray::fromHex(QByteArray("03") + stage + "1001")), u"1.13"_s)
            << stage;
}

TEST_F(ZTProcessVersionTest, aResourceOfLessThanFourBytesTellsNothing) {
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("002010")), std::nullopt);
    EXPECT_EQ(carbonVersion({}), std::nullopt);
}

TEST_F(ZTProcessVersionTest, theResourceIsTheVersionOfAProgramWithoutABundle) {
    EXPECT_EQ(carbonVersion(QByteArray::fromHex("00002010")), u"10.2"_s);
    const auto process = start(10, {.name = u"A"_s, .location = m_files.path(u"program"_s)});
    EXPECT_EQ(process->version(), u"10.2"_s);
    EXPECT_EQ(process->majorVersionNumber(), 10);
}

TEST_F(ZTProcessVersionTest, aProcessThatHasEndedTellsNoResource) {
    const auto process = start(10, {.name = u"A"_s, .location = m_files.path(u"program"_s)});
    carbonVersion(QByteArray::fromHex("00002010"));
    manager.end(10);
    EXPECT_EQ(process->carbonVersion(), std::nullopt);
    EXPECT_EQ(process->version(), u"1.0"_s);
}

struct ComparisonCase {
    const char *reason;
    QString own;
    QString wanted;
    bool isAtLeast;
};

class ZTProcessComparisonTest : public ZTProcessFixture,
                                public testing::WithParamInterface<ComparisonCase> {};

TEST_P(ZTProcessComparisonTest, versionsAreComparedByTheirNumbers) {
    platform.bundles.add(bundlePath, {{u"CFBundleVersion"_s, GetParam().own}});
    const auto process = start(10, {.name = u"A"_s, .location = bundlePath});
    EXPECT_EQ(process->isAtLeastVersion(GetParam().wanted), GetParam().isAtLeast);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, ZTProcessComparisonTest,
    testing::Values(ComparisonCase{"numbersNotTexts", u"1.10"_s, u"1.9"_s, true},
                    ComparisonCase{"theOtherWayRound", u"1.9"_s, u"1.10"_s, false},
                    ComparisonCase{"missingNumbersAreZero", u"2.0"_s, u"2"_s, true},
                    ComparisonCase{"alsoInTheVersion", u"2"_s, u"2.0"_s, true},
                    ComparisonCase{"moreThanZeroIsWanted", u"2"_s, u"2.0.1"_s, false},
                    ComparisonCase{"moreThanZeroIsThere", u"2.0.1"_s, u"2"_s, true},
                    ComparisonCase{"theFirstDifferenceDecides", u"3.0"_s, u"2.9.9"_s, true},
                    ComparisonCase{"equal", u"1.2.3"_s, u"1.2.3"_s, true},
                    ComparisonCase{"bothEmpty", u""_s, u""_s, true},
                    ComparisonCase{"nothingIsWanted", u"1.0"_s, u""_s, true},
                    ComparisonCase{"lettersEndANumber", u"1.2b3"_s, u"1.2"_s, true}),
    [](const auto &information) { return std::string(information.param.reason); });

} // namespace
