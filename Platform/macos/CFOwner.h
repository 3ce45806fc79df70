#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The owner of a Core Foundation object.

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace zt {

// Releases its reference when it goes. Movable, not copyable. Thread: one at a time.
template <typename Reference>
class CFOwner {
public:
    CFOwner() = default;

    // Takes over a reference that the caller got from a function named Create or Copy.
    explicit CFOwner(Reference reference) : m_reference(reference) {}

    CFOwner(CFOwner &&other) noexcept : m_reference(std::exchange(other.m_reference, nullptr)) {}
    CFOwner &operator=(CFOwner &&other) noexcept {
        std::swap(m_reference, other.m_reference);
        return *this;
    }
    CFOwner(const CFOwner &) = delete;
    CFOwner &operator=(const CFOwner &) = delete;

    ~CFOwner() {
        if (m_reference)
            CFRelease(m_reference);
    }

    // Whether an object is owned.
    explicit operator bool() const { return m_reference != nullptr; }

    // The object, still owned; null when there is none.
    Reference get() const { return m_reference; }

    // Gives the reference up to the caller.
    Reference release() { return std::exchange(m_reference, nullptr); }

    // Where a function stores the reference that it hands out. Nothing may be owned yet.
    Reference *receive() { return &m_reference; }

private:
    Reference m_reference = nullptr;
};

} // namespace zt
