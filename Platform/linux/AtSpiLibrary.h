#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of AT-SPI's client library that are used here, and GObject's owners for its
// objects. Few programs watch another one's user interface, so that none waits for the library at
// its start.

#include "Platform/posix/SharedLibrary.h"

#include <atspi/atspi.h>

namespace zt {

struct AtSpiLibrary {
    SharedLibrary file{"libatspi.so.0"};

    VELMORA_IMPORT(atspi_accessible_get_child_at_index);
    VELMORA_IMPORT(atspi_accessible_get_child_count);
    VELMORA_IMPORT(atspi_accessible_get_name);
    VELMORA_IMPORT(atspi_accessible_get_process_id);
    VELMORA_IMPORT(atspi_accessible_get_role_name);
    VELMORA_IMPORT(atspi_event_get_type);
    VELMORA_IMPORT(atspi_event_listener_deregister);
    VELMORA_IMPORT(atspi_event_listener_new);
    VELMORA_IMPORT(atspi_event_listener_register_with_app);
    VELMORA_IMPORT(atspi_get_desktop);
    VELMORA_IMPORT(atspi_init);
    VELMORA_IMPORT(atspi_set_timeout);
    VELMORA_IMPORT(g_boxed_free);
    VELMORA_IMPORT(g_object_unref);
};

// The library, loaded by the first call; null when it is not installed. Thread: any.
const AtSpiLibrary *atSpiLibrary();

} // namespace zt
