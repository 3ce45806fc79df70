// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/macos/standins/AuthorizationStandIn.h"

#include <spawn.h>

namespace standin {

Consent consent;

} // namespace standin

using standin::consent;

extern "C" {

OSStatus AuthorizationCreate(const AuthorizationRights *rights,
                             const AuthorizationEnvironment *environment, AuthorizationFlags flags,
                             AuthorizationRef *authorization) {
    if (rights || environment || flags != kAuthorizationFlagDefaults)
        return errAuthorizationInternal;
    if (consent.answerToCreation != errAuthorizationSuccess)
        return consent.answerToCreation;
    ++consent.references;
    *authorization = reinterpret_cast<AuthorizationRef>(&consent);
    return errAuthorizationSuccess;
}

OSStatus AuthorizationFree(AuthorizationRef /*authorization*/, AuthorizationFlags flags) {
    if (flags != kAuthorizationFlagDefaults)
        return errAuthorizationInternal;
    --consent.references;
    return errAuthorizationSuccess;
}

OSStatus AuthorizationCopyRights(AuthorizationRef /*authorization*/,
                                 const AuthorizationRights *rights,
                                 const AuthorizationEnvironment *environment,
                                 AuthorizationFlags flags, AuthorizationRights **authorizedRights) {
    if (environment || authorizedRights)
        return errAuthorizationInternal;
    for (UInt32 index = 0; index < rights->count; ++index) {
        const AuthorizationItem &item = rights->items[index];
        if (item.valueLength != 0 || item.value || item.flags != 0)
            return errAuthorizationInternal;
        consent.rights.emplace_back(item.name);
    }
    consent.flags.push_back(flags);
    return consent.answerToRequest;
}

OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef /*authorization*/, const char *tool,
                                            AuthorizationFlags options, char *const *arguments,
                                            std::FILE **pipe) {
    if (options != kAuthorizationFlagDefaults || pipe)
        return errAuthorizationInternal;
    if (consent.answerToExecution != errAuthorizationSuccess)
        return consent.answerToExecution;
    std::vector<std::string> program = {tool};
    std::vector<char *> vector = {const_cast<char *>(tool)};
    for (; *arguments; ++arguments) {
        program.emplace_back(*arguments);
        vector.push_back(*arguments);
    }
    vector.push_back(nullptr);
    consent.programs.push_back(std::move(program));
    pid_t pid = 0;
    return ::posix_spawn(&pid, tool, nullptr, nullptr, vector.data(), nullptr) == 0
               ? OSStatus(errAuthorizationSuccess)
               : OSStatus(errAuthorizationToolExecuteFailure);
}

} // extern "C"
