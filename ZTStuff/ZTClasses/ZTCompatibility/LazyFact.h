#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A fact that is found out when it is first asked for, and kept from then on.

#include <mutex>
#include <optional>
#include <utility>

// Thread: any. Two threads that ask at the same time may both find out, but get the same answer:
// the one that was kept first.
template <typename Value>
class LazyFact {
public:
    // The fact. While it is not known, `find` is called, which answers the value or none; none is
    // not kept.
    template <typename Find>
    std::optional<Value> value(Find find) const {
        {
            const std::scoped_lock lock(m_mutex);
            if (m_value)
                return m_value;
        }
        // Found out without the lock, so that finding out may take long and use other facts.
        std::optional<Value> found = find();
        const std::scoped_lock lock(m_mutex);
        if (!m_value)
            m_value = std::move(found);
        return m_value;
    }

private:
    mutable std::mutex m_mutex;
    mutable std::optional<Value> m_value;
};
