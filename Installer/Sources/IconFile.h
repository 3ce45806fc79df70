#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Icons from image files.

#include <QIcon>
#include <QString>

#include <optional>

// The icon in an image file: ICNS with its several sizes, SVG at any size, PNG and whatever else
// the framework reads. No value when the file is missing or holds no readable image.
std::optional<QIcon> loadIcon(const QString &path);
