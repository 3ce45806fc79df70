// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/SharedLibrary.h"

#include <dlfcn.h>

namespace zt {

SharedLibrary::SharedLibrary(const char *fileName)
    : m_library(dlopen(fileName, RTLD_NOW | RTLD_LOCAL))
    , m_isComplete(m_library != nullptr) {}

void *SharedLibrary::address(const char *name) {
    void *const found = m_library != nullptr ? dlsym(m_library, name) : nullptr;
    m_isComplete = m_isComplete && found != nullptr;
    return found;
}

} // namespace zt
