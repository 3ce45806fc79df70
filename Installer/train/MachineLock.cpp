// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/MachineLock.h"

#include "Installer/train/TrustedFolder.h"
#include "Platform/posix/SystemCalls.h"

#include <sys/file.h>

namespace zt {

Result<MachineLock> MachineLock::take(const std::function<void()> &wait) {
    const std::string path = std::string(folder) + '/' + name;
    const Result<UniqueFd> trusted = openTrustedFolder(folder);
    if (!trusted)
        return trusted.error();
    // The file stays: whoever removed it could leave two processes with a lock each.
    UniqueFd file =
        openAt(trusted->get(), name, O_RDWR | O_CREAT | O_NOFOLLOW | O_NOCTTY, S_IRUSR | S_IWUSR);
    if (!file)
        return Error::fromErrno("open", path);
    if (retryInterrupted([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) == 0)
        return MachineLock(std::move(file));
    if (errno != EWOULDBLOCK)
        return Error::fromErrno("lock", path);
    wait();
    if (retryInterrupted([&] { return ::flock(file.get(), LOCK_EX); }) != 0)
        return Error::fromErrno("lock", path);
    return MachineLock(std::move(file));
}

} // namespace zt
