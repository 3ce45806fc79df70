// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ForecastReport.h"

#include "Installer/Sources/LocalizedString.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QJsonValue textOrNull(const std::optional<QString> &text) {
    return text ? QJsonValue(*text) : QJsonValue();
}

QJsonValue bytesOrNull(const std::optional<std::uint64_t> &bytes) {
    return bytes ? QJsonValue(static_cast<qint64>(*bytes)) : QJsonValue();
}

QJsonValue comparison(const std::optional<Ordering> &ordering) {
    if (!ordering)
        return {};
    switch (*ordering) {
    case Ordering::Ascending:
        return u"older"_s;
    case Ordering::Same:
        return u"same"_s;
    case Ordering::Descending:
        return u"newer"_s;
    }
    return {};
}

QJsonObject objectOf(const Forecast &forecast) {
    QJsonArray runningCopies;
    for (const Forecast::RunningCopy &copy : forecast.runningCopies) {
        runningCopies << QJsonObject{{u"name"_s, copy.name},
                                     {u"path"_s, copy.path},
                                     {u"otherUser"_s, textOrNull(copy.otherUser)}};
    }
    QJsonValue existingCopy;
    if (const auto &copy = forecast.existingCopy) {
        existingCopy = QJsonObject{{u"version"_s, textOrNull(copy->version)},
                                   {u"comparison"_s, comparison(copy->ordering)}};
    }
    return {{u"productName"_s, forecast.productName},
            {u"version"_s, textOrNull(forecast.version)},
            {u"sourcePath"_s, forecast.source},
            {u"destinationPath"_s, forecast.destination},
            {u"runningCopies"_s, runningCopies},
            {u"existingCopy"_s, existingCopy},
            {u"bytesNeeded"_s, bytesOrNull(forecast.space.needed)},
            {u"bytesAvailable"_s, bytesOrNull(forecast.space.available)},
            {u"needsAdministrator"_s, forecast.needsAdministrator},
            {u"systemTooOld"_s, forecast.systemTooOld},
            {u"minSystemVersion"_s, textOrNull(forecast.minimumSystemVersion)}};
}

} // namespace

QString forecastReport(const std::optional<Forecast> &forecast, const ForecastOutcome &outcome) {
    QStringList lines;
    if (forecast) {
        lines << ZTFormat(localizedString("Product: %@"),
                          forecast->version ? forecast->productName + u' ' + *forecast->version
                                            : forecast->productName)
              << ZTFormat(localizedString("From: %@"), forecast->source)
              << ZTFormat(localizedString("To: %@"), forecast->destination);
        // These two are the outcome's to tell, for nobody will be asked.
        Forecast rest = *forecast;
        rest.needsAdministrator = false;
        rest.systemTooOld = false;
        for (const ForecastLine &line : forecastLines(rest))
            lines << line.text;
    }
    lines << outcome.message;
    return lines.join(u'\n') + u'\n';
}

QByteArray forecastJson(const std::optional<Forecast> &forecast, const ForecastOutcome &outcome) {
    QJsonObject object = forecast ? objectOf(*forecast) : QJsonObject();
    object.insert(u"status"_s, outcome.status);
    object.insert(u"message"_s, outcome.message);
    return QJsonDocument(object).toJson();
}
