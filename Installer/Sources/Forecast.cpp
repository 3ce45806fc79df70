// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Forecast.h"

#include "Installer/Sources/LocalizedString.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <QLocale>

#include <algorithm>

namespace {

using Kind = ForecastLine::Kind;

QString sizeText(std::uint64_t bytes) {
    constexpr int decimals = 1;
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), decimals,
                                       QLocale::DataSizeSIFormat);
}

ForecastLine systemLine(const Forecast &forecast) {
    return {Kind::Problem,
            ZTFormat(localizedString("%1$@ requires version %2$@ of the system, or a newer one. "
                                     "Look for an older version of %1$@ in our software archive."),
                     forecast.productName, forecast.minimumSystemVersion.value_or(QString()))};
}

ForecastLine spaceLine(const Forecast::Space &space) {
    if (space.isTooLittle()) {
        return {Kind::Problem,
                ZTFormat(localizedString("There is too little space: %1$@ are needed, and %2$@ are "
                                         "free. Empty the Trash, or delete what you no longer "
                                         "need."),
                         sizeText(*space.needed), sizeText(*space.available))};
    }
    if (!space.available) {
        return {Kind::Notice,
                ZTFormat(localizedString("%@ of space are needed."), sizeText(*space.needed))};
    }
    return {Kind::Notice, ZTFormat(localizedString("%1$@ of space are needed; %2$@ are free."),
                                   sizeText(*space.needed), sizeText(*space.available))};
}

ForecastLine runningCopyLine(const Forecast::RunningCopy &copy) {
    if (copy.otherUser) {
        return {Kind::Problem,
                ZTFormat(localizedString("%1$@ is in use by %2$@ and cannot be quit from here. Ask "
                                         "%2$@ to quit it first."),
                         copy.name, *copy.otherUser)};
    }
    return {Kind::Notice, ZTFormat(localizedString("%@ is running and will be quit."), copy.name)};
}

ForecastLine existingCopyLine(const Forecast::ExistingCopy &copy) {
    if (!copy.version)
        return {Kind::Notice, localizedString("The copy that is there now is moved to the Trash.")};
    QString text = localizedString("Version %@, which is there now, is moved to the Trash.");
    if (copy.ordering == Ordering::Ascending)
        text = localizedString("The older version %@, which is there now, is moved to the Trash.");
    if (copy.ordering == Ordering::Same)
        text = localizedString("The same version, %@, is there now and is moved to the Trash.");
    const bool isNewer = copy.ordering == Ordering::Descending;
    if (isNewer) {
        text = localizedString("A newer version, %@, is there now. Install only if you want the "
                               "older one back.");
    }
    return {isNewer ? Kind::Problem : Kind::Notice, ZTFormat(text, *copy.version)};
}

} // namespace

QList<ForecastLine> forecastLines(const Forecast &forecast) {
    QList<ForecastLine> lines;
    const auto add = [&lines](const ForecastLine &line) {
        if (!lines.contains(line)) // several runs of one program are told once
            lines << line;
    };
    if (forecast.systemTooOld)
        add(systemLine(forecast));
    if (forecast.existingCopy)
        add(existingCopyLine(*forecast.existingCopy));
    for (const Forecast::RunningCopy &copy : forecast.runningCopies)
        add(runningCopyLine(copy));
    if (forecast.space.needed)
        add(spaceLine(forecast.space));
    if (forecast.needsAdministrator)
        add({Kind::Notice, localizedString("You will be asked for an administrator's password.")});
    std::stable_partition(lines.begin(), lines.end(),
                          [](const ForecastLine &line) { return line.kind == Kind::Problem; });
    return lines;
}
