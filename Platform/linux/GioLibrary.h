#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of GLib's input and output library that are used here. It brings many others with
// it, and most starts do without them.

#include "Platform/posix/SharedLibrary.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>

#include <memory>

namespace zt {

struct GioLibrary {
    SharedLibrary file{"libgio-2.0.so.0"};

    VELMORA_IMPORT(g_app_info_get_commandline);
    VELMORA_IMPORT(g_app_info_launch_default_for_uri);
    VELMORA_IMPORT(g_cancellable_cancel);
    VELMORA_IMPORT(g_cancellable_is_cancelled);
    VELMORA_IMPORT(g_cancellable_new);
    VELMORA_IMPORT(g_dbus_address_get_for_bus_sync);
    VELMORA_IMPORT(g_dbus_connection_call_with_unix_fd_list_sync);
    VELMORA_IMPORT(g_dbus_connection_new_for_address_sync);
    VELMORA_IMPORT(g_desktop_app_info_get_boolean);
    VELMORA_IMPORT(g_desktop_app_info_get_is_hidden);
    VELMORA_IMPORT(g_desktop_app_info_get_show_in);
    VELMORA_IMPORT(g_desktop_app_info_has_key);
    VELMORA_IMPORT(g_desktop_app_info_new_from_filename);
    VELMORA_IMPORT(g_object_unref);
};

// The library, loaded by the first call; null when it is not installed. Thread: any.
const GioLibrary *gioLibrary();

struct GioDeleter {
    void operator()(gpointer object) const { gioLibrary()->g_object_unref(object); }
};

// Owns an object that the library made.
template <typename T>
using GioPointer = std::unique_ptr<T, GioDeleter>;

} // namespace zt
