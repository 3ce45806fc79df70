#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Whether the user prefers a light or a dark interface.

#include <functional>
#include <optional>

namespace zt {

// Thread: main, for all operations.
class Appearance {
public:
    enum class Scheme { Light, Dark };

    virtual ~Appearance() = default;

    // The scheme that the user asked for; no value when the desktop does not tell.
    virtual std::optional<Scheme> preferredScheme() const = 0;

    // Calls `changed` on the main thread whenever the preferred scheme changes. One listener; a
    // later call replaces it, an empty function removes it.
    virtual void setChangeListener(std::function<void()> changed) = 0;

protected:
    Appearance() = default;
    Appearance(const Appearance &) = default;
    Appearance &operator=(const Appearance &) = default;
};

} // namespace zt
