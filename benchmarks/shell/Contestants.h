#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Other ways of running a program and collecting what it prints.

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// Each runs the program once and answers what it has printed.
QString outputByQProcess(const QStringList &commandLine);
QString outputByPopen(const QString &shellLine);

// The microseconds that Python's subprocess module takes for each of so many runs. No value when
// that cannot be done here.
std::optional<std::vector<double>> timesOfSubprocess(int runs, const QString &expected,
                                                     const QStringList &commandLine);
