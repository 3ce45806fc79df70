#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An application with sounds of its own, on a system with sounds.

#include "ZTStuff/CocoaExtensions/SoundExtensions.h"
#include "ZTStuff/CocoaExtensions/ZTSound.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class SoundFixture : public testing::Test {
protected:
    SoundFixture() {
        SoundExtensions::platformChanged();
        platform.bundles.setMainBundle(path(QStringLiteral("My.app")));
        platform.sounds.folders = {path(QStringLiteral("System")), path(QStringLiteral("Local")),
                                   path(QStringLiteral("Home"))};
    }
    ~SoundFixture() override {
        platform.sounds.waitForBackgroundTasks();
        SoundExtensions::platformChanged();
    }
    SoundFixture(const SoundFixture &) = delete;
    SoundFixture &operator=(const SoundFixture &) = delete;

    QString path(const QString &relative) const { return m_folder.filePath(relative); }

    // A file in a folder, which is made. Its path.
    QString addFile(const QString &relative) const {
        QDir().mkpath(QFileInfo(path(relative)).path());
        QFile file(path(relative));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path(relative);
    }

    // The same for a file that can be played: so many frames, 1000 in a second.
    QString addSound(const QString &relative, std::size_t frames = 500) {
        platform.sounds.files.insert(path(relative), {1000, 1, std::vector<float>(frames, 0.1F)});
        return addFile(relative);
    }

    QString addApplicationSound(const QString &name) {
        return addSound(QStringLiteral("My.app/Contents/Resources/") + name);
    }

    static zt::SoundDevice output(const char *identifier) {
        return {.identifier = QString::fromLatin1(identifier),
                .name = QStringLiteral("Loudspeaker"),
                .manufacturer = QStringLiteral("Maker"),
                .direction = zt::SoundDevice::Direction::Output};
    }

    FakePlatform platform;

private:
    QTemporaryDir m_folder;
};
