// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The contract of sound services, kept by that of this system with a server.

#include "Platform/linux/sound/PulseSounds.h"

#include "tests/desktop/sound/SoundServer.h"
#include "tests/unit/sound/SoundFiles.h"
#include "tests/unit/sound/SoundsContract.h"

#include <QTemporaryDir>

namespace {

class ServerCase {
public:
    ServerCase() { EXPECT_TRUE(writeTone(soundFile(), SoundFileForm::Wave, {})); }

    zt::Sounds &sounds() { return m_sounds; }
    QString soundFile() const { return m_folder.filePath(QStringLiteral("tone.wav")); }

private:
    const SoundServer m_server;
    QTemporaryDir m_folder;
    zt::PulseSounds m_sounds{{}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(WithServer, SoundsContractTest, testing::Types<ServerCase>);

} // namespace
