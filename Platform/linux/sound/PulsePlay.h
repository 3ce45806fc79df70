#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// One sound on its way to the sound server.

#include "Platform/Sounds.h"
#include "Platform/linux/sound/PulseConversation.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <stop_token>

namespace zt {

class PulsePlay final : public PulseRequest,
                        public PlayedSound,
                        public std::enable_shared_from_this<PulsePlay> {
public:
    using Deadline = std::chrono::steady_clock::time_point;

    // What has not begun to sound by then is given up.
    PulsePlay(SoundToPlay sound, std::weak_ptr<PulseConversation> conversation, Deadline beginsBy);

    // Loads the samples. False when there is nothing to play any more. Thread: a background one,
    // before the request is handed on.
    bool load();

    bool isOver() const override { return m_isOver; }
    void stop() override;

    void begin(const PulseServer &server) override;
    bool isDone() const override { return m_isOver; }
    bool canBeginAgain() const override { return m_position == 0 && !m_isOver; }
    void release() override;
    void fail() override { end(Ended::Early); }

private:
    enum class Ended { Completely, Early };

    static PulsePlay &of(void *play) { return *static_cast<PulsePlay *>(play); }
    static void stateChanged(pa_stream *stream, void *play);
    static void wantsSamples(pa_stream *stream, std::size_t bytes, void *play);
    static void drained(pa_stream *stream, int success, void *play);
    enum class Output { Chosen, Default };
    void connect(Output output);
    void streamFailed();
    void write(std::size_t bytes);
    void end(Ended how);
    bool isTooLate() const { return std::chrono::steady_clock::now() > m_beginsBy; }

    SoundToPlay m_sound;
    const std::weak_ptr<PulseConversation> m_conversation;
    const Deadline m_beginsBy;
    std::stop_source m_stop;
    std::atomic<bool> m_isOver = false;
    std::shared_ptr<const SoundSamples> m_samples;

    // Of the connection. Thread: that of the conversation.
    const PulseLibrary *m_library = nullptr;
    pa_context *m_context = nullptr;
    pa_stream *m_stream = nullptr;
    bool m_isOnDefaultOutput = false;
    std::size_t m_position = 0; // in m_samples->values
};

} // namespace zt
