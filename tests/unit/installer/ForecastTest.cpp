// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What is found out about an installation beforehand, and how it is told.

#include "Installer/Sources/Forecast.h"

#include "tests/unit/installer/AsOrdinaryUser.h"
#include "tests/unit/installer/InstallerFixture.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr FourCharCode demoSignature = 0x44454D4F; // "DEMO"

using Kind = ForecastLine::Kind;

// A forecast of which there is nothing to tell.
Forecast plainForecast() {
    Forecast forecast;
    forecast.productName = u"Demo"_s;
    forecast.version = u"2.0"_s;
    return forecast;
}

struct LineRow {
    const char *reason;
    std::function<void(Forecast &)> change;
    ForecastLine line;
};

} // namespace

class ForecastLinesTest : public testing::Test {
protected:
    ForecastLinesTest() { QLocale::setDefault(QLocale::c()); }
    ~ForecastLinesTest() override { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

TEST_F(ForecastLinesTest, withNothingToTellThereAreNone) {
    EXPECT_TRUE(forecastLines(plainForecast()).isEmpty());
}

TEST_F(ForecastLinesTest, eachThingIsToldInOneLine) {
    const LineRow rows[] = {
        {"the system",
         [](Forecast &forecast) {
             forecast.systemTooOld = true;
             forecast.minimumSystemVersion = u"99.1"_s;
         },
         {Kind::Problem, u"Demo requires version 99.1 of the system, or a newer one. Look for an "
                         "older version of Demo in our software archive."_s}},
        {"an older copy",
         [](Forecast &forecast) {
             forecast.existingCopy = {u"1.9"_s, Ordering::Ascending};
         },
         {Kind::Notice, u"The older version 1.9, which is there now, is moved to the Trash."_s}},
        {"the same copy",
         [](Forecast &forecast) {
             forecast.existingCopy = {u"2.0"_s, Ordering::Same};
         },
         {Kind::Notice, u"The same version, 2.0, is there now and is moved to the Trash."_s}},
        {"a newer copy",
         [](Forecast &forecast) {
             forecast.existingCopy = {u"2.1"_s, Ordering::Descending};
         },
         {Kind::Problem, u"A newer version, 2.1, is there now. Install only if you want the older "
                         "one back."_s}},
        {"a copy to be compared with nothing",
         [](Forecast &forecast) {
             forecast.existingCopy = {u"2.1"_s, std::nullopt};
         },
         {Kind::Notice, u"Version 2.1, which is there now, is moved to the Trash."_s}},
        {"a copy without a version",
         [](Forecast &forecast) { forecast.existingCopy.emplace(); },
         {Kind::Notice, u"The copy that is there now is moved to the Trash."_s}},
        {"a running copy",
         [](Forecast &forecast) {
             forecast.runningCopies = {{u"Demo"_s, {}, std::nullopt}};
         },
         {Kind::Notice, u"Demo is running and will be quit."_s}},
        {"somebody else's running copy",
         [](Forecast &forecast) {
             forecast.runningCopies = {{u"Demo"_s, {}, u"anna"_s}};
         },
         {Kind::Problem, u"Demo is in use by anna and cannot be quit from here. Ask anna to quit "
                         "it first."_s}},
        {"enough space",
         [](Forecast &forecast) {
             forecast.space = {1'500'000, 2'000'000'000};
         },
         {Kind::Notice, u"1.5 MB of space are needed; 2.0 GB are free."_s}},
        {"exactly enough space",
         [](Forecast &forecast) {
             forecast.space = {2000, 2000};
         },
         {Kind::Notice, u"2.0 kB of space are needed; 2.0 kB are free."_s}},
        {"too little space",
         [](Forecast &forecast) {
             forecast.space = {2001, 2000};
         },
         {Kind::Problem,
          u"There is too little space: 2.0 kB are needed, and 2.0 kB are free. Empty "
          "the Trash, or delete what you no longer need."_s}},
        {"unknown space",
         [](Forecast &forecast) {
             forecast.space = {2000, std::nullopt};
         },
         {Kind::Notice, u"2.0 kB of space are needed."_s}},
        {"a password",
         [](Forecast &forecast) { forecast.needsAdministrator = true; },
         {Kind::Notice, u"You will be asked for an administrator's password."_s}},
    };
    for (const LineRow &row : rows) {
        Forecast forecast = plainForecast();
        row.change(forecast);
        const QList<ForecastLine> lines = forecastLines(forecast);
        ASSERT_EQ(lines.size(), 1) << row.reason;
        EXPECT_EQ(lines.first().text.toStdString(), row.line.text.toStdString()) << row.reason;
        EXPECT_EQ(lines.first().kind, row.line.kind) << row.reason;
    }
}

TEST_F(ForecastLinesTest, problemsComeFirst) {
    Forecast forecast = plainForecast();
    forecast.runningCopies = {{u"Demo"_s, {}, std::nullopt}, {u"Demo"_s, {}, u"anna"_s}};
    forecast.space = {2001, 2000};
    forecast.needsAdministrator = true;
    QList<Kind> kinds;
    for (const ForecastLine &line : forecastLines(forecast))
        kinds << line.kind;
    EXPECT_EQ(kinds, (QList{Kind::Problem, Kind::Problem, Kind::Notice, Kind::Notice}));
}

TEST_F(ForecastLinesTest, severalRunsOfOneProgramAreToldOnce) {
    Forecast forecast = plainForecast();
    forecast.runningCopies = {{u"Demo"_s, u"/a/Demo.app"_s, std::nullopt},
                              {u"Demo"_s, u"/b/Demo.app"_s, std::nullopt}};
    EXPECT_EQ(forecastLines(forecast).size(), 1);
}

class ForecastTest : public InstallerFixture {
protected:
    Forecast forecast(const QStringList &arguments = {}) { return start(arguments).forecast(); }

    QString destination() { return path(u"Applications/Demo.app"_s); }
};

TEST_F(ForecastTest, theProductItsPlaceAndItsSizeAreKnown) {
    platform.fileSystems.availableBytes.insert(path(u"Applications"_s), 4711);
    const Forecast found = forecast();
    EXPECT_EQ(found.productName, u"Demo"_s);
    EXPECT_EQ(found.version, u"2.0"_s);
    EXPECT_EQ(found.source, product);
    EXPECT_EQ(found.destination, destination());
    EXPECT_EQ(found.space.needed, 7U); // "program"
    EXPECT_EQ(found.space.available, 4711U);
    EXPECT_TRUE(found.runningCopies.isEmpty());
    EXPECT_FALSE(found.existingCopy);
    EXPECT_FALSE(found.needsAdministrator);
    EXPECT_FALSE(found.systemTooOld);
}

TEST_F(ForecastTest, nothingIsChanged) {
    forecast();
    EXPECT_TRUE(QDir(path(u"Applications"_s)).isEmpty());
    EXPECT_TRUE(QDir(path(u"Trash"_s)).isEmpty());
    EXPECT_TRUE(platform.interruptions.reasons().isEmpty());
}

TEST_F(ForecastTest, aProductThatIsMissingHasNoSize) {
    EXPECT_FALSE(
        forecast({u"-sourcePath"_s, path(u"Disk/Missing.app"_s), u"-productCode"_s, u"DEMO"_s})
            .space.needed);
}

TEST_F(ForecastTest, aLinkToTheProductIsAsLargeAsTheProduct) {
    const QString link = path(u"Link.app"_s);
    ASSERT_TRUE(QFile::link(product, link));
    EXPECT_EQ(forecast({u"-sourcePath"_s, link, u"-productCode"_s, u"DEMO"_s}).space.needed, 7U);
}

TEST_F(ForecastTest, theCountingStopsWhenItIsTold) {
    start();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(controller().forecast(stop.get_token()).space.needed);
}

TEST_F(ForecastTest, theVersionOfTheCopyThatIsThereIsCompared) {
    const std::tuple<const char *, QString, Ordering> rows[] = {
        {"older", u"1.9.9"_s, Ordering::Ascending},
        {"the same", u"2.0"_s, Ordering::Same},
        {"newer", u"2.1b1"_s, Ordering::Descending},
        {"a beta of the new one", u"2.0b3"_s, Ordering::Ascending},
    };
    makeFolder(u"Applications/Demo.app"_s);
    start();
    for (const auto &[reason, version, ordering] : rows) {
        platform.bundles.add(destination(), {{u"CFBundleShortVersionString"_s, version}});
        const Forecast found = controller().forecast();
        ASSERT_TRUE(found.existingCopy) << reason;
        EXPECT_EQ(found.existingCopy->version, version) << reason;
        EXPECT_EQ(found.existingCopy->ordering, ordering) << reason;
    }
}

TEST_F(ForecastTest, whateverIsAtTheDestinationCountsAsACopy) {
    makeFile(u"Applications/Demo.app"_s, "not a bundle");
    const Forecast found = forecast();
    ASSERT_TRUE(found.existingCopy);
    EXPECT_FALSE(found.existingCopy->version);
    EXPECT_FALSE(found.existingCopy->ordering);
}

TEST_F(ForecastTest, alsoALinkThatLeadsNowhere) {
    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), destination()));
    EXPECT_TRUE(forecast().existingCopy);
}

