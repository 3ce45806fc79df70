// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/desktop/sound/EventSoundSettings.h"

#include <QByteArray>

#include <pulse/ext-stream-restore.h>
#include <pulse/pulseaudio.h>

#include <memory>

namespace {

struct LoopFree {
    void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
};
struct ContextFree {
    void operator()(pa_context *context) const {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

} // namespace

bool storeEventSoundSettings(const EventSoundSettings &settings) {
    const std::unique_ptr<pa_mainloop, LoopFree> loop(pa_mainloop_new());
    const std::unique_ptr<pa_context, ContextFree> context(
        pa_context_new(pa_mainloop_get_api(loop.get()), "settings"));
    pa_context_connect(context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
    while (pa_context_get_state(context.get()) != PA_CONTEXT_READY) {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(context.get())))
            return false;
        pa_mainloop_iterate(loop.get(), 1, nullptr);
    }
    const QByteArray device = settings.device.value_or(QString()).toUtf8();
    pa_ext_stream_restore_info entry{};
    entry.name = "sink-input-by-media-role:event";
    pa_channel_map_init_mono(&entry.channel_map);
    pa_cvolume_set(&entry.volume, 1, pa_volume_t(settings.volume * PA_VOLUME_NORM));
    entry.device = settings.device ? device.constData() : nullptr;
    entry.mute = settings.isMuted ? 1 : 0;
    int stored = -1;
    pa_operation *const operation = pa_ext_stream_restore_write(
        context.get(), PA_UPDATE_REPLACE, &entry, 1, 1,
        [](pa_context *, int success, void *answer) { *static_cast<int *>(answer) = success; },
        &stored);
    while (operation != nullptr && stored < 0)
        pa_mainloop_iterate(loop.get(), 1, nullptr);
    if (operation != nullptr)
        pa_operation_unref(operation);
    return stored > 0;
}
