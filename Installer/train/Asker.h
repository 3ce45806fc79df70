#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The person on whose behalf the privileged tool runs.

#include "Platform/Result.h"
#include "Platform/posix/FileSystemIdentity.h"

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zt {

struct Asker {
    std::string name;
    std::string homeFolder;
    FileSystemIdentity identity;
    std::vector<gid_t> groups; // all of them

    bool isRoot() const { return identity.user == 0; }
};

// The user's number as pkexec leaves it in the environment: digits and nothing else. Thread: any.
std::optional<uid_t> parseUserId(std::string_view text);

// The user of that number, as this system knows him. Fails when it knows none. Thread: one at a
// time.
Result<Asker> findAsker(uid_t user);

} // namespace zt
