// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/privileged/train/PrivateWorld.h"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    // Where it cannot be had, each test is skipped and tells why.
    if (!GTEST_FLAG_GET(list_tests))
        static_cast<void>(zt::testing::makePrivateWorld(TRAIN));
    return RUN_ALL_TESTS();
}
