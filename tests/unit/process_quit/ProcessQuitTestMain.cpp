// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    // Nothing here is to reach the surrounding desktop.
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArrayLiteral("unix:path=/nonexistent/bus"));
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
