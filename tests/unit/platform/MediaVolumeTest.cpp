// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/MediaVolume.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

struct VolumeRow {
    const char *reason;
    QString path;
    std::optional<QString> volume;
};

TEST(MediaVolumeTest, theTopOfAVolumeIsToldByItsPlace) {
    const VolumeRow rows[] = {
        {"a bundle on a disk", u"/Volumes/Disk/Product.app"_s, u"/Volumes/Disk"_s},
        {"deeper", u"/Volumes/Disk/a/b/Product.app"_s, u"/Volumes/Disk"_s},
        {"the disk itself", u"/Volumes/Disk"_s, u"/Volumes/Disk"_s},
        {"a blank in the name", u"/Volumes/My Disk/P.app"_s, u"/Volumes/My Disk"_s},
        {"the folder of disks", u"/Volumes"_s, {}},
        {"the same with a slash", u"/Volumes/"_s, {}},
        {"a folder that only begins so", u"/VolumesX/Disk/P.app"_s, {}},
        {"not at the start", u"/x/Volumes/Disk/P.app"_s, {}},
        {"a user's medium", u"/media/ann/Disk/P.app"_s, u"/media/ann/Disk"_s},
        {"a user's media", u"/media/ann"_s, {}},
        {"a user's medium elsewhere", u"/run/media/ann/Disk/P.app"_s, u"/run/media/ann/Disk"_s},
        {"a user's media elsewhere", u"/run/media/ann"_s, {}},
        {"an administrator's mount", u"/mnt/Disk/P.app"_s, u"/mnt/Disk"_s},
        {"the folder of mounts", u"/mnt"_s, {}},
        {"applications", u"/Applications/P.app"_s, {}},
        {"empty", u""_s, {}},
    };
    for (const VolumeRow &row : rows)
        EXPECT_EQ(zt::mediaVolumeOf(row.path), row.volume) << row.reason;
}
