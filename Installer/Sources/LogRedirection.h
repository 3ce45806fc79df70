#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The diagnostic log of a run that a product started: a file in the user's folder for logs.

#include <QString>
#include <QStringList>

// Whether the process's output goes to the log file: true unless the installer was started by hand,
// that is, with fewer than two arguments or with a choice of language first.
bool shouldRedirectLog(const QStringList &argumentVector);

// The log file of this user.
QString logPath();

// Appends the standard output and the standard error stream to the file, or drops them when it
// cannot be written. Folders that are missing above the file are made.
void redirectStandardStreams(const QString &path);
