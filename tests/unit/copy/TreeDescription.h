#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Everything that a copy has to keep, put into words, so that two trees can be compared by text.
// Made with paths and plain calls, apart from the code that it judges.

#include <string>
#include <vector>

namespace zt::testing {

// One line for each item below and including the root, sorted by its path: type, mode, owner, time
// of modification, attributes, text of a link, size, data and holes, checksum of the content, and
// which items are one file.
std::vector<std::string> describeTree(const std::string &root);

// The data segments of a file: "0-4096 65536-69632 of 1048576".
std::string dataSegments(const std::string &file);

} // namespace zt::testing
