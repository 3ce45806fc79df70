// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcFsText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace zt {

namespace {

template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
    Number value = 0;
    const char *end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, value);
    if (failure != std::errc() || stop != end || text.empty())
        return std::nullopt;
    return value;
}

// Takes the text up to the next separator off the front, the separator too.
std::string_view takeUpTo(char separator, std::string_view &text) {
    const std::size_t length = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

// What stands behind the key at the beginning of a line.
std::optional<std::string_view> valueOf(std::string_view key, std::string_view status) {
    while (!status.empty()) {
        const std::string_view line = takeUpTo('\n', status);
        if (line.starts_with(key))
            return line.substr(key.size());
    }
    return std::nullopt;
}

// The numbers of the fields, counted from 1 as in the kernel's documentation.
enum Field : std::size_t {
    State = 3,
    Parent = 4,
    UserTicks = 14,
    Threads = 20,
    StartTicks = 22,
    StartOfCode = 26,
    StartOfStack = 28,
    StartOfData = 45,
    EndOfEnvironment = 51,
};

// Fowler, Noll and Vo's hash function.
std::uint64_t mixed(std::uint64_t hash, std::string_view text) {
    for (const char character : text) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 0x100000001B3;
    }
    return hash;
}

} // namespace

bool ProcStat::isRunning() const {
    const bool firstThreadHasEnded = state == 'Z' || state == 'X' || state == 'x';
    return !firstThreadHasEnded || threads > 1;
}

std::optional<ProcStat> parseProcStat(std::string_view text) {
    while (!text.empty() && text.back() == '\n')
        text.remove_suffix(1);
    const std::size_t open = text.find(" (");
    const std::size_t close = text.rfind(") ");
    if (open == std::string_view::npos || close == std::string_view::npos || close < open + 2)
        return std::nullopt;
    std::array<std::string_view, EndOfEnvironment + 1> fields;
    std::string_view rest = text.substr(close + 2);
    std::size_t count = State;
    while (count < fields.size() && !rest.empty())
        fields[count++] = takeUpTo(' ', rest);

    const auto pid = parseNumber<std::int32_t>(text.substr(0, open));
    const auto parent = parseNumber<std::int32_t>(fields[Parent]);
    const auto userTicks = parseNumber<std::uint64_t>(fields[UserTicks]);
    const auto threads = parseNumber<std::int32_t>(fields[Threads]);
    const auto startTicks = parseNumber<std::uint64_t>(fields[StartTicks]);
    if (!pid || !parent || !userTicks || !threads || !startTicks || fields[State].size() != 1)
        return std::nullopt;
    // Old kernels write fewer fields; those that are missing are empty.
    std::uint64_t image = 0xCBF29CE484222325;
    for (std::size_t field = StartOfCode; field <= StartOfStack; ++field)
        image = mixed(mixed(image, fields[field]), " ");
    for (std::size_t field = StartOfData; field <= EndOfEnvironment; ++field)
        image = mixed(mixed(image, fields[field]), " ");
    return ProcStat{.pid = *pid,
                    .name = std::string(text.substr(open + 2, close - open - 2)),
                    .state = fields[State].front(),
                    .parent = *parent,
                    .threads = *threads,
                    .userTicks = *userTicks,
                    .startTicks = *startTicks,
                    .image = image};
}

std::vector<std::string> parseCommandLine(std::string_view text) {
    std::vector<std::string> arguments;
    while (!text.empty())
        arguments.emplace_back(takeUpTo('\0', text));
    return arguments;
}

std::optional<std::uint32_t> parseEffectiveUser(std::string_view status) {
    std::optional<std::string_view> users = valueOf("Uid:\t", status);
    if (!users)
        return std::nullopt;
    takeUpTo('\t', *users); // the real user
    return parseNumber<std::uint32_t>(takeUpTo('\t', *users));
}

std::optional<std::int32_t> parseTracer(std::string_view status) {
    const std::optional<std::string_view> tracer = valueOf("TracerPid:\t", status);
    return tracer ? parseNumber<std::int32_t>(*tracer) : std::nullopt;
}

std::optional<std::int32_t> parseLastProcessId(std::string_view loadAverages) {
    while (!loadAverages.empty() && loadAverages.back() == '\n')
        loadAverages.remove_suffix(1);
    const std::size_t blank = loadAverages.rfind(' ');
    if (blank == std::string_view::npos)
        return std::nullopt;
    return parseNumber<std::int32_t>(loadAverages.substr(blank + 1));
}

std::optional<std::int32_t> parseProcessId(std::string_view name) {
    if (name.empty() || name.front() < '1' || name.front() > '9')
        return std::nullopt;
    return parseNumber<std::int32_t>(name);
}

MarkedPath splitDeletedMark(std::string_view link) {
    constexpr std::string_view mark = " (deleted)";
    if (!link.ends_with(mark))
        return {link, false};
    return {link.substr(0, link.size() - mark.size()), true};
}

std::string_view innermostBundlePath(std::string_view path) {
    static constexpr std::string_view suffix = ".app";
    const auto isSuffix = [](std::string_view text) {
        return std::ranges::equal(text, suffix, {}, [](char character) {
            return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32)
                                                        : character;
        });
    };
    while (!path.empty()) {
        const std::size_t slash = path.rfind('/');
        const std::string_view name =
            slash == std::string_view::npos ? path : path.substr(slash + 1);
        if (name.size() >= suffix.size() && isSuffix(name.substr(name.size() - suffix.size())))
            return path;
        path = slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
    }
    return {};
}

} // namespace zt
