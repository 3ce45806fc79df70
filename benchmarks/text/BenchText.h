#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts to be worked on.

#include <QString>

// Lines of words with numbers, punctuation and a few letters beyond ASCII, of just this length.
QString proseOfLength(qsizetype units);

// The pattern again and again, of just this length.
QString repeatedToLength(QStringView pattern, qsizetype units);
