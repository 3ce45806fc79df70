#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The encoding that is noted beside a text file.

#include "ZTStuff/ZTClasses/ZTCompatibility/StringEncoding.h"

#include <QString>

#include <optional>

// What the file's extended attributes say: that of the reference platform
// ("user.com.apple.TextEncoding", as in "utf-8;134217984") or, where it says nothing, the common
// "user.charset". No value when neither names an encoding. Thread: any.
std::optional<StringEncoding> declaredEncodingOfFile(const QString &path);
