// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    // The sound server of the person who runs the tests is left alone.
    qputenv("PULSE_SERVER", "unix:/nonexistent/sound-server");
    qunsetenv("DISPLAY");
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
