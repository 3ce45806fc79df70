// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ZTLogTest, aLineGoesToTheCurrentPlatformsLog) {
    FakePlatform platform;
    ZTLog("quit delay: %1.1f", 2.5F);
    ZTLog("caf\u00e9 %@", std::optional<QString>());
    EXPECT_EQ(platform.log.lines(), (QStringList{u"quit delay: 2.5"_s, u"caf\u00e9 (null)"_s}));
}

TEST(ZTLogDeathTest, theProgramEndsWhenThereIsNoPlatform) {
    EXPECT_DEATH(ZTLog("x"), "before a platform was installed");
}
