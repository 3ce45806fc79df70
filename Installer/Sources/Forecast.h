#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What an installation would do, found out beforehand and without changing anything.

#include "ZTStuff/ZTClasses/ZTCompatibility/Ordering.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

// Made by Installation::forecast().
struct Forecast {
    // A program that must not run meanwhile, and does.
    struct RunningCopy {
        QString name;
        QString path;                     // of its bundle; may be empty
        std::optional<QString> otherUser; // who runs it, where that is somebody else

        bool operator==(const RunningCopy &) const = default;
    };

    // What is at the destination now.
    struct ExistingCopy {
        std::optional<QString> version;
        std::optional<Ordering> ordering; // of its version to the one to be installed
    };

    // In bytes, on the volume of the destination. An earlier copy stays on it, in the Trash.
    struct Space {
        std::optional<std::uint64_t> needed; // no value when the product cannot be read
        std::optional<std::uint64_t> available;

        bool isTooLittle() const { return needed && available && *needed > *available; }
    };

    QString productName;
    std::optional<QString> version;
    QString source;
    QString destination;
    QList<RunningCopy> runningCopies; // this user's first
    std::optional<ExistingCopy> existingCopy;
    Space space;
    bool needsAdministrator = false;
    bool systemTooOld = false;
    std::optional<QString> minimumSystemVersion;
};

// One of the things to tell about an installation, in the user's language.
struct ForecastLine {
    // A problem wants something done before.
    enum class Kind { Notice, Problem };

    Kind kind = Kind::Notice;
    QString text;

    bool operator==(const ForecastLine &) const = default;
};

// What is worth telling, each in one line, problems first. Thread: any.
QList<ForecastLine> forecastLines(const Forecast &forecast);
