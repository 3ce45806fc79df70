// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/StagedCopy.h"

#include "Platform/posix/CopyVerification.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeWalk.h"

namespace zt {

namespace {

constexpr const char *stagedName = "item";
constexpr const char *displacedName = "displaced";

} // namespace

Result<StagedCopy> StagedCopy::make(const ItemPlace &source, const ItemPlace &target,
                                    const StagedCopySettings &settings) {
    Result<StagingFolder> folder =
        StagingFolder::make(target.folder, target.path.substr(0, target.path.rfind('/')));
    if (!folder)
        return folder.error();
    const Result<void> copied = copyTree({.source = source,
                                          .target = {folder->descriptor(), stagedName, target.path},
                                          .rights = settings.rights,
                                          .readAs = settings.readAs,
                                          .stop = settings.stop,
                                          .progress = settings.progress,
                                          .note = settings.note});
    if (!copied)
        return copied.error();
    // The name that the copy will get must not reach the medium before the copy has. Waiting for
    // the whole file system once costs far less than waiting for each file.
    if (settings.durability == Durability::Durable && !flushFileSystem(folder->descriptor()))
        return Error::fromErrno("write", target.path);
    if (settings.proof == Proof::Compared) {
        const Result<void> same =
            verifyCopy({.source = source,
                        .copy = {folder->descriptor(), stagedName, target.path},
                        .rights = settings.rights,
                        .readAs = settings.readAs,
                        .stop = settings.stop});
        if (!same)
            return same.error();
    }
    return StagedCopy(*std::move(folder), settings);
}

Result<void> StagedCopy::displace(const ItemPlace &target) {
    if (m_stop.stop_requested())
        return stoppedError(target.path);
    if (exchangeNames(m_folder.descriptor(), stagedName, target.folder, target.name.c_str())) {
        m_isPlaced = true;
        return {};
    }
    if (!moveWithoutReplacing(target.folder, target.name.c_str(), m_folder.descriptor(),
                              displacedName))
        return Error::fromErrno("remove", target.path);
    m_hasDisplaced = true;
    return {};
}

bool StagedCopy::appear(const ItemPlace &target) {
    const int staging = m_folder.descriptor();
    if (renameWithoutReplacing(staging, stagedName, target.folder, target.name.c_str()))
        return true;
    if (errno != EACCES)
        return false;
    // A folder that its owner may not write to cannot be moved to another parent as it is. It is
    // changed for that while it is still hidden, so that what appears is right at once.
    const std::string hidden = m_folder.siblingName();
    if (!moveWithoutReplacing(staging, stagedName, target.folder, hidden.c_str()))
        return false;
    if (renameWithoutReplacing(target.folder, hidden.c_str(), target.folder, target.name.c_str()))
        return true;
    const int saved = errno;
    static_cast<void>(moveWithoutReplacing(target.folder, hidden.c_str(), staging, stagedName));
    errno = saved;
    return false;
}

Result<void> StagedCopy::place(const ItemPlace &target) {
    if (!m_isPlaced && m_stop.stop_requested())
        return stoppedError(target.path);
    if (!m_isPlaced && !appear(target)) {
        const int code = errno;
        if (m_hasDisplaced) {
            static_cast<void>(moveWithoutReplacing(m_folder.descriptor(), displacedName,
                                                   target.folder, target.name.c_str()));
        }
        m_hasDisplaced = false;
        return Error::fromErrno("create", target.path, code);
    }
    m_isPlaced = true;
    if (m_durability == Durability::Durable && !flushToMedium(target.folder))
        return Error::fromErrno("write", target.path);
    return {};
}

} // namespace zt
