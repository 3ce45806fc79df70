// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LoginItemLaunch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct LaunchRow {
    const char *reason;
    QString parent;
    std::string_view controlGroups;
    bool isLoginItem;
};

constexpr std::string_view slice = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";

} // namespace

TEST(LoginItemLaunchTest, sessionsStartLoginItemsInSeveralWays) {
    const std::string unit = std::string(slice) + "app-com.velmora.Notes@autostart.service\n";
    const std::string both = "12:pids:/x\n" + unit;
    const std::string inside = std::string(slice) + "app-a@autostart.service/inner\n";
    const std::string scope = std::string(slice) + "app-gnome-notes-4711.scope\n";
    const std::string started = std::string(slice) + "app-com.velmora.Notes@4711.service\n";
    const LaunchRow rows[] = {
        {"a session manager", u"xfce4-session"_s, "0::/\n", true},
        {"one of another desktop", u"gnome-session-binary"_s, scope, true},
        {"a shell", u"bash"_s, "0::/\n", false},
        {"a name that only begins so", u"xfce4-session-settings"_s, "0::/\n", false},
        {"the service manager, a unit for login items", u"systemd"_s, unit, true},
        {"with the groups of an older kernel", u"systemd"_s, both, true},
        {"a unit for a program that the user started", u"systemd"_s, started, false},
        {"a program of a session's scope, left by its parent", u"systemd"_s, scope, false},
        {"a part of such a unit", u"systemd"_s, inside, false},
        {"what a login item has started", u"Notes"_s, unit, false},
        {"no groups", u"systemd"_s, "", false},
        {"no name", u""_s, "", false},
    };
    for (const LaunchRow &row : rows)
        EXPECT_EQ(zt::isLaunchOfLoginItem(row.parent, row.controlGroups), row.isLoginItem)
            << row.reason;
}
