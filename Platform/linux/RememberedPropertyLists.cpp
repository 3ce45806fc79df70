// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/RememberedPropertyLists.h"

#include <QFile>

#include <optional>
#include <utility>

namespace zt {

namespace {

// Dictionaries of so many bundles are kept; a desktop does not run more.
constexpr qsizetype maximumCount = 512;

std::optional<struct stat> statusOf(const QString &path) {
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

bool isSameTime(const timespec &a, const timespec &b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

bool isUnchanged(const struct stat &before, const struct stat &now) {
    return before.st_dev == now.st_dev && before.st_ino == now.st_ino &&
           before.st_size == now.st_size && isSameTime(before.st_mtim, now.st_mtim) &&
           isSameTime(before.st_ctim, now.st_ctim);
}

// File systems note the time of a change in steps of up to two seconds.
constexpr std::time_t coarsestStep = 2;

} // namespace

RememberedPropertyLists::RememberedPropertyLists(std::function<std::time_t()> now)
    : m_now(std::move(now)) {}

Result<QVariant> RememberedPropertyLists::read(const QString &path) {
    const std::optional<struct stat> before = statusOf(path);
    if (before) {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_remembered.constFind(path);
        if (found != m_remembered.cend() && isUnchanged(found->status, *before))
            return found->content;
    }
    Result<QVariant> content = readPropertyList(path);
    const std::optional<struct stat> after = statusOf(path);
    const bool isAtRest = before && after && isUnchanged(*before, *after) &&
                          m_now() - after->st_ctim.tv_sec > coarsestStep;
    if (content && isAtRest) {
        const std::scoped_lock lock(m_mutex);
        if (m_remembered.size() >= maximumCount)
            m_remembered.clear();
        m_remembered.insert(path, {*after, *content});
    }
    return content;
}

} // namespace zt
