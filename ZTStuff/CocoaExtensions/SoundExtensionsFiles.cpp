// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/SoundExtensions.h"

#include "Platform/Bundles.h"
#include "Platform/Sounds.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace SoundExtensions {

namespace {

// Played to wake the device; nobody would choose it.
const QString silentSoundName = u"SoundOfSilence"_s;

QString nameOf(const QString &path) {
    return deletingPathExtension(lastPathComponent(path));
}

QStringList soundFilesAmong(const QStringList &paths) {
    QStringList files;
    std::ranges::copy_if(paths, std::back_inserter(files), isSoundFileAtPath);
    return files;
}

QStringList applicationSoundFilesOn(const zt::Platform &platform) {
    return soundFilesAmong(platform.bundles.mainBundle().pathsForResources());
}

QStringList systemSoundFilesOn(const zt::Platform &platform) {
    QStringList files;
    for (const QString &folder : platform.sounds.soundFolders()) {
        QStringList paths;
        const QStringList names =
            QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QString &name : names)
            paths << appendingPathComponent(folder, name);
        files << soundFilesAmong(paths);
    }
    return files;
}

} // namespace

const QSet<QString> &soundFileExtensions() {
    static const QSet<QString> extensions = {
        u"aiff"_s,   u"AIFF"_s, u"'AIFF'"_s, u"aif"_s,    u"AIF"_s, u"aifc"_s,
        u"AIFC"_s,   u"wav"_s,  u"WAV"_s,    u"'WAVE'"_s, u"snd"_s, u"SND"_s,
        u"au"_s,     u"AU"_s,   u"'ULAW'"_s, u"'ALAW'"_s, u"mp3"_s, u"MP3"_s,
        u"'Mp3 '"_s, u"ulw"_s,  u"ULW"_s,    u"m4p"_s,    u"m4a"_s};
    return extensions;
}

bool isSoundFileAtPath(const QString &path) {
    return soundFileExtensions().contains(pathExtension(path));
}

QStringList applicationSoundFiles() {
    return applicationSoundFilesOn(zt::currentPlatform());
}

QStringList applicationSounds() {
    QStringList names;
    for (const QString &path : applicationSoundFiles()) {
        if (nameOf(path) != silentSoundName)
            names << nameOf(path);
    }
    names.sort();
    return names;
}

QStringList systemSoundFiles() {
    return systemSoundFilesOn(zt::currentPlatform());
}

QStringList systemSounds() {
    QSet<QString> names;
    for (const QString &path : systemSoundFiles())
        names << nameOf(path);
    QStringList sorted = names.values();
    sorted.sort();
    return sorted;
}

std::optional<QString> pathOfSound(const QString &name, const zt::Platform &platform) {
    for (const auto filesOn : {applicationSoundFilesOn, systemSoundFilesOn}) {
        const QStringList files = filesOn(platform);
        const auto found =
            std::ranges::find_if(files, [&](const QString &path) { return nameOf(path) == name; });
        if (found != files.end())
            return *found;
    }
    return std::nullopt;
}

} // namespace SoundExtensions
