// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where this application was started from, and what aliases lead to.

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Bundles.h"
#include "Platform/Platform.h"
#include "Platform/Workspace.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

bool ZTUtilities::runningFromDistributionDisk() {
    const zt::Platform &platform = zt::currentPlatform();
    const auto volume = platform.workspace.volumeOf(platform.bundles.mainBundle().path());
    return volume && (QFileInfo::exists(*volume + u"/.launchlock"_s) ||
                      QFileInfo::exists(*volume + u"/launchlock"_s));
}

bool ZTUtilities::installationMode() {
    if (runningFromDistributionDisk())
        return true;
    const QString &path = zt::currentPlatform().bundles.mainBundle().path();
    return path.contains(u"/AppTranslocation/") || path.contains(u"/var/tmp/");
}

QString ZTUtilities::resolvedAlias(const QString &path) {
    return zt::currentPlatform().workspace.targetOfAlias(path).value_or(path);
}
