#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The outcome of an operation that can fail: a value, or an error that says what was attempted on
// what, and why it failed.

#include <cerrno>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <variant>

namespace zt {

// What went wrong. `operation` is a verb ("open", "parse"), `object` what it was applied to
// (usually a path, raw bytes), `cause` the reason in words. `code` is the errno, 0 when the failure
// did not come from the operating system.
struct Error {
    std::string operation;
    std::string object;
    std::string cause;
    int code = 0;

    // Takes the reason from an errno value; call it before anything else can change errno.
    static Error fromErrno(std::string operation, std::string object, int code = errno) {
        return {std::move(operation), std::move(object), std::generic_category().message(code),
                code};
    }

    // One line for the log: "open /a/b: No such file or directory".
    std::string text() const { return operation + ' ' + object + ": " + cause; }
};

// A value of type T, or an Error. `T` may be void.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : m_content(std::move(value)) {}
    Result(Error error) : m_content(std::move(error)) {}

    explicit operator bool() const { return m_content.index() == 0; }
    T &operator*() & { return *std::get_if<T>(&m_content); }
    const T &operator*() const & { return *std::get_if<T>(&m_content); }
    T &&operator*() && { return std::move(*std::get_if<T>(&m_content)); }
    T *operator->() { return std::get_if<T>(&m_content); }
    const T *operator->() const { return std::get_if<T>(&m_content); }

    // Only when the result holds no value.
    const Error &error() const { return *std::get_if<Error>(&m_content); }

private:
    std::variant<T, Error> m_content;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error) : m_error(std::move(error)) {}

    explicit operator bool() const { return !m_error.has_value(); }
    const Error &error() const { return *m_error; }

private:
    std::optional<Error> m_error;
};

} // namespace zt
