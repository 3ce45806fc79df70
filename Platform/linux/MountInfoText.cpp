// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/MountInfoText.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace zt {

namespace {

std::string_view takeUpTo(char separator, std::string_view &text) {
    const std::size_t length = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

std::optional<std::int64_t> parseNumber(std::string_view text) {
    std::int64_t value = 0;
    const char *const end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, value);
    return failure == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<std::int64_t> parseMountNumber(std::string_view descriptorInformation) {
    constexpr std::string_view key = "mnt_id:\t";
    while (!descriptorInformation.empty()) {
        const std::string_view line = takeUpTo('\n', descriptorInformation);
        if (line.starts_with(key))
            return parseNumber(line.substr(key.size()));
    }
    return std::nullopt;
}

std::optional<std::string> parseMountType(std::string_view mountInformation, std::int64_t number) {
    while (!mountInformation.empty()) {
        std::string_view line = takeUpTo('\n', mountInformation);
        if (parseNumber(takeUpTo(' ', line)) != number)
            continue;
        // A hyphen ends the fields of which there may be any number. No other field is a hyphen
        // alone: paths are absolute there, and blanks in them are written in another way.
        while (!line.empty() && takeUpTo(' ', line) != "-") {
        }
        const std::string_view type = takeUpTo(' ', line);
        return type.empty() ? std::nullopt : std::optional(std::string(type));
    }
    return std::nullopt;
}

} // namespace zt
