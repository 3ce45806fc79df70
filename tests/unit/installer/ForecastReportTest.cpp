// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ForecastReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Forecast fullForecast() {
    return {.productName = u"Demo"_s,
            .version = u"2.0"_s,
            .source = u"/m/Demo.app"_s,
            .destination = u"/a/Demo.app"_s,
            .runningCopies = {{u"Demo"_s, u"/a/Demo.app"_s, std::nullopt},
                              {u"Demo"_s, u""_s, u"ann"_s}},
            .existingCopy = Forecast::ExistingCopy{u"1.9"_s, Ordering::Ascending},
            .space = {.needed = 5'000'000'000, .available = 7'000'000'000},
            .needsAdministrator = true,
            .systemTooOld = false,
            .minimumSystemVersion = u"11"_s};
}

Forecast emptyForecast() {
    return {.productName = u"Demo"_s,
            .version = {},
            .source = u"/m/Demo.app"_s,
            .destination = u"/a/Demo.app"_s,
            .runningCopies = {},
            .existingCopy = {},
            .space = {},
            .minimumSystemVersion = {}};
}

QJsonObject parsed(const QByteArray &json) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << json.constData();
    return document.object();
}

} // namespace

TEST(ForecastReportTest, peopleReadWhatGoesWhereAndTheOutcomeAtLast) {
    const QStringList lines =
        forecastReport(fullForecast(), {4, u"Only an administrator may."_s}).split(u'\n');
    ASSERT_EQ(lines.size(), 9);
    EXPECT_EQ(lines.first(3),
              (QStringList{u"Product: Demo 2.0"_s, u"From: /m/Demo.app"_s, u"To: /a/Demo.app"_s}));
    EXPECT_EQ(lines[7], u"Only an administrator may."_s);
    EXPECT_EQ(lines[8], u""_s);
}

TEST(ForecastReportTest, nobodyIsToldOfAPasswordThatWillNotBeAskedFor) {
    EXPECT_FALSE(forecastReport(fullForecast(), {}).contains(u"password"));
}

TEST(ForecastReportTest, withoutAForecastTheOutcomeStandsAlone) {
    EXPECT_EQ(forecastReport(std::nullopt, {2, u"missing source path"_s}),
              u"missing source path\n"_s);
}

TEST(ForecastReportTest, programsReadEachFactUnderItsKey) {
    const QJsonObject expected{
        {u"status"_s, 0},
        {u"message"_s, u"Fine."_s},
        {u"productName"_s, u"Demo"_s},
        {u"version"_s, u"2.0"_s},
        {u"sourcePath"_s, u"/m/Demo.app"_s},
        {u"destinationPath"_s, u"/a/Demo.app"_s},
        {u"runningCopies"_s,
         QJsonArray{
             QJsonObject{{u"name"_s, u"Demo"_s},
                         {u"path"_s, u"/a/Demo.app"_s},
                         {u"otherUser"_s, QJsonValue()}},
             QJsonObject{{u"name"_s, u"Demo"_s}, {u"path"_s, u""_s}, {u"otherUser"_s, u"ann"_s}}}},
        {u"existingCopy"_s, QJsonObject{{u"version"_s, u"1.9"_s}, {u"comparison"_s, u"older"_s}}},
        {u"bytesNeeded"_s, qint64(5'000'000'000)},
        {u"bytesAvailable"_s, qint64(7'000'000'000)},
        {u"needsAdministrator"_s, true},
        {u"systemTooOld"_s, false},
        {u"minSystemVersion"_s, u"11"_s}};
    EXPECT_EQ(parsed(forecastJson(fullForecast(), {0, u"Fine."_s})), expected);
}

TEST(ForecastReportTest, whatIsNotKnownIsNull) {
    const QJsonObject object = parsed(forecastJson(emptyForecast(), {}));
    EXPECT_EQ(object.size(), 13);
    for (const char *key :
         {"version", "existingCopy", "bytesNeeded", "bytesAvailable", "minSystemVersion"})
        EXPECT_TRUE(object.value(QLatin1String(key)).isNull()) << key;
    Forecast forecast = emptyForecast();
    forecast.existingCopy.emplace();
    const QJsonObject copy = parsed(forecastJson(forecast, {})).value(u"existingCopy"_s).toObject();
    EXPECT_TRUE(copy.value(u"version"_s).isNull());
    EXPECT_TRUE(copy.value(u"comparison"_s).isNull());
}

TEST(ForecastReportTest, theExistingCopyIsComparedWithTheNewOne) {
    Forecast forecast = fullForecast();
    for (const auto &[ordering, word] :
         {std::pair{Ordering::Ascending, u"older"_s}, std::pair{Ordering::Same, u"same"_s},
          std::pair{Ordering::Descending, u"newer"_s}}) {
        forecast.existingCopy->ordering = ordering;
        EXPECT_EQ(parsed(forecastJson(forecast, {}))
                      .value(u"existingCopy"_s)
                      .toObject()
                      .value(u"comparison"_s)
                      .toString(),
                  word);
    }
}

TEST(ForecastReportTest, withoutAForecastTheObjectHasTheOutcomeAlone) {
    EXPECT_EQ(parsed(forecastJson(std::nullopt, {2, u"missing source path"_s})),
              (QJsonObject{{u"status"_s, 2}, {u"message"_s, u"missing source path"_s}}));
}
