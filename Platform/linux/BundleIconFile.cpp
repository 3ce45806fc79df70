// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BundleIconFile.h"

using namespace Qt::StringLiterals;

namespace zt {

std::optional<QString> iconFileOf(const Bundle &bundle) {
    for (const QString &key : {u"CFBundleIconFile"_s, u"NSIcon"_s}) {
        const auto name = bundle.stringForKey(key);
        if (!name)
            continue;
        for (const QString &type : {u"icns"_s, QString(), u"svg"_s, u"png"_s}) {
            if (auto path = bundle.pathForResource(*name, type))
                return path;
        }
    }
    return std::nullopt;
}

} // namespace zt
