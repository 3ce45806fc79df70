#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What a desktop's sound settings write: the volume and the output for event sounds.

#include <QString>

#include <optional>

struct EventSoundSettings {
    double volume = 1.0; // as the slider stands
    std::optional<QString> device = std::nullopt;
    bool isMuted = false;
};

// Stores the settings on the server. Whether that worked.
bool storeEventSoundSettings(const EventSoundSettings &settings);
