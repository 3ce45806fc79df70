// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LoginItemLaunch.h"

#include <algorithm>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

// The programs with which the desktops begin a session. They start what is to run at login, and
// nothing else that a user would launch.
const QString sessionManagers[] = {
    u"cinnamon-session"_s,
    u"cinnamon-session-binary"_s,
    u"gnome-session-binary"_s,
    u"gnome-session-service"_s,
    u"ksmserver"_s,
    u"lxqt-session"_s,
    u"lxsession"_s,
    u"mate-session"_s,
    u"plasma_session"_s,
    u"xfce4-session"_s,
};

// Where the system's service manager starts login items, each is a unit of its own.
bool isUnitOfLoginItem(std::string_view controlGroups) {
    constexpr std::string_view beginning = "app-";
    constexpr std::string_view ending = "@autostart.service";
    while (!controlGroups.empty()) {
        const std::string_view line = controlGroups.substr(0, controlGroups.find('\n'));
        controlGroups.remove_prefix(std::min(line.size() + 1, controlGroups.size()));
        const std::string_view unit = line.substr(line.rfind('/') + 1);
        if (unit.starts_with(beginning) && unit.ends_with(ending))
            return true;
    }
    return false;
}

} // namespace

bool isLaunchOfLoginItem(const QString &parentName, std::string_view controlGroups) {
    if (std::ranges::find(sessionManagers, parentName) != std::end(sessionManagers))
        return true;
    // What a login item starts is in its unit too, but has another parent.
    return parentName == u"systemd" && isUnitOfLoginItem(controlGroups);
}

} // namespace zt
