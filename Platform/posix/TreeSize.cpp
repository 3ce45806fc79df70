// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeSize.h"

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeWalk.h"

#include <dirent.h>

#include <atomic>
#include <optional>
#include <utility>

namespace zt {

namespace {

class SizeCounter final : public TreeVisitor {
public:
    std::uint64_t bytes() const { return m_bytes; }

    Result<void> enterFolder(TreeFolder &) override { return {}; }

    Result<void> leaveFolder(TreeFolder &) override { return {}; }

    Result<void> visitItem(TreeFolder &folder, const char *name, unsigned char type,
                           unsigned /*worker*/) override {
        if (type != DT_REG)
            return {};
        const std::optional<struct stat> status = statusAt(folder.source.get(), name);
        if (!status)
            return Error::fromErrno("examine", folder.path(name));
        m_bytes += static_cast<std::uint64_t>(status->st_size);
        return {};
    }

private:
    std::atomic<std::uint64_t> m_bytes = 0;
};

} // namespace

Result<std::uint64_t> treeSize(const ItemPlace &item, const std::stop_token &stop) {
    const std::optional<struct stat> status = statusAt(item.folder, item.name.c_str());
    if (!status)
        return Error::fromErrno("find", item.path);
    if (!S_ISDIR(status->st_mode))
        return S_ISREG(status->st_mode) ? static_cast<std::uint64_t>(status->st_size) : 0;
    UniqueFd folder = openAt(item.folder, item.name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (!folder)
        return Error::fromErrno("open", item.path);
    SizeCounter counter;
    if (Result<void> walked = walkTree(std::move(folder), item.path, counter, stop); !walked)
        return walked.error();
    return counter.bytes();
}

} // namespace zt
