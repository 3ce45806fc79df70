#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user's login items: what the desktop starts when the user logs in.

#include <QString>

#include <optional>
#include <vector>

namespace zt {

// Thread: any.
class LoginItems {
public:
    virtual ~LoginItems() = default;

    // The items in the desktop's order. Each is the path of the item's bundle or, when its program
    // lies in no bundle, of the program; no value for an item whose program cannot be found.
    // Items that the user has switched off are left out. No list when it cannot be read.
    virtual std::optional<std::vector<std::optional<QString>>> resolvedPaths() const = 0;

protected:
    LoginItems() = default;
    LoginItems(const LoginItems &) = default;
    LoginItems &operator=(const LoginItems &) = default;
};

} // namespace zt
