#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Bundles in the layouts that are found on Linux.

#include "Platform/Bundles.h"
#include "Platform/linux/RememberedPropertyLists.h"

namespace zt {

// Reads three layouts; the first information dictionary that exists decides:
//   Contents/Info.plist           program in Contents/Linux or Contents/MacOS, resources in
//                                 Contents/Resources
//   Info.plist                    program on top, resources in Resources if there is such a folder,
//                                 else on top
//   Resources/Info-gnustep.plist  program on top, resources in Resources
// The program's name is CFBundleExecutable, else NSExecutable, else the bundle's own name.
// Thread: any.
class LinuxBundles final : public Bundles {
public:
    // `executablePath` is the real path of the program that runs; empty: that of this process.
    explicit LinuxBundles(const QString &executablePath = {});

    std::optional<Bundle> bundleAtPath(const QString &path) const override;
    const Bundle &mainBundle() const override;

private:
    mutable RememberedPropertyLists m_dictionaries; // guards itself
    Bundle m_mainBundle;
};

} // namespace zt
