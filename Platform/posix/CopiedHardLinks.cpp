// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/CopiedHardLinks.h"

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"

namespace zt {

namespace {

std::string identityOf(const struct stat &item) {
    return std::to_string(item.st_dev) + '-' + std::to_string(item.st_ino);
}

bool meansNoHardLinks(int code) {
    return code == EPERM || code == EOPNOTSUPP || code == ENOSYS || code == EACCES;
}

} // namespace

int CopiedHardLinks::names() {
    const std::lock_guard lock(m_mutex);
    if (!m_names && (::mkdirat(m_folder, m_name.c_str(), S_IRWXU) == 0 || errno == EEXIST))
        m_names = openAt(m_folder, m_name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    return m_names.get();
}

void CopiedHardLinks::noteUnsupported() {
    if (m_isSupported.exchange(false) && m_note)
        m_note("The destination has no hard links; files with several names become separate files");
}

CopiedHardLinks::Outcome CopiedHardLinks::linkExistingCopy(const struct stat &original, int folder,
                                                           const char *name) {
    if (!m_isSupported)
        return Outcome::NotCopiedYet;
    const int kept = names();
    if (kept < 0)
        return Outcome::Failed;
    if (::linkat(kept, identityOf(original).c_str(), folder, name, 0) == 0)
        return Outcome::Linked;
    // A file cannot have any number of names: with EMLINK the next one starts a copy of its own.
    if (errno == ENOENT || errno == EMLINK)
        return Outcome::NotCopiedYet;
    if (meansNoHardLinks(errno)) {
        noteUnsupported();
        return Outcome::NotCopiedYet;
    }
    return Outcome::Failed;
}

CopiedHardLinks::Outcome CopiedHardLinks::remember(const struct stat &original, int folder,
                                                   const char *name) {
    if (!m_isSupported)
        return Outcome::NotCopiedYet;
    const int kept = names();
    if (kept < 0)
        return Outcome::Failed;
    const std::string identity = identityOf(original);
    if (::linkat(folder, name, kept, identity.c_str(), 0) == 0)
        return Outcome::Linked;
    if (meansNoHardLinks(errno)) {
        noteUnsupported();
        return Outcome::NotCopiedYet;
    }
    if (errno != EEXIST)
        return Outcome::Failed;
    // The other copy is put under the name in one step, by way of a spare name.
    const std::string spare = identity + "-spare";
    if (::linkat(kept, identity.c_str(), kept, spare.c_str(), 0) != 0)
        return errno == EMLINK ? Outcome::Linked : Outcome::Failed;
    return ::renameat(kept, spare.c_str(), folder, name) == 0 ? Outcome::Linked : Outcome::Failed;
}

Result<void> CopiedHardLinks::removeNames() {
    if (!m_names)
        return {};
    return removeTree(m_folder, m_name.c_str());
}

} // namespace zt
