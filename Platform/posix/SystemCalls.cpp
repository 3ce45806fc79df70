// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/SystemCalls.h"

namespace zt {

void UniqueFd::reset(int descriptor) {
    if (m_descriptor >= 0) {
        const int saved = errno;
        // Not repeated: after an interrupted close the descriptor is gone all the same.
        ::close(m_descriptor);
        errno = saved;
    }
    m_descriptor = descriptor;
}

UniqueFd openAt(int folder, const char *name, int flags, mode_t mode) {
    return UniqueFd(
        retryInterrupted([&] { return ::openat(folder, name, flags | O_CLOEXEC, mode); }));
}

UniqueFd duplicateOf(int descriptor) {
    // Not in the place of a standard stream that happens to be closed.
    return UniqueFd(::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

bool isTerminal(int descriptor) {
    return ::isatty(descriptor) == 1;
}

ssize_t readSome(int descriptor, char *bytes, std::size_t size) {
    return retryInterrupted([&] { return ::read(descriptor, bytes, size); });
}

ssize_t readFully(int descriptor, char *bytes, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count = readSome(descriptor, bytes + done, size - done);
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

bool writeFully(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count =
            retryInterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (count < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

std::optional<struct stat> statusAt(int folder, const char *name) {
    struct stat status = {};
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return status;
}

std::optional<struct stat> statusOf(int descriptor) {
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return std::nullopt;
    return status;
}

bool moveWithoutReplacing(int fromFolder, const char *from, int toFolder, const char *to) {
    if (renameWithoutReplacing(fromFolder, from, toFolder, to))
        return true;
    if (errno != EACCES)
        return false;
    const std::optional<struct stat> status = statusAt(fromFolder, from);
    const bool mayHelp = status && S_ISDIR(status->st_mode) && (status->st_mode & S_IWUSR) == 0;
    const mode_t mode = mayHelp ? status->st_mode & 07777U : 0;
    if (!mayHelp || ::fchmodat(fromFolder, from, mode | S_IWUSR, AT_SYMLINK_NOFOLLOW) != 0) {
        errno = EACCES;
        return false;
    }
    const bool moved = renameWithoutReplacing(fromFolder, from, toFolder, to);
    const int saved = errno;
    [[maybe_unused]] const int restored =
        moved ? ::fchmodat(toFolder, to, mode, AT_SYMLINK_NOFOLLOW)
              : ::fchmodat(fromFolder, from, mode, AT_SYMLINK_NOFOLLOW);
    errno = saved;
    return moved;
}

bool flushToMedium(int descriptor) {
    return retryInterrupted([&] { return ::fsync(descriptor); }) == 0;
}

} // namespace zt
