#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What an installation would do, told without a window.

#include "Installer/Sources/Forecast.h"

#include <QByteArray>

// How an installation that asks nobody would end.
struct ForecastOutcome {
    int status = 0;
    QString message;
};

// For people: what goes where, what is worth telling, and at last the outcome; each line ends with
// a line feed. Without a forecast the outcome alone. Thread: any, as for the other.
QString forecastReport(const std::optional<Forecast> &forecast, const ForecastOutcome &outcome);

// For programs: one JSON object, whose keys are documented in the manual page.
QByteArray forecastJson(const std::optional<Forecast> &forecast, const ForecastOutcome &outcome);
