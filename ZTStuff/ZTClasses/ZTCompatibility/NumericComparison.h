#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Comparison of texts in which numbers count by their value: "2.9" comes before "2.10".

#include "ZTStuff/ZTClasses/ZTCompatibility/Ordering.h"

#include <QStringView>

// Compares unit by unit, but runs of the digits 0-9 that begin at the same place by their numeric
// value, however long they are. A text that is a proper beginning of the other is the smaller.
// Numbers that differ only in leading zeros are the same. Thread: any, as for the one below.
Ordering numericCompare(QStringView a, QStringView b);

// The same with both texts folded to one case, character by character: "Straße" is not "STRASSE".
Ordering caseInsensitiveNumericCompare(QStringView a, QStringView b);
