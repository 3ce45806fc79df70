// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/PulseSounds.h"

#include "Platform/linux/sound/PulseConversation.h"
#include "Platform/linux/sound/PulsePlay.h"
#include "Platform/linux/sound/SoundDecoding.h"

#include <QCoreApplication>

#include <system_error>
#include <utility>

#include <unistd.h> // getuid

using namespace Qt::StringLiterals;

namespace zt {

PulseSounds::PulseSounds(Folders folders, Patience patience)
    : m_folders(std::move(folders))
    , m_patience(patience) {}

PulseSounds::~PulseSounds() {
    std::shared_ptr<PulseConversation> conversation;
    std::list<BackgroundTask> tasks;
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
        conversation = m_conversation;
        tasks.swap(m_tasks);
    }
    for (BackgroundTask &task : tasks)
        task.thread.request_stop();
    // This fails what background tasks wait for, so that they end soon.
    if (conversation)
        conversation->end(m_patience.forEnd);
}

QStringList PulseSounds::soundFolders() const {
    QStringList folders = {m_folders.root + u"/System/Library/Sounds"_s,
                           m_folders.root + u"/Library/Sounds"_s,
                           m_folders.home + u"/Library/Sounds"_s};
    for (const QString &folder : m_folders.data)
        folders << folder + u"/sounds"_s;
    return folders;
}

SoundSettingsPlace PulseSounds::settingsPlace() const {
    return {m_folders.root + u"/Library/Preferences/Audio/com.apple.audio.SystemSettings.plist"_s,
            QString::number(getuid())};
}

Result<SoundSamples> PulseSounds::load(const QString &path, const std::stop_token &stop) const {
    return readSoundFile(path, stop);
}

std::shared_ptr<PulseConversation> PulseSounds::conversation() {
    if (!m_conversation)
        m_conversation =
            PulseConversation::begin(QCoreApplication::applicationName().toStdString());
    return m_conversation;
}

// While the server owes an answer it is not asked again, and is waited for only so long in all: a
// server that hangs holds up the first question alone.
PulseSounds::Question PulseSounds::question() {
    const std::scoped_lock lock(m_mutex);
    if (!m_question.query || m_question.query->isAnswered()) {
        m_question = {std::make_shared<PulseQuery>(),
                      std::chrono::steady_clock::now() + m_patience.forAnswer};
        if (m_isEnding)
            m_question.query->fail();
        else
            conversation()->add(m_question.query);
    }
    return m_question;
}

std::optional<PulseServerState> PulseSounds::ask() {
    const Question asked = question();
    return asked.query->wait(asked.deadline);
}

std::optional<std::vector<SoundDevice>> PulseSounds::devices() {
    std::optional<PulseServerState> state = ask();
    if (!state)
        return std::nullopt;
    std::vector<SoundDevice> devices = std::move(state->outputs);
    devices.insert(devices.end(), state->inputs.begin(), state->inputs.end());
    return devices;
}

std::optional<QString> PulseSounds::effectDevice() {
    const std::optional<PulseServerState> state = ask();
    if (!state)
        return std::nullopt;
    // What was chosen may have been unplugged since.
    if (state->eventDevice && state->hasOutput(*state->eventDevice))
        return state->eventDevice;
    return state->hasOutput(state->defaultOutput) ? std::optional(state->defaultOutput)
                                                  : std::nullopt;
}

std::optional<float> PulseSounds::alertVolume() {
    const std::optional<PulseServerState> state = ask();
    return state ? state->eventVolume : std::nullopt;
}

void PulseSounds::getReady() {
    question();
}

std::shared_ptr<PlayedSound> PulseSounds::play(SoundToPlay sound) {
    std::shared_ptr<PulseConversation> conversation;
    {
        const std::scoped_lock lock(m_mutex);
        conversation = m_isEnding ? nullptr : this->conversation();
    }
    const auto play = std::make_shared<PulsePlay>(
        std::move(sound), conversation, std::chrono::steady_clock::now() + m_patience.forBeginning);
    if (!conversation) {
        play->stop();
        return play;
    }
    startTask([play, conversation](const std::stop_token &stop) {
        const std::stop_callback stopped(stop, [&play] { play->stop(); });
        if (play->load())
            conversation->add(play);
    });
    return play;
}

void PulseSounds::runInBackground(std::function<void()> task) {
    startTask([task = std::move(task)](const std::stop_token & /*stop*/) { task(); });
}

void PulseSounds::startTask(std::function<void(const std::stop_token &)> task) {
    const std::scoped_lock lock(m_mutex);
    m_tasks.remove_if([](const BackgroundTask &one) { return one.isOver.load(); });
    BackgroundTask &added = m_tasks.emplace_back();
    try {
        added.thread = std::jthread([&added, task = std::move(task)](const std::stop_token &stop) {
            task(stop);
            added.isOver = true;
        });
    } catch (const std::system_error &) {
        m_tasks.pop_back(); // no thread is left: then there is no sound
    }
}

} // namespace zt
