// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/BundleFolder.h"

#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace zt {

std::optional<QString> informationFileOf(const QString &bundlePath) {
    static const std::array places = {u"/Contents/Info.plist"_s, u"/Info.plist"_s,
                                      u"/Resources/Info.plist"_s};
    for (const QString &place : places) {
        if (QFileInfo(bundlePath + place).isFile())
            return bundlePath + place;
    }
    return std::nullopt;
}

} // namespace zt
