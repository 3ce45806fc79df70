// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/Asker.h"

#include <grp.h>
#include <pwd.h>

#include <cerrno>
#include <charconv>
#include <cstddef>

namespace zt {

namespace {

constexpr std::size_t largestEntry = std::size_t(1) << 20U;
constexpr std::size_t mostGroups = 65536; // that the kernel takes

// The groups of the user, his main one among them.
Result<std::vector<gid_t>> groupsOf(const std::string &name, gid_t mainGroup) {
    std::vector<gid_t> groups(64);
    for (;;) {
        int count = static_cast<int>(groups.size());
        if (::getgrouplist(name.c_str(), mainGroup, groups.data(), &count) >= 0) {
            groups.resize(static_cast<std::size_t>(count));
            return groups;
        }
        if (groups.size() >= mostGroups)
            return Error{"find the groups of", name, "there are too many", E2BIG};
        groups.resize(groups.size() * 2);
    }
}

} // namespace

std::optional<uid_t> parseUserId(std::string_view text) {
    uid_t user = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), user);
    // The highest number stands for nobody at all.
    if (text.empty() || error != std::errc() || end != text.data() + text.size() ||
        user == static_cast<uid_t>(-1))
        return std::nullopt;
    return user;
}

Result<Asker> findAsker(uid_t user) {
    std::vector<char> buffer(1024);
    passwd entry = {};
    passwd *found = nullptr;
    int code = ERANGE;
    while (code == ERANGE && buffer.size() <= largestEntry) {
        buffer.resize(buffer.size() * 2);
        code = ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    }
    if (!found)
        return Error::fromErrno("find user", std::to_string(user), code == 0 ? ENOENT : code);
    Asker asker{.name = entry.pw_name,
                .homeFolder = entry.pw_dir,
                .identity = {entry.pw_uid, entry.pw_gid},
                .groups = {}};
    Result<std::vector<gid_t>> groups = groupsOf(asker.name, entry.pw_gid);
    if (!groups)
        return groups.error();
    asker.groups = *std::move(groups);
    return asker;
}

} // namespace zt
