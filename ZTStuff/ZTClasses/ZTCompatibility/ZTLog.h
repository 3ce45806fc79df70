#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The log call.

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

// Writes one line to the current platform's log: ZTLog("Quitting '%@': %@", signature, name).
// Formats are those of ZTFormat. Thread: any.
void ZTLogText(const QString &message);

template <typename... Arguments>
void ZTLog(QAnyStringView format, const Arguments &...arguments) {
    ZTLogText(ZTFormat(format, arguments...));
}
