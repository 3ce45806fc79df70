#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The result of comparing two values.

enum class Ordering : int { Ascending = -1, Same = 0, Descending = 1 };
