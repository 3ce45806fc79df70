#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Asks the sound server for its devices and for what the user chose for event sounds.

#include "Platform/Sounds.h"
#include "Platform/linux/sound/PulseRequest.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <vector>

namespace zt {

// What the sound server told.
struct PulseServerState {
    QString defaultOutput;
    std::vector<SoundDevice> outputs;
    std::vector<SoundDevice> inputs;    // without those that only repeat what an output plays
    std::optional<QString> eventDevice; // the output that was chosen for event sounds
    std::optional<float> eventVolume;   // and the volume, as the slider stands

    bool hasOutput(const QString &identifier) const;
};

class PulseQuery final : public PulseRequest {
public:
    // Waits for the answer until then. No value when there is none, or none yet. Thread: any.
    std::optional<PulseServerState> wait(std::chrono::steady_clock::time_point deadline);

    // Whether it is known that there is an answer, or that there will be none. Thread: any.
    bool isAnswered() const;

    void begin(const PulseServer &server) override;
    bool isDone() const override { return m_outstanding == 0; }
    bool canBeginAgain() const override { return !isDone(); }
    void release() override {}
    void fail() override;

private:
    static PulseQuery &of(void *query) { return *static_cast<PulseQuery *>(query); }
    static void receiveServer(pa_context *context, const pa_server_info *info, void *query);
    static void receiveSink(pa_context *context, const pa_sink_info *info, int last, void *query);
    static void receiveSource(pa_context *context, const pa_source_info *info, int last,
                              void *query);
    static void receiveRole(pa_context *context, const pa_ext_stream_restore_info *info, int last,
                            void *query);
    void await(pa_operation *operation);
    void receivedOne();
    void answer(std::optional<PulseServerState> state);

    const PulseLibrary *m_library = nullptr;
    int m_outstanding = -1; // answers of the server; -1 before it is asked
    PulseServerState m_received;

    mutable std::mutex m_mutex;
    std::condition_variable m_arrival;
    bool m_isAnswered = false;
    std::optional<PulseServerState> m_answer;
};

} // namespace zt
