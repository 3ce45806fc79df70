// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/LaunchServicesRegistration.h"

#include "Platform/macos/CFText.h"

#include <CoreServices/CoreServices.h>

namespace zt {

std::int32_t registerWithLaunchServices(const QString &path) {
    const CFOwner<CFStringRef> text = makeCFText(path);
    const CFOwner url(CFURLCreateWithString(kCFAllocatorDefault, text.get(), nullptr));
    return url ? LSRegisterURL(url.get(), Boolean(true)) : OSStatus(paramErr);
}

} // namespace zt
