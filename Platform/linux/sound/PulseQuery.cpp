// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/PulseQuery.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace zt {

namespace {

// Where the server's own database keeps what is set for event sounds.
constexpr std::string_view eventRole = "sink-input-by-media-role:event";

// Sinks and sources are described alike.
template <typename Info>
SoundDevice deviceOf(const PulseLibrary &library, const Info &info,
                     SoundDevice::Direction direction) {
    // What has no maker is made by a part of the server.
    const char *const vendor = library.pa_proplist_gets(info.proplist, PA_PROP_DEVICE_VENDOR_NAME);
    return {.identifier = QString::fromUtf8(info.name),
            .name = QString::fromUtf8(info.description),
            .manufacturer = QString::fromUtf8(vendor != nullptr ? vendor : info.driver),
            .direction = direction};
}

} // namespace

bool PulseServerState::hasOutput(const QString &identifier) const {
    return std::ranges::find(outputs, identifier, &SoundDevice::identifier) != outputs.end();
}

std::optional<PulseServerState> PulseQuery::wait(std::chrono::steady_clock::time_point deadline) {
    std::unique_lock lock(m_mutex);
    m_arrival.wait_until(lock, deadline, [this] { return m_isAnswered; });
    return m_answer;
}

bool PulseQuery::isAnswered() const {
    const std::scoped_lock lock(m_mutex);
    return m_isAnswered;
}

void PulseQuery::begin(const PulseServer &server) {
    m_library = &server.calls;
    m_received = {};
    m_outstanding = 1; // until all has been asked
    await(m_library->pa_context_get_server_info(server.context, receiveServer, this));
    await(m_library->pa_context_get_sink_info_list(server.context, receiveSink, this));
    await(m_library->pa_context_get_source_info_list(server.context, receiveSource, this));
    await(m_library->pa_ext_stream_restore_read(server.context, receiveRole, this));
    if (m_outstanding == 1)
        fail(); // the connection is just breaking
    else
        receivedOne();
}

void PulseQuery::await(pa_operation *operation) {
    if (operation == nullptr)
        return;
    ++m_outstanding;
    m_library->pa_operation_unref(operation);
}

void PulseQuery::receivedOne() {
    if (--m_outstanding == 0)
        answer(std::move(m_received));
}

void PulseQuery::fail() {
    m_outstanding = 0;
    answer(std::nullopt);
}

void PulseQuery::answer(std::optional<PulseServerState> state) {
    const std::scoped_lock lock(m_mutex);
    m_answer = std::move(state);
    m_isAnswered = true;
    m_arrival.notify_all();
}

void PulseQuery::receiveServer(pa_context * /*context*/, const pa_server_info *info, void *query) {
    if (info != nullptr)
        of(query).m_received.defaultOutput = QString::fromUtf8(info->default_sink_name);
    of(query).receivedOne();
}

void PulseQuery::receiveSink(pa_context * /*context*/, const pa_sink_info *info, int last,
                             void *query) {
    if (last != 0) {
        of(query).receivedOne();
        return;
    }
    of(query).m_received.outputs.push_back(
        deviceOf(*of(query).m_library, *info, SoundDevice::Direction::Output));
}

void PulseQuery::receiveSource(pa_context * /*context*/, const pa_source_info *info, int last,
                               void *query) {
    if (last != 0) {
        of(query).receivedOne();
        return;
    }
    if (info->monitor_of_sink == PA_INVALID_INDEX) {
        of(query).m_received.inputs.push_back(
            deviceOf(*of(query).m_library, *info, SoundDevice::Direction::Input));
    }
}

void PulseQuery::receiveRole(pa_context * /*context*/, const pa_ext_stream_restore_info *info,
                             int last, void *query) {
    // A server that does not have this database answers so too.
    if (last != 0) {
        of(query).receivedOne();
        return;
    }
    if (info->name == eventRole) {
        PulseServerState &received = of(query).m_received;
        if (info->device != nullptr && *info->device != '\0')
            received.eventDevice = QString::fromUtf8(info->device);
        if (info->volume.channels > 0) {
            const float full = PA_VOLUME_NORM;
            received.eventVolume =
                std::min(float(of(query).m_library->pa_cvolume_max(&info->volume)) / full, 1.0F);
        }
    }
}

} // namespace zt
