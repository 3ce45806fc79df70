// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ApplicationMain.h"

#include "Installer/Sources/InstallerWinController.h"
#include "Installer/Sources/LogRedirection.h"
#include "Installer/Sources/RunMode.h"
#include "Installer/Sources/Translations.h"
#include "Installer/Sources/UnattendedMain.h"
#include "Platform/NativePlatform.h"

#include <QApplication>

#include <chrono>
#include <cstdio>

int applicationMain(int argumentCount, char **argumentVector) {
    QStringList arguments;
    for (int i = 0; i < argumentCount; ++i)
        arguments << QString::fromLocal8Bit(argumentVector[i]);
    if (const RunChoice choice = runChoice(arguments); choice.mode != RunMode::Window)
        return runWithoutWindow(choice, arguments);
    if (!zt::canShowWindows()) {
        std::fputs("VelmoraInstaller: there is no screen to show a window on. Start it from a "
                   "desktop session, or set DISPLAY.\n",
                   stderr);
        return 1;
    }
    const std::future<void> preparation = zt::beginPreparingTexts();
    // The keys are the installer's own: the framework must not take "-style" or "-name" for itself.
    int frameworkArgumentCount = 1;
    QApplication application(frameworkArgumentCount, argumentVector);
    QApplication::setApplicationName(QStringLiteral("VelmoraInstaller"));

    const zt::NativePlatform native(arguments);
    const zt::ScopedPlatform current(native.services());
    const Translations translations(native.services());
    // The first text would do all of it once more, which is still sooner where other programs keep
    // the processors busy.
    preparation.wait_for(std::chrono::milliseconds(10));
    InstallerWinController controller({.platform = native.services(),
                                       .argumentVector = arguments,
                                       .redirectStandardStreams = redirectStandardStreams});
    QApplication::setQuitOnLastWindowClosed(
        controller.applicationShouldTerminateAfterLastWindowClosed());
    controller.awakeFromNib();
    return QApplication::exec();
}
