// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/SoundDecoding.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void check(const zt::Result<zt::SoundSamples> &sound) {
    if (!sound) {
        if (sound.error().cause.empty())
            std::abort();
        return;
    }
    const bool isWhole = sound->frames() > 0 && sound->channels > 0 && sound->frameRate > 0 &&
                         sound->frames() * std::size_t(sound->channels) == sound->values.size() &&
                         std::isfinite(sound->duration().count());
    if (!isWhole)
        std::abort();
    for (const float value : sound->values) {
        if (!(std::abs(value) <= 1.0F))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString name = QStringLiteral("input");
    check(zt::decodeSound(content, zt::SoundForm::SelfDescribing, name));
    check(zt::decodeSound(content, zt::SoundForm::RawMuLaw, name));
    return 0;
}
