// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ApplicationMain.h"

int main(int argc, char **argv) {
    return applicationMain(argc, argv);
}
