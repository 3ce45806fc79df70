#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A library that is loaded when it is first needed, so that the start of the program does not wait
// for it, and that need not be there.

namespace zt {

// Stays loaded until the program ends: its threads and exit functions may run until then.
class SharedLibrary {
public:
    // Loads the library with this file name from the system's library folders.
    explicit SharedLibrary(const char *fileName);

    // The library's function of this name. Null when it has none.
    template <typename Function>
    Function function(const char *name) {
        return reinterpret_cast<Function>(address(name));
    }

    // Whether the library was found, and in it every function that was asked for.
    bool isComplete() const { return m_isComplete; }

private:
    void *address(const char *name);

    void *m_library;
    bool m_isComplete;
};

// A member of a struct with a SharedLibrary called `file`: the library's function of that name.
// NOLINTNEXTLINE(bugprone-macro-parentheses): the name is that of the member
#define VELMORA_IMPORT(name) decltype(&::name) name = file.function<decltype(&::name)>(#name)

} // namespace zt
