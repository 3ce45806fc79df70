#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Whether the user prefers a light or a dark interface, and how controls are coloured.

#include <functional>
#include <optional>

namespace zt {

// Each from 0 to 1.
struct AccentColor {
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const AccentColor &) const = default;
};

// Thread: main, for all operations.
class Appearance {
public:
    enum class Scheme { Light, Dark };

    // Whether pressed buttons, chosen lines and the like stand out by colour or by grey alone. The
    // numbers are those of the reference platform.
    enum class ControlTint { Blue = 1, Graphite = 6 };

    virtual ~Appearance() = default;

    // The scheme that the user asked for; no value when the desktop does not tell.
    virtual std::optional<Scheme> preferredScheme() const = 0;

    // Whether the user asked for more contrast than usual; false when the desktop does not tell.
    virtual bool prefersMoreContrast() const = 0;

    // The tint that the user chose; blue when the desktop does not tell.
    virtual ControlTint controlTint() const = 0;

    // The colour that the user chose for what is to stand out; no value when he chose none, or the
    // desktop does not tell.
    virtual std::optional<AccentColor> accentColor() const = 0;

    // Calls `changed` on the main thread whenever one of the above changes. One listener for each
    // owner; a later call replaces it, an empty function removes it.
    virtual void setChangeListener(const void *owner, std::function<void()> changed) = 0;

protected:
    Appearance() = default;
    Appearance(const Appearance &) = default;
    Appearance &operator=(const Appearance &) = default;
};

} // namespace zt
