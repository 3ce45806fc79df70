// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/SoundExtensions.h"

#include "Platform/Log.h"
#include "Platform/PropertyList.h"
#include "Platform/Sounds.h"
#include "ZTStuff/CocoaExtensions/SoundSettings.h"
#include "ZTStuff/CocoaExtensions/ZTSound.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

namespace SoundExtensions {

namespace {

// Names are told up to this length, in bytes without the end of the text.
constexpr qsizetype longestToldName = 63;

QString toldName(const QString &name) {
    const QByteArray bytes = name.toUtf8();
    if (bytes.size() <= longestToldName)
        return name;
    qsizetype end = longestToldName;
    while (end > 0 && (uchar(bytes.at(end)) & 0xC0U) == 0x80U)
        --end; // not within a character
    return QString::fromUtf8(bytes.left(end));
}

} // namespace

std::optional<QString> systemAudioDeviceID(const ZTSound &receiver) {
    return receiver.platform().sounds.effectDevice();
}

std::optional<QString> _alertSoundAlertDeviceIdentifier(const ZTSound &receiver) {
    return receiver.platform().sounds.effectDevice();
}

std::optional<QString> soundEffectDeviceID(const ZTSound &receiver) {
    const zt::SoundSettingsPlace place = receiver.platform().sounds.settingsPlace();
    const zt::Result<QVariant> settings = zt::readPropertyList(place.path);
    if (!settings)
        return std::nullopt;
    return soundEffectDeviceInSettings(*settings,
                                       ZTUtilities::yosemiteOrNewer()
                                           ? SoundSettingsForm::DevicesByUse
                                           : SoundSettingsForm::DevicesByUser,
                                       place.userID);
}

void listAudioDevices(const ZTSound &receiver) {
    const auto devices = receiver.platform().sounds.devices();
    if (!devices)
        return;
    for (const zt::SoundDevice &device : *devices) {
        if (device.name.isEmpty() || device.manufacturer.isEmpty() || device.identifier.isEmpty())
            continue;
        const QString line = ZTFormat("   device %s by %s id %@", toldName(device.name),
                                      toldName(device.manufacturer), device.identifier);
        receiver.platform().log.writeLine(line.toStdString());
    }
}

} // namespace SoundExtensions
