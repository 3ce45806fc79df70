#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Stand-ins for references of the File Manager: each holds the number of a path.

#include <CoreServices/CoreServices.h>

#include <QString>

#include <optional>

namespace standin {

FSRef referenceToFile(const QString &path);
std::optional<QString> pathOf(const FSRef &item);

} // namespace standin
