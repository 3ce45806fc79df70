#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// User-visible texts in the user's language.

#include <QString>

// The text in the user's language; the English text is the key, and the answer where there is no
// translation. Thread: any.
QString localizedString(const char *key);

// The key as it is, for localizedString() to be asked for it later.
QString localizationKey(const char *key);
