// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Appearance.h"
#include "Platform/Platform.h"
#include "Platform/UserDefaults.h"

#include "ZTStuff/ZTClasses/ZTUtilitiesState.h"

#include <utility>

using namespace Qt::StringLiterals;

bool ZTUtilities::darkMenuTheme() {
    if (!yosemiteOrNewer())
        return false;
    const zt::Platform &platform = zt::currentPlatform();
    ZTUtilitiesState &state = ZTUtilitiesState::shared();
    if (!std::exchange(state.darkNotificationInstalled, true)) {
        platform.appearance.setChangeListener(&state, [] {
            darkModeChanged({.name = u"AppleInterfaceThemeChangedNotification"_s,
                             .object = {},
                             .userInfo = {}});
        });
    }
    const std::optional<QString> style =
        platform.userDefaults.stringForKey(u"AppleInterfaceStyle"_s);
    if (!style && !platform.appearance.preferredScheme()) {
        state.noteUnknown(ZTUtilitiesState::DarkInterface,
                          "The desktop has no preference for a light or a dark interface.");
    }
    return style == u"Dark"_s;
}

bool ZTUtilities::darkAppearance() {
    return mojaveOrNewer() && darkMenuTheme();
}

void ZTUtilities::darkModeChanged(const Notification & /*notification*/) {}
