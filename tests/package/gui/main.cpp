// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <Platform/NativePlatform.h>
#include <ZTStuff/CocoaExtensions/DynamicColorPalette.h>
#include <ZTStuff/CocoaExtensions/ViewExtensions.h>
#include <ZTStuff/ZTClasses/ZTUtilities.h>

#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    const zt::NativePlatform native(QApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    QLabel label(ZTUtilities::systemVersionString());
    ZTViewExtensions::useLightAquaAppearance(label, ZTViewExtensions::LightAppearance::Forced);
    followDynamicColor(label, QPalette::WindowText, ZTDynamicColor::redWarningTextColor());
    return label.text().isEmpty() ? 1 : 0;
}
