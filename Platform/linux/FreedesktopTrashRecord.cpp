// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/FreedesktopTrashRecord.h"

#include <array>
#include <random>

namespace zt {

namespace {

// Room for ".trashinfo" beside the name in the 255 bytes that a file name may have.
constexpr std::size_t longestName = 255 - 10;

// Counting goes on up to here; after that the names must be many, and a random text finds a free
// one at once.
constexpr unsigned lastNumber = 32;

bool standsForItself(unsigned char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') || byte == '/' || byte == '-' || byte == '.' ||
           byte == '_' || byte == '~';
}

// The first bytes of the text, as many as fit, without a torn character at the end.
std::string_view shortened(std::string_view text, std::size_t limit) {
    if (text.size() <= limit)
        return text;
    std::size_t end = limit;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    // Bytes that are not UTF-8 have no such place; then any cut is as good.
    return text.substr(0, limit - end < 4 ? end : limit);
}

std::string distinction(unsigned attempt) {
    if (attempt <= 1)
        return {};
    if (attempt <= lastNumber)
        return '.' + std::to_string(attempt);
    std::random_device random;
    return '.' + std::to_string(random());
}

} // namespace

std::string percentEncodedPath(std::string_view path) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        if (standsForItself(byte)) {
            encoded += character;
            continue;
        }
        encoded += '%';
        encoded += digits[byte >> 4U];
        encoded += digits[byte & 0xFU];
    }
    return encoded;
}

std::string trashRecord(std::string_view originalPath, std::time_t deleted) {
    std::tm local = {};
    ::localtime_r(&deleted, &local);
    std::array<char, 64> date = {};
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
    return "[Trash Info]\nPath=" + percentEncodedPath(originalPath) +
           "\nDeletionDate=" + date.data() + '\n';
}

std::string nameInTrash(std::string_view name, unsigned attempt) {
    const std::string suffix = distinction(attempt);
    std::size_t dot = name.rfind('.');
    // A leading dot hides the item, it does not begin an extension; nor does a very long one.
    if (dot == std::string_view::npos || dot == 0 || name.size() - dot > 32)
        dot = name.size();
    const std::string_view extension = name.substr(dot);
    const std::size_t room = longestName - suffix.size() - extension.size();
    return std::string(shortened(name.substr(0, dot), room)) + suffix + std::string(extension);
}

} // namespace zt
