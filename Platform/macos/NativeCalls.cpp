// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The system calls of Platform/posix that macOS has in a form of its own.

#include "Platform/posix/LogLine.h"
#include "Platform/posix/SystemCalls.h"

#include <stdio.h>  // renameatx_np
#include <stdlib.h> // getprogname

namespace zt {

bool renameWithoutReplacing(int fromFolder, const char *from, int toFolder, const char *to) {
    if (renameatx_np(fromFolder, from, toFolder, to, RENAME_EXCL) == 0)
        return true;
    if (errno != ENOTSUP)
        return false;
    if (statusAt(toFolder, to)) {
        errno = EEXIST;
        return false;
    }
    return errno == ENOENT && ::renameat(fromFolder, from, toFolder, to) == 0;
}

bool exchangeNames(int firstFolder, const char *first, int secondFolder, const char *second) {
    if (renameatx_np(firstFolder, first, secondFolder, second, RENAME_SWAP) == 0)
        return true;
    if (errno == ENOTSUP)
        errno = EINVAL;
    return false;
}

// The file's medium writes everything that it has been given, of other files too.
bool flushFileSystem(int descriptor) {
    return retryInterrupted([&] { return ::fcntl(descriptor, F_FULLFSYNC); }) != -1;
}

const char *programName() {
    return getprogname();
}

} // namespace zt
