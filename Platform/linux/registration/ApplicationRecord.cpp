// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/ApplicationRecord.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace zt {

namespace {

constexpr std::string_view header = "velmora-application 1\n";

Error malformed(const char *cause) {
    return {"read", "application record", cause};
}

bool isAsciiAlphanumeric(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool consistsOf(std::string_view text, std::string_view alsoAllowed) {
    return std::all_of(text.begin(), text.end(), [&](char c) {
        return isAsciiAlphanumeric(c) || alsoAllowed.find(c) != std::string_view::npos;
    });
}

bool isIdentifier(std::string_view text) {
    constexpr std::size_t longest = 200;
    return !text.empty() && text.size() <= longest && isAsciiAlphanumeric(text.front()) &&
           consistsOf(text, ".-_");
}

// A type as in "application/x-note".
bool isMimeType(std::string_view text) {
    const std::size_t slash = text.find('/');
    constexpr std::size_t longest = 255;
    return text.size() <= longest && slash != std::string_view::npos && slash > 0 &&
           slash + 1 < text.size() && text.find('/', slash + 1) == std::string_view::npos &&
           consistsOf(text, "/.-_+");
}

bool isLine(std::string_view text) {
    constexpr std::size_t longest = 1000;
    return text.size() <= longest && std::none_of(text.begin(), text.end(), [](char c) {
               return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
           });
}

bool isPathWithoutDetours(std::string_view path) {
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view component = path.substr(begin, end - begin);
        if (component.empty() || component == "." || component == "..")
            return false;
        begin = end + 1;
    }
    return path.find('\0') == std::string_view::npos;
}

bool isIcon(const ApplicationRecord::Icon &icon) {
    if (icon.size == ApplicationRecord::Icon::scalable)
        return !icon.content.empty();
    return std::find(std::begin(iconSizes), std::end(iconSizes), icon.size) !=
               std::end(iconSizes) &&
           icon.content.starts_with("\x89PNG");
}

bool isFileType(const ApplicationRecord::FileType &type) {
    return isMimeType(type.mimeType) && isLine(type.description) &&
           std::all_of(type.suffixes.begin(), type.suffixes.end(), [](const std::string &suffix) {
               return !suffix.empty() && consistsOf(suffix, ".-_+");
           });
}

// A field: what it is, its length, and its bytes.
void append(std::string &bytes, char kind, std::string_view content) {
    bytes += kind;
    bytes += std::to_string(content.size());
    bytes += ':';
    bytes += content;
}

struct Field {
    char kind = 0;
    std::string_view content;
};

// Takes a field from the front of the bytes.
std::optional<Field> takeField(std::string_view &bytes) {
    Field field;
    field.kind = bytes.front();
    std::size_t length = 0;
    const char *const end = bytes.data() + bytes.size();
    const auto [rest, error] = std::from_chars(bytes.data() + 1, end, length);
    if (error != std::errc() || rest == end || *rest != ':')
        return std::nullopt;
    bytes.remove_prefix(std::size_t(rest - bytes.data()) + 1);
    if (length > bytes.size())
        return std::nullopt;
    field.content = bytes.substr(0, length);
    bytes.remove_prefix(length);
    return field;
}

// Adds what the field says. Details follow what they belong to.
bool addField(ApplicationRecord &record, const Field &field) {
    std::string content(field.content);
    switch (field.kind) {
    case 'i':
        record.identifier = std::move(content);
        return true;
    case 'b':
        record.bundlePath = std::move(content);
        return true;
    case 'e':
        record.executable = std::move(content);
        return true;
    case 'l':
        record.names.push_back({std::move(content), {}});
        return true;
    case 'n':
        if (record.names.empty())
            return false;
        record.names.back().text = std::move(content);
        return true;
    case 'c':
        record.categories.push_back(std::move(content));
        return true;
    case 'm':
        record.mimeTypes.push_back(std::move(content));
        return true;
    case 't':
        record.newFileTypes.push_back({std::move(content), {}, {}});
        return true;
    case 'd':
        if (record.newFileTypes.empty())
            return false;
        record.newFileTypes.back().description = std::move(content);
        return true;
    case 's':
        if (record.newFileTypes.empty())
            return false;
        record.newFileTypes.back().suffixes.push_back(std::move(content));
        return true;
    case 'p': {
        unsigned size = 0;
        const char *const end = content.data() + content.size();
        const auto [rest, error] = std::from_chars(content.data(), end, size);
        record.icons.push_back({size, {}});
        return error == std::errc() && rest == end;
    }
    case 'x':
        if (record.icons.empty())
            return false;
        record.icons.back().content = std::move(content);
        return true;
    case 'h':
        record.isBackgroundOnly = true;
        return true;
    default:
        return false;
    }
}

} // namespace

