#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Bounds that every reader of property lists keeps, and the errors they share.

#include "Platform/Result.h"

#include <QtGlobal>

#include <string>

namespace zt {

// How deep dictionaries and arrays may lie in each other. Information dictionaries nest three or
// four deep; the readers and the destruction of the value recurse, so the depth must be small.
inline constexpr int maximumPropertyListDepth = 128;

// How many values a binary property list may unfold to. Its objects can be shared, so that a few
// hundred bytes can stand for more values than fit into memory.
inline constexpr quint64 maximumPropertyListValues = 1'000'000;

// An error of parsing; `line` counts from 1, 0 when the form has no lines.
inline Error propertyListError(std::string cause, qint64 line = 0) {
    if (line > 0)
        cause = "line " + std::to_string(line) + ": " + cause;
    return {.operation = "parse", .object = "property list", .cause = std::move(cause)};
}

} // namespace zt
