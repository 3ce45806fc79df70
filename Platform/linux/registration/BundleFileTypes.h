#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/ApplicationRecord.h"

#include <QVariantMap>

namespace zt {

// Adds to the record which files and addresses the application opens, by its information
// dictionary: "CFBundleDocumentTypes" (types, or suffixes, or identifiers that the dictionary or
// the system itself declares), "NSTypes" and "CFBundleURLTypes". Suffixes that the desktop does not
// know yet become new types. Needs the record's identifier. Thread: any.
void addFileTypes(ApplicationRecord &record, const QVariantMap &information);

} // namespace zt
