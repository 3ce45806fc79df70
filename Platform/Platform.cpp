// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Platform.h"

#include <cstdio>
#include <cstdlib>

namespace zt {

namespace {

const Platform *installedPlatform = nullptr;

} // namespace

const Platform &currentPlatform() {
    if (!installedPlatform) {
        std::fputs("currentPlatform() was called before a platform was installed\n", stderr);
        std::abort();
    }
    return *installedPlatform;
}

ScopedPlatform::ScopedPlatform(const Platform &platform) : m_previous(installedPlatform) {
    installedPlatform = &platform;
}

ScopedPlatform::~ScopedPlatform() {
    installedPlatform = m_previous;
}

} // namespace zt
