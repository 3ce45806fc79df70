// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/FileSystems.h"
#include "Platform/Platform.h"
#include "Platform/ProcessManager.h"
#include "Platform/UserDefaults.h"
#include "Platform/UserInput.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTUtilitiesState.h"

using namespace Qt::StringLiterals;

namespace {

// System versions as decimal numbers.
constexpr int firstSystemWithSafeConnections = 101300;
constexpr int leastSystemInSettings = 100000;
constexpr int greatestSystemInSettings = 109999;

int firstSystemForHttps() {
    const zt::UserDefaults &defaults = zt::currentPlatform().userDefaults;
    const int wanted = integerValue(defaults.stringForKey(u"httpsMinSys"_s).value_or(QString()));
    return wanted >= leastSystemInSettings && wanted <= greatestSystemInSettings
               ? wanted
               : firstSystemWithSafeConnections;
}

} // namespace

QString ZTUtilities::safeHTTPS(const QString &url) {
    if (decimalSystemVersion() >= firstSystemForHttps() || !url.startsWith(u"https:"))
        return url;
    return u"http"_s + url.mid(5);
}

float ZTUtilities::idleTime() {
    const auto idle = zt::currentPlatform().userInput.idleTime();
    if (!idle) {
        ZTUtilitiesState::shared().noteUnknown(
            ZTUtilitiesState::IdleTime,
            "The desktop does not tell how long its user has been idle.");
        return -1.0F;
    }
    return std::chrono::duration<float>(*idle).count();
}

QString ZTUtilities::fileSystemTypeFor(const QString &path) {
    ZTLog("FS Info %@", path);
    const zt::Result<QString> type = zt::currentPlatform().fileSystems.typeNameFor(path);
    ZTLog("statfs err = %d", type ? 0 : -1);
    return type ? *type : QString();
}

bool ZTUtilities::wasLaunchedByProcess(const QString &creatorCode) {
    const zt::ProcessManager &manager = zt::currentPlatform().processManager;
    const std::optional<zt::ProcessSerialNumber> self = manager.currentProcess();
    if (!self)
        return false;
    const QVariant creator = manager.launcherInformation(*self).value(u"FileCreator"_s);
    return creator.isValid() && creator.toString() == creatorCode;
}

bool ZTUtilities::wasLaunchedAsLoginItem() {
    return wasLaunchedByProcess(u"lgnw"_s);
}

bool ZTUtilities::displayIsZoomed() {
    return false;
}

bool ZTUtilities::debugging() {
    const zt::ProcessManager &manager = zt::currentPlatform().processManager;
    const std::optional<zt::ProcessSerialNumber> self = manager.currentProcess();
    return self && manager.isBeingDebugged(*self);
}
