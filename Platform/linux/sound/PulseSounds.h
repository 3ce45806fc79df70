#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sounds on a Linux desktop: libsndfile reads the files, PulseAudio's client library plays them, on
// that server or on PipeWire. Both libraries are loaded when they are first needed, on a thread of
// their own; without them there is silence.

#include "Platform/Sounds.h"
#include "Platform/linux/sound/PulseQuery.h"

#include <atomic>
#include <list>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>

namespace zt {

class PulseConversation;

class PulseSounds final : public Sounds {
public:
    struct Folders {
        QString root; // put before the folders that the whole machine has in common
        QString home;
        QStringList data; // those of the desktop, the user's own first
    };

    struct Patience {
        // How long an answer of the server is waited for.
        std::chrono::milliseconds forAnswer = std::chrono::milliseconds(60);
        // A sound that begins later than this surprises rather than tells.
        std::chrono::milliseconds forBeginning = std::chrono::seconds(3);
        // How long the end of the program waits for the server's thread.
        std::chrono::milliseconds forEnd = std::chrono::milliseconds(30);
    };

    explicit PulseSounds(Folders folders) : PulseSounds(std::move(folders), Patience()) {}
    PulseSounds(Folders folders, Patience patience);
    ~PulseSounds() override;
    PulseSounds(const PulseSounds &) = delete;
    PulseSounds &operator=(const PulseSounds &) = delete;

    QStringList soundFolders() const override;
    SoundSettingsPlace settingsPlace() const override;
    Result<SoundSamples> load(const QString &path, const std::stop_token &stop) const override;
    std::optional<std::vector<SoundDevice>> devices() override;
    std::optional<QString> effectDevice() override;
    std::optional<float> alertVolume() override;
    void getReady() override;
    std::shared_ptr<PlayedSound> play(SoundToPlay sound) override;
    void runInBackground(std::function<void()> task) override;

private:
    struct BackgroundTask {
        std::atomic<bool> isOver = false;
        std::jthread thread;
    };
    struct Question {
        std::shared_ptr<PulseQuery> query;
        std::chrono::steady_clock::time_point deadline;
    };

    void startTask(std::function<void(const std::stop_token &)> task);
    std::shared_ptr<PulseConversation> conversation();
    Question question();
    std::optional<PulseServerState> ask();

    const Folders m_folders;
    const Patience m_patience;
    std::mutex m_mutex;
    std::shared_ptr<PulseConversation> m_conversation;
    bool m_isEnding = false; // what background tasks still ask for is refused
    Question m_question;     // the latest one
    std::list<BackgroundTask> m_tasks;
};

} // namespace zt
