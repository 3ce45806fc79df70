// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/SystemRegistration.h"

#include "Installer/train/TrustedFolder.h"
#include "Platform/linux/registration/DataFolder.h"
#include "Platform/posix/SystemCalls.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

namespace zt {

namespace {

constexpr int patience = 5000; // milliseconds

Error recordError(const char *cause) {
    return {"read", "the product's description", cause, EINVAL};
}

bool isFileInside(const std::string &folder, const std::string &path) {
    const UniqueFd root =
        openAt(AT_FDCWD, folder.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    open_how how = {};
    how.flags = O_PATH | O_CLOEXEC;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    const UniqueFd file(
        static_cast<int>(::syscall(SYS_openat2, root.get(), path.c_str(), &how, sizeof how)));
    const auto status = file ? statusOf(file.get()) : std::nullopt;
    return status && S_ISREG(status->st_mode);
}

} // namespace

Result<std::string> readPreparedRecord(int descriptor) {
    std::string bytes;
    std::array<char, 65536> part{};
    for (;;) {
        pollfd ready{.fd = descriptor, .events = POLLIN, .revents = 0};
        const int count = retryInterrupted([&] { return ::poll(&ready, 1, patience); });
        if (count == 0)
            return recordError("it does not come to an end");
        const ssize_t size = count > 0 ? readSome(descriptor, part.data(), part.size()) : -1;
        if (size < 0)
            return Error::fromErrno("read", "the product's description");
        if (size == 0)
            return bytes;
        bytes.append(part.data(), std::size_t(size));
        if (bytes.size() > maximumRecordSize)
            return recordError("it is too large");
    }
}

Result<ApplicationRecord> checkPreparedRecord(std::string_view bytes,
                                              const std::string &destination) {
    Result<ApplicationRecord> record = parseRecord(bytes);
    if (!record)
        return record;
    if (record->bundlePath != destination)
        return recordError("it is about another product");
    if (!isFileInside(destination, record->executable))
        return recordError("its program is not in the product");
    return record;
}

Result<void> registerForAllUsers(const ApplicationRecord &record,
                                 const std::function<void(std::string_view)> &log) {
    Error lastError;
    for (const char *path : {"/usr/local/share", "/usr/share"}) {
        const Result<UniqueFd> folder = openTrustedFolder(path);
        if (!folder) {
            lastError = folder.error();
            continue;
        }
        if (Result<void> written = writeRegistration(folder->get(), record); !written)
            return written;
        refreshCaches(path, record, log);
        return {};
    }
    return lastError;
}

} // namespace zt
