#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Authorization services.

#include <CoreFoundation/CoreFoundation.h>

#include <cstdio>

extern "C" {

using AuthorizationRef = const struct AuthorizationOpaqueRef *;
using AuthorizationFlags = UInt32;
using AuthorizationString = const char *;
struct AuthorizationItem {
    AuthorizationString name;
    std::size_t valueLength;
    void *value;
    UInt32 flags;
};
struct AuthorizationItemSet {
    UInt32 count;
    AuthorizationItem *items;
};
using AuthorizationRights = AuthorizationItemSet;
using AuthorizationEnvironment = AuthorizationItemSet;
enum : AuthorizationFlags {
    kAuthorizationFlagDefaults = 0,
    kAuthorizationFlagInteractionAllowed = 1U << 0U,
    kAuthorizationFlagExtendRights = 1U << 1U,
    kAuthorizationFlagPreAuthorize = 1U << 4U,
};
enum : OSStatus {
    errAuthorizationSuccess = 0,
    errAuthorizationDenied = -60005,
    errAuthorizationCanceled = -60006,
    errAuthorizationInteractionNotAllowed = -60007,
    errAuthorizationInternal = -60008,
    errAuthorizationToolExecuteFailure = -60031,
};
OSStatus AuthorizationCreate(const AuthorizationRights *rights,
                             const AuthorizationEnvironment *environment, AuthorizationFlags flags,
                             AuthorizationRef *authorization);
OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags flags);
OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights *rights,
                                 const AuthorizationEnvironment *environment,
                                 AuthorizationFlags flags, AuthorizationRights **authorizedRights);
OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef authorization, const char *tool,
                                            AuthorizationFlags options, char *const *arguments,
                                            std::FILE **pipe);

} // extern "C"
