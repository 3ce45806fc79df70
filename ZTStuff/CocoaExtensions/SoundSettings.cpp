// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/SoundSettings.h"

using namespace Qt::StringLiterals;

namespace {

// An entry that counts for all users who have none of their own.
const QString everyUser = u"0"_s;

// What is no dictionary has no entries.
QVariant entry(const QVariant &dictionary, const QString &key) {
    return dictionary.metaType() == QMetaType::fromType<QVariantMap>()
               ? dictionary.toMap().value(key)
               : QVariant();
}

std::optional<QString> text(const QVariant &value) {
    return value.metaType() == QMetaType::fromType<QString>() ? std::optional(value.toString())
                                                              : std::nullopt;
}

std::optional<QString> preferredDevice(const QVariant &settings) {
    const QVariant devices = entry(entry(settings, u"preferred devices"_s), u"system output"_s);
    if (devices.metaType() != QMetaType::fromType<QVariantList>() || devices.toList().isEmpty())
        return std::nullopt;
    return text(entry(devices.toList().constFirst(), u"uid"_s));
}

std::optional<QString> deviceOfUser(const QVariant &settings, const QString &userID) {
    return text(entry(entry(settings, userID), u"current default system output device"_s));
}

} // namespace

std::optional<QString> soundEffectDeviceInSettings(const QVariant &settings, SoundSettingsForm form,
                                                   const QString &userID) {
    if (form == SoundSettingsForm::DevicesByUse)
        return preferredDevice(settings);
    if (const auto own = deviceOfUser(settings, userID))
        return own;
    return deviceOfUser(settings, everyUser);
}
