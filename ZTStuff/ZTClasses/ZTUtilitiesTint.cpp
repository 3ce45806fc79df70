// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Appearance.h"
#include "Platform/Platform.h"

#include <QIcon>

using namespace Qt::StringLiterals;

// Outside of any namespace, as the framework wants it. Nothing else would bring the pictures out of
// a static library.
static void useTintImages() {
    Q_INIT_RESOURCE(TintImages);
}

QIcon ZTUtilities::systemTintImage() {
    useTintImages();
    const bool isBlue =
        zt::currentPlatform().appearance.controlTint() == zt::Appearance::ControlTint::Blue;
    QString prefix = u"tintMav"_s;
    if (yosemiteOrNewer())
        prefix = darkMenuTheme() ? u"tintYosDark"_s : u"tintYos"_s;
    return QIcon(u":/ztstuff/tint/"_s + prefix + (isBlue ? u"Blue.svg"_s : u"Graphite.svg"_s));
}