Result<void> checkRecord(const ApplicationRecord &record) {
    if (!isIdentifier(record.identifier))
        return malformed("the identifier has unusual characters");
    if (!record.bundlePath.starts_with('/') ||
        !isPathWithoutDetours(std::string_view(record.bundlePath).substr(1)))
        return malformed("the bundle's path is not absolute");
    if (!isPathWithoutDetours(record.executable))
        return malformed("the program is not in the bundle");
    const auto &names = record.names;
    if (std::none_of(names.begin(), names.end(),
                     [](const auto &name) { return name.locale.empty(); }))
        return malformed("there is no name");
    if (!std::all_of(names.begin(), names.end(), [](const auto &name) {
            return consistsOf(name.locale, "_@-") && !name.text.empty() && isLine(name.text);
        }))
        return malformed("a name is not a line of text");
    const auto &categories = record.categories;
    if (!std::all_of(categories.begin(), categories.end(), [](const std::string &category) {
            return !category.empty() && consistsOf(category, "-");
        }))
        return malformed("a category has unusual characters");
    const auto &types = record.mimeTypes;
    if (!std::all_of(types.begin(), types.end(),
                     [](const std::string &type) { return isMimeType(type); }))
        return malformed("a type of files has unusual characters");
    if (!std::all_of(record.newFileTypes.begin(), record.newFileTypes.end(), isFileType))
        return malformed("a new type of files is badly described");
    if (!std::all_of(record.icons.begin(), record.icons.end(), isIcon))
        return malformed("an icon has an unusual size or is no picture");
    return {};
}

std::string packedRecord(const ApplicationRecord &record) {
    std::string bytes(header);
    append(bytes, 'i', record.identifier);
    append(bytes, 'b', record.bundlePath);
    append(bytes, 'e', record.executable);
    for (const auto &name : record.names) {
        append(bytes, 'l', name.locale);
        append(bytes, 'n', name.text);
    }
    for (const std::string &category : record.categories)
        append(bytes, 'c', category);
    for (const std::string &type : record.mimeTypes)
        append(bytes, 'm', type);
    for (const auto &type : record.newFileTypes) {
        append(bytes, 't', type.mimeType);
        append(bytes, 'd', type.description);
        for (const std::string &suffix : type.suffixes)
            append(bytes, 's', suffix);
    }
    for (const auto &icon : record.icons) {
        append(bytes, 'p', std::to_string(icon.size));
        append(bytes, 'x', icon.content);
    }
    if (record.isBackgroundOnly)
        append(bytes, 'h', {});
    return bytes;
}

Result<ApplicationRecord> parseRecord(std::string_view bytes) {
    if (bytes.size() > maximumRecordSize)
        return malformed("it is too large");
    if (!bytes.starts_with(header))
        return malformed("it does not begin like one");
    bytes.remove_prefix(header.size());
    ApplicationRecord record;
    while (!bytes.empty()) {
        const auto field = takeField(bytes);
        if (!field || !addField(record, *field))
            return malformed("a field is malformed");
    }
    if (Result<void> acceptable = checkRecord(record); !acceptable)
        return acceptable.error();
    return record;
}

} // namespace zt
