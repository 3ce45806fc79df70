#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user defaults of Foundation.

#include "Platform/UserDefaults.h"

namespace zt {

class FoundationUserDefaults final : public UserDefaults {
public:
    std::optional<QVariant> objectForKey(const QString &key) const override;
    std::optional<QVariant> objectForKey(const QString &key,
                                         const QString &suiteName) const override;
};

} // namespace zt
