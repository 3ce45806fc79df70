#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The record that the Trash keeps of each item: where it came from, and when it was deleted.

#include <ctime>
#include <string>
#include <string_view>

namespace zt {

// The path with every byte but letters, digits, "/" and "-._~" as %XX. Thread: any.
std::string percentEncodedPath(std::string_view path);

// The text of a ".trashinfo" file. `originalPath` is absolute in the home Trash, relative to the
// volume's top folder in a Trash on a volume. The date is written as local time. Thread: any.
std::string trashRecord(std::string_view originalPath, std::time_t deleted);

// The name that the item takes in the Trash at the given attempt, counted from 1. The first is the
// item's own name, the others get a number, or later a random text, before the extension. Names are
// shortened, at the start of a character, so that the record's name fits too. Thread: any.
std::string nameInTrash(std::string_view name, unsigned attempt);

} // namespace zt
