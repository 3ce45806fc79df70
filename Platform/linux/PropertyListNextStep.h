#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The character encoding of the old text form's octal escapes.

#include <QChar>

namespace zt {

// The character that the byte stands for in the NextStep encoding; U+FFFD for the two bytes that
// stand for none. Thread: any.
QChar nextStepCharacter(unsigned char byte);

} // namespace zt
