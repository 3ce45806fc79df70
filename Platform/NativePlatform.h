#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The services of the operating system that this program was built for.

#include "Platform/Platform.h"

#include <QStringList>

#include <future>
#include <memory>

namespace zt {

// Begins what takes the operating system a while before the first text can be shown, so that it is
// done beside the making of the application object. A text that is shown before it is done does it
// once more. Keep the answer until the program ends. Thread: main, first of all.
std::future<void> beginPreparingTexts();

// Whether there is a screen to show windows on, as far as can be told before the application object
// is made, which ends the program where there is none. Thread: main, first of all.
bool canShowWindows();

// Owns one of each service. Create it on the main thread after the application object, and let it
// live as long as any service is used.
class NativePlatform {
public:
    // `arguments` is the process's argument vector, element 0 included: its "-key value" pairs are
    // the first place in which user defaults are looked up.
    explicit NativePlatform(const QStringList &arguments);
    ~NativePlatform();
    NativePlatform(const NativePlatform &) = delete;
    NativePlatform &operator=(const NativePlatform &) = delete;

    const Platform &services() const;

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};

} // namespace zt
