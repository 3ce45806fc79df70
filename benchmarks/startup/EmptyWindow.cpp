// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The least that a program with a window does, as the measure for another one's start.

#include <QApplication>
#include <QWidget>

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(580, 440);
    window.show();
    return QApplication::exec();
}
