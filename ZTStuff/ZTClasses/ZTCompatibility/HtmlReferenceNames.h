#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The names that HTML gives to characters.

#include <QByteArrayView>
#include <QStringView>

#include <optional>

// The longest name, its semicolon included, and the longest of those that may go without one.
inline constexpr qsizetype longestHtmlReferenceName = 32;
inline constexpr qsizetype longestHtmlReferenceNameWithoutSemicolon = 6;

// The one or two characters that a name stands for, "amp;" as it is written behind the "&". No
// value for an unknown one. Thread: any.
std::optional<QStringView> htmlReferenceText(QByteArrayView name);
