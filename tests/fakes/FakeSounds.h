#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Sounds.h"

#include <QMap>

#include <mutex>
#include <thread>
#include <vector>

// Nothing is heard. Files are samples by path; what is played is recorded, and goes on until the
// test ends it. Set the members before other threads use the fake.
class FakeSounds final : public zt::Sounds {
public:
    struct Play {
        QString name;
        float volume;
        std::optional<QString> device;
        std::size_t frames;

        bool operator==(const Play &) const = default;
    };

    QStringList soundFolders() const override { return folders; }
    zt::SoundSettingsPlace settingsPlace() const override { return place; }
    zt::Result<zt::SoundSamples> load(const QString &path,
                                      const std::stop_token &stop) const override;
    std::optional<std::vector<zt::SoundDevice>> devices() override { return allDevices; }
    std::optional<QString> effectDevice() override { return chosenDevice; }
    std::optional<float> alertVolume() override { return chosenVolume; }
    void getReady() override { ++readyRequests; }
    std::shared_ptr<zt::PlayedSound> play(zt::SoundToPlay sound) override;
    void runInBackground(std::function<void()> task) override;

    // What was begun to be played, the first one first.
    std::vector<Play> plays() const;
    // Ends what is played, as if each sound had come to its end.
    void playToTheEnd();
    // Background tasks so far, and the end of those that still run.
    int backgroundTasks() const;
    void waitForBackgroundTasks();

    QStringList folders;
    zt::SoundSettingsPlace place;
    QMap<QString, zt::SoundSamples> files;
    std::optional<std::vector<zt::SoundDevice>> allDevices;
    std::optional<QString> chosenDevice;
    std::optional<float> chosenVolume;
    int readyRequests = 0;

private:
    class Playing;

    mutable std::mutex m_mutex;
    std::vector<Play> m_plays;
    std::vector<std::shared_ptr<Playing>> m_playing;
    int m_backgroundTasks = 0;
    std::vector<std::jthread> m_threads;
};
