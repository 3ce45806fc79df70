#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The audio system's settings, as they stand in their file.

#include <QString>
#include <QVariant>

#include <optional>

// How the settings are arranged. Since the release that `yosemiteOrNewer` tells, each kind of use
// has a list of devices, the preferred one first; before, each user had one device.
enum class SoundSettingsForm { DevicesByUse, DevicesByUser };

// The identifier of the device for sound effects in the property list. No value when there is none,
// or when the list is not made so. Thread: any.
std::optional<QString> soundEffectDeviceInSettings(const QVariant &settings, SoundSettingsForm form,
                                                   const QString &userID);
