#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Reading numbers from texts as people write them: leading blanks are skipped, then as much is read
// as makes a number, and what follows is ignored. Nothing readable is 0.

#include <QStringView>

// The decimal integer at the start, held within the 32-bit range: " -12abc" is -12.
int integerValue(QStringView text);

// The decimal number at the start, with fraction and exponent: "2.5e1 s" is 25. A number too large
// for the type is infinite, one too small is 0. The decimal point is always ".".
double doubleValue(QStringView text);
float floatValue(QStringView text);
