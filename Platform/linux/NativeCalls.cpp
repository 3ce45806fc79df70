// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The system calls of Platform/posix that Linux alone has in this form.

#include "Platform/posix/LogLine.h"
#include "Platform/posix/SystemCalls.h"

#include <cstdio> // renameat2

namespace zt {

bool renameWithoutReplacing(int fromFolder, const char *from, int toFolder, const char *to) {
    if (::renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (statusAt(toFolder, to)) {
        errno = EEXIST;
        return false;
    }
    return errno == ENOENT && ::renameat(fromFolder, from, toFolder, to) == 0;
}

bool exchangeNames(int firstFolder, const char *first, int secondFolder, const char *second) {
    if (::renameat2(firstFolder, first, secondFolder, second, RENAME_EXCHANGE) == 0)
        return true;
    if (errno == ENOSYS)
        errno = EINVAL;
    return false;
}

bool flushFileSystem(int descriptor) {
    return retryInterrupted([&] { return ::syncfs(descriptor); }) == 0;
}

const char *programName() {
    return program_invocation_short_name;
}

} // namespace zt
