#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A variable of the environment that one test sets.

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>
#include <utility>

namespace zt::testing {

// Sets the variable, or removes it without a value, and puts it back at the end. The local time
// follows "TZ" at once.
class ScopedEnvironment {
public:
    ScopedEnvironment(std::string name, const std::optional<std::string> &value)
        : m_name(std::move(name)) {
        if (const char *before = std::getenv(m_name.c_str()))
            m_before = before;
        set(value);
    }
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;
    ~ScopedEnvironment() { set(m_before); }

private:
    void set(const std::optional<std::string> &value) {
        if (value) {
            ::setenv(m_name.c_str(), value->c_str(), 1);
        } else {
            ::unsetenv(m_name.c_str());
        }
        ::tzset();
    }

    std::string m_name;
    std::optional<std::string> m_before;
};

} // namespace zt::testing