TEST_F(ForecastTest, runningCopiesAreThoseWithAQuitCode) {
    platform.processManager.start(
        11, {.name = u"Demo"_s, .signature = demoSignature, .location = u"/a/Demo.app"_s});
    platform.processManager.start(12, {.name = u"Other"_s, .location = u"/a/Other.app"_s});
    platform.processManager.start(
        13, {.name = u"Self"_s, .signature = demoSignature, .location = u"/a/Self.app"_s});
    platform.processManager.setCurrent(13);
    platform.processManager.setApplicationsOfOtherUsers(
        {{u"Demo"_s, demoSignature, u"/b/Demo.app"_s, u"anna"_s},
         {u"Other"_s, 0x3F3F3F3F, u"/b/Other.app"_s, u"anna"_s}});
    const QString place = destination();
    const Forecast found = forecast({u"-destinationPath"_s, place});
    EXPECT_EQ(found.runningCopies, (QList<Forecast::RunningCopy>{
                                       {u"Demo"_s, u"/a/Demo.app"_s, std::nullopt},
                                       {u"Demo"_s, u"/b/Demo.app"_s, u"anna"_s},
                                   }));
}

TEST_F(ForecastTest, aSystemThatIsTooOldIsFoundOut) {
    const Forecast found = forecast({u"-minSystemVersion"_s, u"99"_s});
    EXPECT_TRUE(found.systemTooOld);
    EXPECT_EQ(found.minimumSystemVersion, u"99"_s);
}

TEST_F(ForecastTest, aPlaceThatThisUserCannotWriteToNeedsAnAdministrator) {
    const AsOrdinaryUser user(folder.path());
    EXPECT_TRUE(forecast({u"-destinationPath"_s, u"/proc/self/Demo.app"_s}).needsAdministrator);
}
