// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/VolumePath.h"

using namespace Qt::StringLiterals;

namespace zt {

std::optional<QString> volumeOfPath(const QString &path) {
    const QString volumes = u"/Volumes/"_s;
    if (!path.startsWith(volumes))
        return std::nullopt;
    const QString name = path.mid(volumes.size()).section(u'/', 0, 0, QString::SectionSkipEmpty);
    return name.isEmpty() ? std::nullopt : std::optional(volumes + name);
}

} // namespace zt
