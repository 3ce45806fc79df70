// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/MediaVolume.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// How many components behind the folder lead to a volume.
struct MediaFolder {
    QString folder;
    int components;
};

} // namespace

std::optional<QString> mediaVolumeOf(const QString &path) {
    static const MediaFolder folders[] = {
        {u"/Volumes/"_s, 1}, {u"/media/"_s, 2}, {u"/run/media/"_s, 2}, {u"/mnt/"_s, 1}};
    for (const MediaFolder &media : folders) {
        if (!path.startsWith(media.folder))
            continue;
        const QStringList names = path.mid(media.folder.size()).split(u'/', Qt::SkipEmptyParts);
        if (names.size() < media.components)
            return std::nullopt;
        return media.folder + names.first(media.components).join(u'/');
    }
    return std::nullopt;
}

} // namespace zt
