// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The contract of sound services, kept by the fake and by that of this system without a server.

#include "tests/unit/sound/SoundsContract.h"

#include "Platform/linux/sound/PulseSounds.h"

#include "tests/fakes/FakeSounds.h"
#include "tests/unit/sound/SoundFiles.h"

#include <QTemporaryDir>

namespace {

class FakeCase {
public:
    FakeCase() { m_sounds.files.insert(soundFile(), {48'000, 1, {0.0F, 0.5F, 0.0F}}); }

    zt::Sounds &sounds() { return m_sounds; }
    static QString soundFile() { return QStringLiteral("/sounds/tone.wav"); }

private:
    FakeSounds m_sounds;
};

class ServerlessCase {
public:
    ServerlessCase() { EXPECT_TRUE(writeTone(soundFile(), SoundFileForm::Wave, {})); }

    zt::Sounds &sounds() { return m_sounds; }
    QString soundFile() const { return m_folder.filePath(QStringLiteral("tone.wav")); }

private:
    QTemporaryDir m_folder;
    zt::PulseSounds m_sounds{{}};
};

using Cases = testing::Types<FakeCase, ServerlessCase>;
INSTANTIATE_TYPED_TEST_SUITE_P(Services, SoundsContractTest, Cases);

} // namespace
