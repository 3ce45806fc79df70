#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of PulseAudio's client library that are used here.

#include "Platform/posix/SharedLibrary.h"

#include <pulse/ext-stream-restore.h>
#include <pulse/pulseaudio.h>

namespace zt {

struct PulseLibrary {
    SharedLibrary file{"libpulse.so.0"};

    VELMORA_IMPORT(pa_channel_map_init_extend);
    VELMORA_IMPORT(pa_context_connect);
    VELMORA_IMPORT(pa_context_disconnect);
    VELMORA_IMPORT(pa_context_get_server_info);
    VELMORA_IMPORT(pa_context_get_sink_info_list);
    VELMORA_IMPORT(pa_context_get_source_info_list);
    VELMORA_IMPORT(pa_context_get_state);
    VELMORA_IMPORT(pa_context_new);
    VELMORA_IMPORT(pa_context_unref);
    VELMORA_IMPORT(pa_cvolume_max);
    VELMORA_IMPORT(pa_cvolume_set);
    VELMORA_IMPORT(pa_ext_stream_restore_read);
    VELMORA_IMPORT(pa_mainloop_dispatch);
    VELMORA_IMPORT(pa_mainloop_free);
    VELMORA_IMPORT(pa_mainloop_get_api);
    VELMORA_IMPORT(pa_mainloop_new);
    VELMORA_IMPORT(pa_mainloop_poll);
    VELMORA_IMPORT(pa_mainloop_prepare);
    VELMORA_IMPORT(pa_mainloop_wakeup);
    VELMORA_IMPORT(pa_operation_unref);
    VELMORA_IMPORT(pa_proplist_free);
    VELMORA_IMPORT(pa_proplist_gets);
    VELMORA_IMPORT(pa_proplist_new);
    VELMORA_IMPORT(pa_proplist_sets);
    VELMORA_IMPORT(pa_stream_connect_playback);
    VELMORA_IMPORT(pa_stream_disconnect);
    VELMORA_IMPORT(pa_stream_drain);
    VELMORA_IMPORT(pa_stream_get_state);
    VELMORA_IMPORT(pa_stream_new_with_proplist);
    VELMORA_IMPORT(pa_stream_set_state_callback);
    VELMORA_IMPORT(pa_stream_set_write_callback);
    VELMORA_IMPORT(pa_stream_unref);
    VELMORA_IMPORT(pa_stream_write);
};

// The library, loaded by the first call, which takes some milliseconds; null when it is not
// installed. Thread: any.
const PulseLibrary *pulseLibrary();

} // namespace zt
