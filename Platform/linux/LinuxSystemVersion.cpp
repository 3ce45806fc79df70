// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LinuxSystemVersion.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>

namespace zt {

namespace {

// Light and dark appearances of single widgets and of the whole application, as the release of the
// reference platform has them that first had them.
constexpr double frameworkWithAppearances = 1671.0;

std::string readTextFile(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// The value of a NAME=value line, without the quotes that the format allows around it.
std::string_view field(std::string_view text, std::string_view name) {
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!line.starts_with(name) || line.substr(name.size(), 1) != "=")
            continue;
        line.remove_prefix(name.size() + 1);
        if (line.size() >= 2 && (line.front() == '"' || line.front() == '\'') &&
            line.back() == line.front())
            line = line.substr(1, line.size() - 2);
        return line;
    }
    return {};
}

std::optional<VersionNumbers> numbersOf(std::string_view version) {
    VersionNumbers numbers{};
    for (std::size_t part = 0; part < numbers.size(); ++part) {
        const auto [end, failure] =
            std::from_chars(version.data(), version.data() + version.size(), numbers[part]);
        if (failure != std::errc() || numbers[part] < 0) {
            if (part == 0)
                return std::nullopt;
            numbers[part] = 0;
            break;
        }
        version.remove_prefix(static_cast<std::size_t>(end - version.data()));
        if (!version.starts_with('.'))
            break;
        version.remove_prefix(1);
    }
    return numbers;
}

} // namespace

std::optional<VersionNumbers> parseSystemVersion(std::string_view osRelease,
                                                 std::string_view debianVersion) {
    const std::string_view version = field(osRelease, "VERSION_ID");
    const std::string_view pointRelease = trimmed(debianVersion);
    const bool refines = !version.empty() && version.find('.') == std::string_view::npos &&
                         pointRelease.starts_with(std::string(version) + '.');
    return numbersOf(refines ? pointRelease : version);
}

LinuxSystemVersion::LinuxSystemVersion(const std::string &root) {
    std::string osRelease = readTextFile(root + "/etc/os-release");
    if (osRelease.empty())
        osRelease = readTextFile(root + "/usr/lib/os-release");
    const bool debian = field(osRelease, "ID") == "debian";
    m_numbers = parseSystemVersion(osRelease, debian ? readTextFile(root + "/etc/debian_version")
                                                     : std::string());
}

std::optional<std::int32_t> LinuxSystemVersion::majorVersion() const {
    return m_numbers ? std::optional(m_numbers->at(0)) : std::nullopt;
}

std::optional<std::int32_t> LinuxSystemVersion::minorVersion() const {
    return m_numbers ? std::optional(m_numbers->at(1)) : std::nullopt;
}

std::optional<std::int32_t> LinuxSystemVersion::bugFixVersion() const {
    return m_numbers ? std::optional(m_numbers->at(2)) : std::nullopt;
}

std::optional<std::uint32_t> LinuxSystemVersion::packedVersion() const {
    if (!m_numbers)
        return std::nullopt;
    const auto digit = [](std::int32_t number) {
        return static_cast<std::uint32_t>(std::min(number, 9));
    };
    const auto major = static_cast<std::uint32_t>(std::min(m_numbers->at(0), 99));
    return (major / 10) << 12 | (major % 10) << 8 | digit(m_numbers->at(1)) << 4 |
           digit(m_numbers->at(2));
}

double LinuxSystemVersion::frameworkVersion() const {
    return frameworkWithAppearances;
}

} // namespace zt
