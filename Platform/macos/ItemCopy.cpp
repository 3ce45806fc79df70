// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/ItemCopy.h"

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeSize.h"

#include <copyfile.h>
#include <removefile.h>
#include <sys/types.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace zt {

namespace {

struct CopyStateDeleter {
    void operator()(copyfile_state_t state) const { copyfile_state_free(state); }
};
using CopyState = std::unique_ptr<std::remove_pointer_t<copyfile_state_t>, CopyStateDeleter>;

// Follows one copy: counts its bytes, and ends it when that is wanted.
class CopyWatch {
public:
    CopyWatch(const ItemCopyOrders &orders, std::uint64_t bytesInAll) : m_orders(orders) {
        m_progress.bytesInAll = bytesInAll;
    }

    static int hear(int what, int stage, copyfile_state_t state, const char *source,
                    const char * /*target*/, void *context) noexcept {
        return static_cast<CopyWatch *>(context)->follow(what, stage, state, source);
    }

    // What could not be copied, when the system has told.
    const std::optional<std::string> &failedItem() const { return m_failedItem; }

private:
    int follow(int what, int stage, copyfile_state_t state, const char *source) {
        if (stage == COPYFILE_ERR && source)
            m_failedItem = source;
        if (m_orders.stop.stop_requested() || stage == COPYFILE_ERR)
            return COPYFILE_QUIT;
        off_t copied = 0;
        if (what == COPYFILE_COPY_DATA && stage == COPYFILE_PROGRESS &&
            copyfile_state_get(state, COPYFILE_STATE_COPIED, &copied) == 0)
            m_ofThisFile = std::uint64_t(copied);
        if (what == COPYFILE_RECURSE_FILE && stage == COPYFILE_FINISH)
            m_ofEarlierFiles += std::exchange(m_ofThisFile, 0);
        tell();
        return COPYFILE_CONTINUE;
    }

    // A file may have grown since the sizes were added up.
    void tell() {
        const std::uint64_t done = std::min(m_ofEarlierFiles + m_ofThisFile, m_progress.bytesInAll);
        if (!m_orders.progress || done <= m_progress.bytesDone)
            return;
        m_progress.bytesDone = done;
        m_orders.progress(m_progress);
    }

    const ItemCopyOrders &m_orders;
    std::optional<std::string> m_failedItem;
    CopyProgress m_progress;
    std::uint64_t m_ofEarlierFiles = 0;
    std::uint64_t m_ofThisFile = 0;
};

} // namespace

Error stoppedCopyError(std::string path) {
    return {"copy", std::move(path), "stopped on request", ECANCELED};
}

Result<void> copyItem(const std::string &source, const std::string &target,
                      const ItemCopyOrders &orders) {
    // What cannot be read counts nothing; the copy will tell.
    const Result<std::uint64_t> size = orders.progress
                                           ? treeSize({AT_FDCWD, source, source}, orders.stop)
                                           : Result<std::uint64_t>(0);
    CopyWatch watch(orders, size ? *size : 0);
    const CopyState state(copyfile_state_alloc());
    if (!state)
        return Error::fromErrno("copy", source, ENOMEM);
    copyfile_state_set(state.get(), COPYFILE_STATE_STATUS_CB,
                       reinterpret_cast<const void *>(&CopyWatch::hear));
    copyfile_state_set(state.get(), COPYFILE_STATE_STATUS_CTX, &watch);
    if (copyfile(source.c_str(), target.c_str(), state.get(),
                 COPYFILE_ALL | COPYFILE_RECURSIVE | COPYFILE_NOFOLLOW_SRC | COPYFILE_EXCL) == 0)
        return {};
    const int code = errno;
    if (orders.stop.stop_requested())
        return stoppedCopyError(source);
    return Error::fromErrno("copy", watch.failedItem().value_or(source), code);
}

Result<void> removeItem(const std::string &path) {
    if (removefile(path.c_str(), nullptr, REMOVEFILE_RECURSIVE) != 0)
        return Error::fromErrno("remove", path);
    return {};
}

Result<void> renameItem(const std::string &from, const std::string &to) {
    if (!moveWithoutReplacing(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str()))
        return Error::fromErrno("rename", to);
    return {};
}

} // namespace zt
