#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Parts of a window of this program that let what is behind it show through blurred.

#include <QList>
#include <QRect>

#include <cstdint>

namespace zt {

// As WindowSystem::blurBehind() says. Here the number of a window is that of its content view.
// Thread: main.
bool blurPartsOfWindow(std::uint64_t window, const QList<QRect> &parts);

} // namespace zt
