#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Property lists in the old text form: { key = value; }, ( a, b ), <0fbd77>, "text".

#include "Platform/Result.h"

#include <QString>
#include <QVariant>

namespace zt {

// Reads the old text form; shapes as in Platform/PropertyList.h. The form has no numbers or dates
// of its own: they are strings, except in the typed notation <*I42>, <*R1.5>, <*BY> and
// <*D2001-01-01 00:00:00 +0000>. A list of "key = value;" pairs without braces is a dictionary.
// Fails, with the line, on anything malformed and on nesting that is too deep. Thread: any.
Result<QVariant> parseOldPropertyList(const QString &text);

} // namespace zt
