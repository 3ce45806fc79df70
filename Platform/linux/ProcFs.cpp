// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcFs.h"

#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/SystemCalls.h"

#include <array>
#include <charconv>
#include <climits> // PATH_MAX
#include <cstddef>
#include <span>
#include <string_view>

namespace zt {

namespace {

// Arguments beyond these bytes say nothing about which program runs.
constexpr std::size_t maximumCommandLine = 32 * 1024;

// "PID/name", below the root folder.
class ProcessPath {
public:
    ProcessPath(std::int32_t pid, std::string_view name) {
        char *end = std::to_chars(m_text.data(), m_text.data() + m_text.size(), pid).ptr;
        if (!name.empty())
            *end++ = '/';
        end += name.copy(end, 16);
        *end = '\0';
    }

    const char *text() const { return m_text.data(); }

private:
    std::array<char, 32> m_text;
};

// The beginning of the file, as much as the buffer holds. Empty on failure.
std::string_view readInto(std::span<char> buffer, int root, const char *path) {
    const UniqueFd file = openAt(root, path, O_RDONLY);
    if (!file)
        return {};
    const ssize_t count = readFully(file.get(), buffer.data(), buffer.size());
    return {buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
}

} // namespace

ProcFs::ProcFs(const std::string &root)
    : m_root(openAt(AT_FDCWD, root.c_str(), O_PATH | O_DIRECTORY)) {}

std::vector<ProcFolderEntry> ProcFs::processes() const {
    std::vector<ProcFolderEntry> entries;
    const UniqueFd folder = openAt(m_root.get(), ".", O_RDONLY | O_DIRECTORY);
    if (!folder)
        return entries;
    alignas(std::uint64_t) std::array<std::byte, 32 * 1024> buffer;
    DirectoryReader reader(folder.get(), buffer);
    while (const DirectoryReader::Entry *entry = reader.next()) {
        if (const auto id = parseProcessId(entry->name))
            entries.push_back({.pid = *id, .number = entry->number});
    }
    return entries;
}

std::optional<struct stat> ProcFs::folderStatus(std::int32_t pid) const {
    struct stat status = {};
    if (::fstatat(m_root.get(), ProcessPath(pid, {}).text(), &status, 0) != 0)
        return std::nullopt;
    return status;
}

std::optional<ProcFolderEntry> ProcFs::entryOf(std::int32_t pid) const {
    const std::optional<struct stat> status = folderStatus(pid);
    if (!status)
        return std::nullopt;
    return ProcFolderEntry{.pid = pid, .number = status->st_ino};
}

std::optional<std::int32_t> ProcFs::ownProcessId() const {
    std::array<char, 16> target;
    const ssize_t length = ::readlinkat(m_root.get(), "self", target.data(), target.size());
    if (length <= 0)
        return std::nullopt;
    return parseProcessId({target.data(), static_cast<std::size_t>(length)});
}

std::optional<std::int32_t> ProcFs::lastProcessId() const {
    std::array<char, 128> buffer;
    return parseLastProcessId(readInto(buffer, m_root.get(), "loadavg"));
}

std::optional<ProcStat> ProcFs::stat(std::int32_t pid) const {
    // One read: the kernel makes the whole text anew for each.
    std::array<char, 2048> buffer;
    const UniqueFd file = openAt(m_root.get(), ProcessPath(pid, "stat").text(), O_RDONLY);
    if (!file)
        return std::nullopt;
    const ssize_t count = readSome(file.get(), buffer.data(), buffer.size());
    if (count <= 0)
        return std::nullopt;
    return parseProcStat({buffer.data(), static_cast<std::size_t>(count)});
}

std::optional<std::string> ProcFs::link(std::int32_t pid, const char *name) const {
    std::array<char, PATH_MAX + 16> target; // the deleted mark comes on top
    const ssize_t length =
        ::readlinkat(m_root.get(), ProcessPath(pid, name).text(), target.data(), target.size());
    if (length <= 0)
        return std::nullopt;
    return std::string(target.data(), static_cast<std::size_t>(length));
}

std::optional<std::string> ProcFs::programLink(std::int32_t pid) const {
    return link(pid, "exe");
}

std::optional<struct stat> ProcFs::programStatus(std::int32_t pid) const {
    struct stat status = {};
    if (::fstatat(m_root.get(), ProcessPath(pid, "exe").text(), &status, 0) != 0)
        return std::nullopt;
    return status;
}

std::optional<std::string> ProcFs::workingFolder(std::int32_t pid) const {
    return link(pid, "cwd");
}

std::vector<std::string> ProcFs::commandLine(std::int32_t pid) const {
    std::array<char, maximumCommandLine> buffer;
    return parseCommandLine(readInto(buffer, m_root.get(), ProcessPath(pid, "cmdline").text()));
}

std::optional<uid_t> ProcFs::effectiveUser(std::int32_t pid) const {
    // The folder belongs to that user, or to root when the process is protected from the user.
    const std::optional<struct stat> folder = folderStatus(pid);
    if (!folder)
        return std::nullopt;
    if (folder->st_uid != 0)
        return folder->st_uid;
    std::array<char, 4096> buffer;
    return parseEffectiveUser(readInto(buffer, m_root.get(), ProcessPath(pid, "status").text()));
}

std::string ProcFs::controlGroups(std::int32_t pid) const {
    std::array<char, 8192> buffer;
    return std::string(readInto(buffer, m_root.get(), ProcessPath(pid, "cgroup").text()));
}

std::optional<std::int32_t> ProcFs::tracer(std::int32_t pid) const {
    std::array<char, 4096> buffer;
    return parseTracer(readInto(buffer, m_root.get(), ProcessPath(pid, "status").text()));
}

} // namespace zt
