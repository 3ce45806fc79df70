#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A thin layer over system calls: each one is repeated when a signal interrupts it, and each new
// descriptor is closed on exec. Failures are told as the system tells them, through errno, so that
// the caller can name the object; see Error::fromErrno.

#include "Platform/posix/UniqueFd.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <optional>
#include <string_view>

namespace zt {

// Calls again as long as the answer is -1 with errno EINTR. Thread: any, as for all that follow.
template <typename Call>
auto retryInterrupted(Call call) {
    for (;;) {
        const auto answer = call();
        if (answer != -1 || errno != EINTR)
            return answer;
    }
}

// Opens a file relative to a folder's descriptor (AT_FDCWD for the working directory). Owns
// nothing on failure.
UniqueFd openAt(int folder, const char *name, int flags, mode_t mode = 0);

// Another descriptor of the same open file. Owns nothing on failure.
UniqueFd duplicateOf(int descriptor);

// Whether a person sits behind it.
bool isTerminal(int descriptor);

// One read; the number of bytes, 0 at the end, -1 on failure.
ssize_t readSome(int descriptor, char *bytes, std::size_t size);

// Reads until `size` bytes are there or the file ends. The number of bytes; -1 on failure.
ssize_t readFully(int descriptor, char *bytes, std::size_t size);

// Writes everything, in as many writes as it takes.
bool writeFully(int descriptor, std::string_view bytes);

// The status of the item itself, links not followed. No value on failure.
std::optional<struct stat> statusAt(int folder, const char *name);
std::optional<struct stat> statusOf(int descriptor);

// Whether both describe one and the same item, by whatever name it was reached.
inline bool isSameItem(const struct stat &a, const struct stat &b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Whether the content was last changed at the same time.
inline bool hasSameModificationTime(const struct stat &a, const struct stat &b) {
    return a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

// Renames unless something has the new name already (errno EEXIST). Atomic. On file systems that
// cannot promise that, the name is looked up first.
bool renameWithoutReplacing(int fromFolder, const char *from, int toFolder, const char *to);

// The same between any two folders of a volume. A folder that its owner may not write to cannot
// change its parent; if it belongs to this process's user, it gets that right for the moment.
bool moveWithoutReplacing(int fromFolder, const char *from, int toFolder, const char *to);

// Lets two existing items change places in one step. False with errno EINVAL where the file system
// cannot do it.
bool exchangeNames(int firstFolder, const char *first, int secondFolder, const char *second);

// Waits until the file or folder has reached its medium.
bool flushToMedium(int descriptor);

// Waits until everything written to the file system of this descriptor has reached its medium.
bool flushFileSystem(int descriptor);

} // namespace zt
