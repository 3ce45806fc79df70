#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The owner of a file descriptor.

#include <unistd.h>

#include <utility>

namespace zt {

// Closes its descriptor when it goes. Movable, not copyable. Thread: one at a time.
class UniqueFd {
public:
    UniqueFd() = default;

    explicit UniqueFd(int descriptor) : m_descriptor(descriptor) {}

    UniqueFd(UniqueFd &&other) noexcept : m_descriptor(other.release()) {}

    UniqueFd(const UniqueFd &) = delete;
    UniqueFd &operator=(const UniqueFd &) = delete;

    ~UniqueFd() { reset(); }

    UniqueFd &operator=(UniqueFd &&other) noexcept {
        reset(other.release());
        return *this;
    }

    // Whether a descriptor is owned.
    explicit operator bool() const { return m_descriptor >= 0; }

    // The descriptor, still owned; negative when there is none.
    int get() const { return m_descriptor; }

    // Gives the descriptor up to the caller.
    int release() { return std::exchange(m_descriptor, -1); }

    // Closes the descriptor and owns the given one. Leaves errno as it is.
    void reset(int descriptor = -1);

private:
    int m_descriptor = -1;
};

} // namespace zt
