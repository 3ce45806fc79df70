// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppKitSounds.h"

#include "Platform/macos/AudioFileReader.h"
#include "Platform/macos/CoreAudioDevices.h"
#include "Platform/macos/FoundationText.h"
#include "Platform/macos/PlayedOnce.h"
#include "Platform/macos/WaveData.h"

#import <AppKit/AppKit.h>

#include <QDir>

#include <unistd.h> // getuid

#include <utility>

using namespace Qt::StringLiterals;

// Tells the sound's end to a function.
@interface VelmoraSoundDelegate : NSObject <NSSoundDelegate> {
    std::function<void(bool)> _finished;
}
- (instancetype)initWithFunction:(std::function<void(bool)>)finished;
@end

@implementation VelmoraSoundDelegate

- (instancetype)initWithFunction:(std::function<void(bool)>)finished {
    self = [super init];
    if (self)
        _finished = std::move(finished);
    return self;
}

- (void)sound:(NSSound *)sound didFinishPlaying:(BOOL)completely {
    _finished(completely != NO);
}

@end

namespace zt {

namespace {

// A device that has been unplugged since is refused with an exception. Then it is the default one.
void setDevice(NSSound *sound, const std::optional<QString> &device) {
    @try {
        sound.playbackDeviceIdentifier = device ? nativeTextOf(*device) : nil;
    } @catch (NSException *) {
        sound.playbackDeviceIdentifier = nil;
    }
}

// What is native of it is touched on the main thread alone.
class AppKitPlayedSound final : public PlayedSound,
                                public std::enable_shared_from_this<AppKitPlayedSound> {
public:
    explicit AppKitPlayedSound(SoundToPlay sound)
        : m_end(std::move(sound.ended))
        , m_sound(std::move(sound)) {}

    bool isOver() const override { return m_end.isOver(); }

    void stop() override {
        m_stop.request_stop();
        if (!m_end.end(false))
            return;
        const auto self = shared_from_this();
        dispatch_async(dispatch_get_main_queue(), ^{
          [self->m_native stop];
          self->letGo();
        });
    }

    // In the background.
    void load() {
        const std::shared_ptr<const SoundSamples> samples =
            m_end.isOver() ? nullptr : m_sound.load(m_stop.get_token());
        QByteArray bytes = samples ? waveDataOf(*samples) : QByteArray();
        if (bytes.isEmpty()) {
            m_end.end(false);
            return;
        }
        const auto self = shared_from_this();
        dispatch_async(dispatch_get_main_queue(), ^{
          self->begin(bytes);
        });
    }

private:
    void begin(const QByteArray &bytes) {
        if (m_end.isOver())
            return;
        NSData *const data = [NSData dataWithBytes:bytes.constData()
                                            length:NSUInteger(bytes.size())];
        m_native = [[NSSound alloc] initWithData:data];
        // Native sounds do not keep themselves, nor their delegates; this does until the end.
        m_delegate = [[VelmoraSoundDelegate alloc]
            initWithFunction:[self = shared_from_this()](bool completely) {
                self->m_end.end(completely);
                self->letGo();
            }];
        m_native.delegate = m_delegate;
        m_native.volume = m_sound.volume;
        setDevice(m_native, m_sound.device);
        // Asking for the duration has it load its data before it is heard.
        if (!m_native || m_native.duration <= 0 || ![m_native play]) {
            m_end.end(false);
            letGo();
        }
    }

    // A turn of the main loop later: the delegate may be at work.
    void letGo() {
        const auto self = shared_from_this();
        dispatch_async(dispatch_get_main_queue(), ^{
          self->m_native = nil;
          self->m_delegate = nil;
        });
    }

    PlayedOnce m_end;
    SoundToPlay m_sound;
    std::stop_source m_stop;
    NSSound *m_native = nil;
    VelmoraSoundDelegate *m_delegate = nil;
};

} // namespace

struct AppKitSounds::Tasks {
    void run(std::function<void()> task) const {
        dispatch_group_async(group, dispatch_get_global_queue(QOS_CLASS_UTILITY, 0), ^{
          @autoreleasepool {
              task();
          }
        });
    }

    // Remembers what has not ended yet.
    void add(const std::shared_ptr<AppKitPlayedSound> &sound) {
        const std::scoped_lock lock(mutex);
        std::erase_if(played, [](const auto &one) { return !one.lock() || one.lock()->isOver(); });
        played.push_back(sound);
    }

    std::vector<std::weak_ptr<AppKitPlayedSound>> takePlayed() {
        const std::scoped_lock lock(mutex);
        return std::exchange(played, {});
    }

    dispatch_group_t group = dispatch_group_create();
    std::mutex mutex;
    std::vector<std::weak_ptr<AppKitPlayedSound>> played;
};

AppKitSounds::AppKitSounds() : m_tasks(std::make_unique<Tasks>()) {}

AppKitSounds::~AppKitSounds() {
    for (const auto &one : m_tasks->takePlayed()) {
        if (const auto sound = one.lock())
            sound->stop();
    }
    dispatch_group_wait(m_tasks->group, DISPATCH_TIME_FOREVER);
}

QStringList AppKitSounds::soundFolders() const {
    return {u"/System/Library/Sounds"_s, u"/Library/Sounds"_s,
            QDir::homePath() + u"/Library/Sounds"_s};
}

SoundSettingsPlace AppKitSounds::settingsPlace() const {
    return {u"/Library/Preferences/Audio/com.apple.audio.SystemSettings.plist"_s,
            QString::number(getuid())};
}

Result<SoundSamples> AppKitSounds::load(const QString &path, const std::stop_token &stop) const {
    return readAudioFile(path, stop);
}

std::optional<std::vector<SoundDevice>> AppKitSounds::devices() {
    return audioDevices();
}

std::optional<QString> AppKitSounds::effectDevice() {
    return systemOutputDevice();
}

std::optional<float> AppKitSounds::alertVolume() {
    return std::nullopt;
}

// The audio server answers at once from the first question on.
void AppKitSounds::getReady() {}

std::shared_ptr<PlayedSound> AppKitSounds::play(SoundToPlay sound) {
    const auto played = std::make_shared<AppKitPlayedSound>(std::move(sound));
    m_tasks->add(played);
    m_tasks->run([played] { played->load(); });
    return played;
}

void AppKitSounds::runInBackground(std::function<void()> task) {
    m_tasks->run(std::move(task));
}

} // namespace zt
