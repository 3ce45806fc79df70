// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/LocalizedString.h"

#include <QCoreApplication>

QString localizedString(const char *key) {
    return QCoreApplication::translate("InstallerWindow", key);
}

QString localizationKey(const char *key) {
    return QString::fromUtf8(key);
}
