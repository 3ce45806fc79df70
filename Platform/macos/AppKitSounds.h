#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sounds: Core Audio tells of devices and reads the files, AppKit plays.

#include "Platform/Sounds.h"

namespace zt {

class AppKitSounds final : public Sounds {
public:
    AppKitSounds();
    ~AppKitSounds() override;
    AppKitSounds(const AppKitSounds &) = delete;
    AppKitSounds &operator=(const AppKitSounds &) = delete;

    QStringList soundFolders() const override;
    SoundSettingsPlace settingsPlace() const override;
    Result<SoundSamples> load(const QString &path, const std::stop_token &stop) const override;
    std::optional<std::vector<SoundDevice>> devices() override;
    std::optional<QString> effectDevice() override;
    // It stands in the user defaults, where it is looked for first.
    std::optional<float> alertVolume() override;
    void getReady() override;
    std::shared_ptr<PlayedSound> play(SoundToPlay sound) override;
    void runInBackground(std::function<void()> task) override;

private:
    struct Tasks;

    std::unique_ptr<Tasks> m_tasks;
};

} // namespace zt
