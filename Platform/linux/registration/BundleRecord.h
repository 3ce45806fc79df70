#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Bundles.h"
#include "Platform/linux/registration/ApplicationRecord.h"

#include <QString>

namespace zt {

// What the desktop is to be told of the bundle, as its information dictionary, its localized names
// and its icon have it, once it is at `installedPath`. Fails when the bundle has no program. Icons
// that cannot be read are left out. Thread: any.
Result<ApplicationRecord> recordOfBundle(const Bundle &bundle, const QString &installedPath);

} // namespace zt
