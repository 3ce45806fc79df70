#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The general pasteboard, which people know as the clipboard.

#include <cstdint>
#include <optional>

namespace zt {

// Thread: main, for all operations.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    // A number that is another one after each time that a program has put something onto the
    // pasteboard or cleared it. Keeping what a program has put there beyond that program's end is
    // no change. No value when the system does not tell who changes the pasteboard when.
    virtual std::optional<std::int32_t> changeCount() = 0;

protected:
    Pasteboard() = default;
    Pasteboard(const Pasteboard &) = default;
    Pasteboard &operator=(const Pasteboard &) = default;
};

} // namespace zt
