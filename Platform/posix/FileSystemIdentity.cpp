// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/FileSystemIdentity.h"

#include <sys/fsuid.h>

#include <cerrno>
#include <cstdlib>

namespace zt {

namespace {

// An id that nobody has: with it the calls change nothing and answer what is in force.
constexpr auto noUser = static_cast<uid_t>(-1);
constexpr auto noGroup = static_cast<gid_t>(-1);

void switchTo(const FileSystemIdentity &identity) {
    const int saved = errno;
    ::setfsgid(identity.group);
    ::setfsuid(identity.user);
    // The calls do not tell whether they succeeded.
    if (FileSystemIdentity::current() != identity)
        std::abort();
    errno = saved;
}

} // namespace

FileSystemIdentity FileSystemIdentity::current() {
    return {static_cast<uid_t>(::setfsuid(noUser)), static_cast<gid_t>(::setfsgid(noGroup))};
}

ActingAs::ActingAs(const std::optional<FileSystemIdentity> &identity) {
    if (!identity)
        return;
    const FileSystemIdentity before = FileSystemIdentity::current();
    if (before == *identity)
        return;
    switchTo(*identity);
    m_before = before;
}

ActingAs::~ActingAs() {
    if (m_before)
        switchTo(*m_before);
}

} // namespace zt
