#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The object table of a binary property list, looked at before the list is unfolded.

#include "Platform/Result.h"

#include <QByteArrayView>

namespace zt {

// Succeeds when the binary property list can be unfolded by recursion without danger: every object
// lies inside the content, none contains itself, and depth and number of the unfolded values stay
// within the limits. The content must outlive the call only. Thread: any.
Result<void> checkBinaryPropertyList(QByteArrayView content);

} // namespace zt
