// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/PulsePlay.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zt {

namespace {

struct ListFree {
    void operator()(pa_proplist *list) const { pulseLibrary()->pa_proplist_free(list); }
};

} // namespace

PulsePlay::PulsePlay(SoundToPlay sound, std::weak_ptr<PulseConversation> conversation,
                     Deadline beginsBy)
    : m_sound(std::move(sound))
    , m_conversation(std::move(conversation))
    , m_beginsBy(beginsBy) {}

bool PulsePlay::load() {
    m_samples = m_sound.load(m_stop.get_token());
    if (!m_samples || m_samples->values.empty())
        end(Ended::Early);
    return !m_isOver;
}

void PulsePlay::stop() {
    m_stop.request_stop();
    end(Ended::Early);
    // The thread of the conversation looks for what is over whenever it is woken up.
    if (const auto conversation = m_conversation.lock())
        conversation->post([] {});
}

void PulsePlay::end(Ended how) {
    if (!m_isOver.exchange(true) && m_sound.ended)
        m_sound.ended(how == Ended::Completely);
}

void PulsePlay::begin(const PulseServer &server) {
    m_library = &server.calls;
    m_context = server.context;
    if (isTooLate())
        end(Ended::Early);
    if (!m_isOver)
        connect(m_sound.device ? Output::Chosen : Output::Default);
}

void PulsePlay::connect(Output output) {
    m_isOnDefaultOutput = output == Output::Default;
    const auto channels = std::uint8_t(m_samples->channels);
    const pa_sample_spec form = {PA_SAMPLE_FLOAT32NE, std::uint32_t(m_samples->frameRate),
                                 channels};
    pa_channel_map positions{};
    m_library->pa_channel_map_init_extend(&positions, channels, PA_CHANNEL_MAP_WAVEEX);
    const std::unique_ptr<pa_proplist, ListFree> properties(m_library->pa_proplist_new());
    m_library->pa_proplist_sets(properties.get(), PA_PROP_MEDIA_ROLE, "event");
    m_stream = m_library->pa_stream_new_with_proplist(m_context, m_sound.name.toUtf8().constData(),
                                                      &form, &positions, properties.get());
    if (m_stream == nullptr) {
        end(Ended::Early);
        return;
    }
    m_library->pa_stream_set_state_callback(m_stream, stateChanged, this);
    m_library->pa_stream_set_write_callback(m_stream, wantsSamples, this);
    // With a volume of its own the stream is not given that of event sounds, which would be applied
    // twice; what is stored for event sounds stays as it is.
    pa_cvolume volume{};
    m_library->pa_cvolume_set(&volume, channels,
                              pa_volume_t(std::lround(m_sound.volume * float(PA_VOLUME_NORM))));
    const QByteArray device = m_sound.device.value_or(QString()).toUtf8();
    if (m_library->pa_stream_connect_playback(
            m_stream, m_isOnDefaultOutput ? nullptr : device.constData(), nullptr,
            PA_STREAM_RELATIVE_VOLUME, &volume, nullptr) < 0)
        streamFailed();
}

void PulsePlay::release() {
    if (m_stream == nullptr)
        return;
    m_library->pa_stream_set_state_callback(m_stream, nullptr, nullptr);
    m_library->pa_stream_set_write_callback(m_stream, nullptr, nullptr);
    m_library->pa_stream_disconnect(m_stream);
    m_library->pa_stream_unref(std::exchange(m_stream, nullptr));
}

void PulsePlay::streamFailed() {
    if (m_library->pa_context_get_state(m_context) != PA_CONTEXT_READY)
        return; // the connection failed, and this is told in its turn
    release();
    if (m_position == 0 && !m_isOnDefaultOutput && !m_isOver)
        connect(Output::Default); // the device is gone
    else
        end(Ended::Early);
}

void PulsePlay::write(std::size_t bytes) {
    if (m_position == 0 && isTooLate())
        end(Ended::Early);
    const std::size_t left = m_samples->values.size() - m_position;
    const std::size_t count = std::min(bytes / sizeof(float), left);
    if (m_isOver || count == 0)
        return;
    if (m_library->pa_stream_write(m_stream, m_samples->values.data() + m_position,
                                   count * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE) < 0) {
        end(Ended::Early);
        return;
    }
    m_position += count;
    if (count < left)
        return;
    if (pa_operation *const drain = m_library->pa_stream_drain(m_stream, drained, this))
        m_library->pa_operation_unref(drain);
    else
        end(Ended::Early);
}

void PulsePlay::stateChanged(pa_stream *stream, void *play) {
    if (of(play).m_library->pa_stream_get_state(stream) == PA_STREAM_FAILED)
        of(play).streamFailed();
}

void PulsePlay::wantsSamples(pa_stream * /*stream*/, std::size_t bytes, void *play) {
    of(play).write(bytes);
}

void PulsePlay::drained(pa_stream * /*stream*/, int success, void *play) {
    of(play).end(success != 0 ? Ended::Completely : Ended::Early);
}

} // namespace zt
