// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for the copying of files, by the copy of this system.

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeCopy.h"

#include <copyfile.h>
#include <removefile.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

struct _copyfile_state {
    copyfile_callback_t callback = nullptr;
    void *context = nullptr;
    off_t copied = 0;
};

namespace {

zt::ItemPlace placeOf(const zt::UniqueFd &folder, const std::string &path) {
    return {folder.get(), path.substr(path.rfind('/') + 1), path};
}

zt::UniqueFd openFolderOf(const std::string &path) {
    return zt::openAt(AT_FDCWD, path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY);
}

} // namespace

extern "C" {

copyfile_state_t copyfile_state_alloc() {
    return new _copyfile_state;
}

int copyfile_state_free(copyfile_state_t state) {
    delete state;
    return 0;
}

int copyfile_state_get(copyfile_state_t state, std::uint32_t flag, void *value) {
    if (flag != COPYFILE_STATE_COPIED)
        return -1;
    *static_cast<off_t *>(value) = state->copied;
    return 0;
}

int copyfile_state_set(copyfile_state_t state, std::uint32_t flag, const void *value) {
    if (flag == COPYFILE_STATE_STATUS_CB) {
        state->callback = reinterpret_cast<copyfile_callback_t>(const_cast<void *>(value));
    } else {
        state->context = const_cast<void *>(value);
    }
    return 0;
}

// Told as if everything were one file: with half of it, and at its end.
int copyfile(const char *source, const char *target, copyfile_state_t state,
             copyfile_flags_t flags) {
    constexpr copyfile_flags_t wanted =
        COPYFILE_ALL | COPYFILE_RECURSIVE | COPYFILE_NOFOLLOW_SRC | COPYFILE_EXCL;
    if (flags != wanted) {
        errno = EINVAL;
        return -1;
    }
    const auto tell = [&](int what, int stage) {
        return state->callback(what, stage, state, source, target, state->context) ==
               COPYFILE_CONTINUE;
    };
    const zt::UniqueFd from = openFolderOf(source);
    const zt::UniqueFd to = openFolderOf(target);
    std::uint64_t size = 0;
    if (!tell(COPYFILE_RECURSE_FILE, COPYFILE_START)) {
        errno = ECANCELED;
        return -1;
    }
    const auto copied = zt::copyTree(
        {.source = placeOf(from, source),
         .target = placeOf(to, target),
         .progress = [&](const zt::CopyProgress &progress) { size = progress.bytesInAll; }});
    if (!copied) {
        state->callback(COPYFILE_RECURSE_FILE, COPYFILE_ERR, state, copied.error().object.c_str(),
                        target, state->context);
        errno = copied.error().code;
        return -1;
    }
    for (const std::uint64_t done : {size / 2, size}) {
        state->copied = off_t(done);
        if (!tell(COPYFILE_COPY_DATA, COPYFILE_PROGRESS)) {
            errno = ECANCELED;
            return -1;
        }
    }
    tell(COPYFILE_RECURSE_FILE, COPYFILE_FINISH);
    return 0;
}

int removefile(const char *path, removefile_state_t /*state*/, removefile_flags_t flags) {
    std::error_code error;
    if (flags == REMOVEFILE_RECURSIVE) {
        std::filesystem::remove_all(path, error);
    } else {
        std::filesystem::remove(path, error);
    }
    errno = error.value();
    return error ? -1 : 0;
}

} // extern "C"
