// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include "Platform/Log.h"
#include "Platform/Platform.h"

#include <QByteArray>

void ZTLogText(const QString &message) {
    const QByteArray utf8 = message.toUtf8();
    zt::currentPlatform().log.writeLine({utf8.constData(), static_cast<size_t>(utf8.size())});
}
