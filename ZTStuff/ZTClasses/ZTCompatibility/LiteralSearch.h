#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Finding one text in another, unit by unit.

#include <QStringView>

// The index of the first place, at `from` or behind it, where the part stands in the text; -1 when
// there is none. An empty part stands everywhere. The time grows with the length of the two, not
// with their product, whatever they are. Thread: any.
qsizetype literalIndexOf(QStringView text, QStringView part, qsizetype from = 0);
