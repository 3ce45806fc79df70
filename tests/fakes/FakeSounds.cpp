// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fakes/FakeSounds.h"

#include <atomic>
#include <utility>

class FakeSounds::Playing final : public zt::PlayedSound {
public:
    explicit Playing(std::function<void(bool)> ended) : m_ended(std::move(ended)) {}

    bool isOver() const override { return m_isOver; }
    void stop() override { end(false); }
    void end(bool completely) {
        if (!m_isOver.exchange(true) && m_ended)
            m_ended(completely);
    }

private:
    std::function<void(bool)> m_ended;
    std::atomic<bool> m_isOver = false;
};

zt::Result<zt::SoundSamples> FakeSounds::load(const QString &path,
                                              const std::stop_token &stop) const {
    const auto found = files.constFind(path);
    if (found == files.cend() || stop.stop_requested())
        return zt::Error{"decode", path.toStdString(), "is no sound of the test"};
    return *found;
}

std::shared_ptr<zt::PlayedSound> FakeSounds::play(zt::SoundToPlay sound) {
    const auto playing = std::make_shared<Playing>(std::move(sound.ended));
    const auto samples = sound.load({});
    if (!samples || samples->values.empty()) {
        playing->end(false);
        return playing;
    }
    const std::scoped_lock lock(m_mutex);
    m_plays.push_back({sound.name, sound.volume, sound.device, samples->frames()});
    m_playing.push_back(playing);
    return playing;
}

void FakeSounds::runInBackground(std::function<void()> task) {
    const std::scoped_lock lock(m_mutex);
    ++m_backgroundTasks;
    m_threads.emplace_back(std::move(task));
}

std::vector<FakeSounds::Play> FakeSounds::plays() const {
    const std::scoped_lock lock(m_mutex);
    return m_plays;
}

void FakeSounds::playToTheEnd() {
    std::vector<std::shared_ptr<Playing>> playing;
    {
        const std::scoped_lock lock(m_mutex);
        playing = std::exchange(m_playing, {});
    }
    for (const auto &one : playing)
        one->end(true);
}

int FakeSounds::backgroundTasks() const {
    const std::scoped_lock lock(m_mutex);
    return m_backgroundTasks;
}

void FakeSounds::waitForBackgroundTasks() {
    std::vector<std::jthread> threads;
    {
        const std::scoped_lock lock(m_mutex);
        threads = std::exchange(m_threads, {});
    }
}
