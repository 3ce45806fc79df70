// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/MountInfoText.h"

#include <gtest/gtest.h>

namespace {

// As a kernel wrote them; the second mount has no optional field, the last two have several.
const std::string mounts =
    "21 26 0:20 / /proc rw,nosuid,nodev,noexec,relatime shared:13 - proc proc rw\n"
    "26 1 8:1 / / rw,relatime - ext4 /dev/sda1 rw,errors=remount-ro\n"
    "126 26 0:45 / /media/a\\040-\\040b rw shared:1 master:2 - fuse.sshfs host:/x rw\n"
    "127 26 0:46 / /media/c rw master:2 propagate_from:1 - btrfs /dev/sdb - rw\n";

} // namespace

TEST(MountInfoTextTest, theMountOfADescriptorIsNumbered) {
    EXPECT_EQ(zt::parseMountNumber("pos:\t0\nflags:\t012100000\nmnt_id:\t126\nino:\t2\n"), 126);
    EXPECT_EQ(zt::parseMountNumber("mnt_id:\t9"), 9);
    for (const char *text : {"", "pos:\t0\n", "mnt_id:\t\n", "mnt_id:\tx\n", "xmnt_id:\t1\n"})
        EXPECT_FALSE(zt::parseMountNumber(text)) << text;
}

TEST(MountInfoTextTest, theTypeStandsBehindTheHyphen) {
    EXPECT_EQ(zt::parseMountType(mounts, 21), "proc");
    EXPECT_EQ(zt::parseMountType(mounts, 26), "ext4");
    EXPECT_EQ(zt::parseMountType(mounts, 126), "fuse.sshfs");
    EXPECT_EQ(zt::parseMountType(mounts, 127), "btrfs");
}

TEST(MountInfoTextTest, aMountThatIsNotListedHasNoType) {
    EXPECT_FALSE(zt::parseMountType(mounts, 2));
    EXPECT_FALSE(zt::parseMountType(mounts, 12));
    EXPECT_FALSE(zt::parseMountType("", 1));
    EXPECT_FALSE(zt::parseMountType("5 1 0:1 / / rw", 5)) << "no hyphen";
    EXPECT_FALSE(zt::parseMountType("5 1 0:1 / / rw -", 5)) << "nothing behind it";
    EXPECT_FALSE(zt::parseMountType("5 1 0:1 / / rw - \n", 5)) << "nothing but a blank";
}
