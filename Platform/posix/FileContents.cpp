// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/FileContents.h"

#include "Platform/posix/SystemCalls.h"

#include <algorithm>

namespace zt {

Result<std::string> readSmallFile(const std::string &path, std::size_t maximumSize) {
    const UniqueFd file = openAt(AT_FDCWD, path.c_str(), O_RDONLY | O_NOCTTY);
    if (!file)
        return Error::fromErrno("open", path);
    std::string content;
    for (;;) {
        // One byte more than is allowed, to tell a file that just fits from one that does not.
        const std::size_t have = content.size();
        const std::size_t step = std::min<std::size_t>(maximumSize - have + 1, 65536);
        content.resize(have + step);
        const ssize_t count = readFully(file.get(), content.data() + have, step);
        if (count < 0)
            return Error::fromErrno("read", path);
        content.resize(have + static_cast<std::size_t>(count));
        if (content.size() > maximumSize)
            return Error::fromErrno("read", path, EFBIG);
        if (static_cast<std::size_t>(count) < step)
            return content;
    }
}

} // namespace zt
