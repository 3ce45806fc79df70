#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/ApplicationRecord.h"

#include <QString>

#include <vector>

namespace zt {

// The picture in the usual sizes of icons, up to its own; a drawing also as it is. Empty when it
// cannot be read. Thread: any.
std::vector<ApplicationRecord::Icon> iconsOfPicture(const QString &path);

} // namespace zt
