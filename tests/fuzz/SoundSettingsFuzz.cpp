// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/PropertyList.h"
#include "ZTStuff/CocoaExtensions/SoundSettings.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const zt::Result<QVariant> settings = zt::parsePropertyList(content);
    if (!settings)
        return 0;
    const QString user = QStringLiteral("501");
    soundEffectDeviceInSettings(*settings, SoundSettingsForm::DevicesByUse, user);
    const auto own = soundEffectDeviceInSettings(*settings, SoundSettingsForm::DevicesByUser, user);
    const auto every = soundEffectDeviceInSettings(*settings, SoundSettingsForm::DevicesByUser,
                                                   QStringLiteral("0"));
    // Whatever the list is like: what counts for everybody counts for one who has nothing else.
    if (every && !own)
        std::abort();
    return 0;
}
