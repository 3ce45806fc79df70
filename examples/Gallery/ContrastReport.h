#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The contrast of all texts.

namespace gallery {

// Prints a line for each pair of text and background, and which of them are hard to read. Answers
// how many are although their colours could be chosen; white on the menus' colours, which are
// given, is printed only.
int printContrastReport();

} // namespace gallery
