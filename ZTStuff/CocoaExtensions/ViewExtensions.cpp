// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include <QWidget>

namespace ZTViewExtensions {

void useLightAquaAppearance(QWidget &receiver, LightAppearance appearance) {
    if (!ZTUtilities::mojaveOrNewer())
        return;
    receiver.setPalette(appearance == LightAppearance::Forced
                            ? paletteForScheme(zt::Appearance::Scheme::Light)
                            : QPalette());
}

} // namespace ZTViewExtensions
