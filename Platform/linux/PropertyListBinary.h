#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Property lists in the binary form.

#include "Platform/Result.h"

#include <QByteArray>
#include <QVariant>

namespace zt {

// Reads the binary form; shapes as in Platform/PropertyList.h. Fails on a damaged table, a cycle,
// nesting that is too deep, shared values that unfold to too many, and dates outside the years
// 1933 to 2069. A text ends at its first null character. Thread: any.
Result<QVariant> parseBinaryPropertyList(const QByteArray &content);

} // namespace zt
