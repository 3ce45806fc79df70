#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Operations added to sounds: which ones there are, and playing them as the system plays its
// alerts.

#include "Platform/Platform.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class ZTSound;

// A sound's name is its file's name without the extension. Nothing here waits for a sound to end,
// or notably for a sound server. Thread: any.
namespace SoundExtensions {

// The extensions of sound files, each spelling that occurs; those in single quotes are file types
// of old systems, written as an extension.
const QSet<QString> &soundFileExtensions();

// Whether the path has one of these extensions. The file is not looked at.
bool isSoundFileAtPath(const QString &path);

// The sound files among this application's resources.
QStringList applicationSoundFiles();

// The names of these sounds, sorted. "SoundOfSilence" is no choice and left out.
QStringList applicationSounds();

// The sound files in the system's folders: "/System/Library/Sounds", "/Library/Sounds" and
// "~/Library/Sounds" in this order, and on Linux after them the folder "sounds" in the user's and
// in the machine's data folders (XDG_DATA_HOME, XDG_DATA_DIRS). Folders in these are not searched.
QStringList systemSoundFiles();

// The names of these sounds, sorted, each one once.
QStringList systemSounds();

// The file of the sound with this name, the application's own before those of the system.
std::optional<QString> pathOfSound(const QString &name,
                                   const zt::Platform &platform = zt::currentPlatform());

// The volume for a sound that is to be as loud as the user wants alerts to be, from 0 to 1. It is
// that of the setting "com.apple.sound.beep.volume", whose scale is not even, when that is set,
// also in the settings named "com.apple.systemsound"; else it is the volume that the desktop has
// stored for event sounds, as its slider stands. 1 when there is neither.
float alertVolume();

// Plays the sound on the device that the user chose for alerts, on the default output if that does
// not work. With the user default "soundLog", what is done is told in the log.
void playAsSoundEffect(ZTSound &receiver);

// Notes that a sound is played now.
void setSoundDateNow();

// Wakes the sound device with a silent sound, in the background, unless a sound was played within
// the last 25 seconds: the beginning of the next one is then not lost.
void prepareForSound();

// The task of that background thread.
void playSilentSoundThread();

// The identifier of the output device for alerts, asked of the sound server in two ways that are
// one on Linux: the device stored for event sounds while it is there, else the default output.
std::optional<QString> systemAudioDeviceID(const ZTSound &receiver);
std::optional<QString> _alertSoundAlertDeviceIdentifier(const ZTSound &receiver);

// The same as stored in the file of the audio system's settings. No value when it is not there.
std::optional<QString> soundEffectDeviceID(const ZTSound &receiver);

// Writes one line for each audio device to the log.
void listAudioDevices(const ZTSound &receiver);

// Forgets when a sound was played last, and the silent sound, for a program that has made another
// platform the current one. Thread: main, while no other thread uses these operations.
void platformChanged();

} // namespace SoundExtensions
