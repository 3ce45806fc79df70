// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/SettingsFiles.h"

#include <QFileInfo>
#include <QSettings>
#include <QStringList>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

// The value, which may be a list. Invalid when there is none, or no such file. Keys of the group
// "General" are named without it.
QVariant settingIn(const QString &file, const QString &key) {
    return QFileInfo::exists(file) ? QSettings(file, QSettings::IniFormat).value(key) : QVariant();
}

// Written "red,green,blue", each from 0 to 255, in some places followed by the opacity.
std::optional<AccentColor> colorOf(const QVariant &setting) {
    const QStringList parts = setting.toStringList();
    if (parts.size() != 3 && parts.size() != 4)
        return std::nullopt;
    double values[3] = {};
    for (int index = 0; index < 3; ++index) {
        bool isNumber = false;
        const int value = parts[index].trimmed().toInt(&isNumber);
        if (!isNumber || value < 0 || value > 255)
            return std::nullopt;
        values[index] = value / 255.0;
    }
    return AccentColor{values[0], values[1], values[2]};
}

double brightness(const AccentColor &color) {
    return 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue;
}

std::optional<Appearance::Scheme> schemeOfKde(const QString &file) {
    const auto text = colorOf(settingIn(file, u"Colors:Window/ForegroundNormal"_s));
    const auto background = colorOf(settingIn(file, u"Colors:Window/BackgroundNormal"_s));
    if (text && background) {
        return brightness(*text) > brightness(*background) ? Appearance::Scheme::Dark
                                                           : Appearance::Scheme::Light;
    }
    const QString name = settingIn(file, u"ColorScheme"_s).toString();
    if (name.isEmpty())
        return std::nullopt;
    return name.contains(u"dark"_s, Qt::CaseInsensitive) ? Appearance::Scheme::Dark
                                                         : Appearance::Scheme::Light;
}

std::optional<Appearance::Scheme> schemeOfGtk(const QString &file) {
    const QVariant wish = settingIn(file, u"Settings/gtk-application-prefer-dark-theme"_s);
    const QString theme = settingIn(file, u"Settings/gtk-theme-name"_s).toString();
    // "Adwaita-dark", or a variant of a theme as in "Adwaita:dark"; "HighContrastInverse".
    if (wish.toBool() || theme.endsWith(u"-dark"_s, Qt::CaseInsensitive) ||
        theme.endsWith(u":dark"_s, Qt::CaseInsensitive) ||
        theme.endsWith(u"Inverse"_s, Qt::CaseInsensitive))
        return Appearance::Scheme::Dark;
    if (wish.isValid() || !theme.isEmpty())
        return Appearance::Scheme::Light;
    return std::nullopt;
}

} // namespace

std::optional<Appearance::Scheme> schemeInSettingsFiles(const QString &configurationFolder) {
    if (const auto scheme = schemeOfKde(configurationFolder + u"/kdeglobals"_s))
        return scheme;
    for (const QString &name : {u"/gtk-4.0/settings.ini"_s, u"/gtk-3.0/settings.ini"_s}) {
        if (const auto scheme = schemeOfGtk(configurationFolder + name))
            return scheme;
    }
    return std::nullopt;
}

bool moreContrastInSettingsFiles(const QString &configurationFolder) {
    for (const QString &name : {u"/gtk-4.0/settings.ini"_s, u"/gtk-3.0/settings.ini"_s}) {
        const QVariant theme = settingIn(configurationFolder + name, u"Settings/gtk-theme-name"_s);
        if (theme.isValid())
            return theme.toString().startsWith(u"HighContrast"_s, Qt::CaseInsensitive);
    }
    return false;
}

std::optional<AccentColor> accentColorInSettingsFiles(const QString &configurationFolder) {
    return colorOf(settingIn(configurationFolder + u"/kdeglobals"_s, u"AccentColor"_s));
}

} // namespace zt
