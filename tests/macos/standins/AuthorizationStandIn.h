#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for the authorization services. Programs are run for real, with no rights but the
// test's own.

#include <Security/Authorization.h>

#include <string>
#include <vector>

namespace standin {

struct Consent {
    OSStatus answerToCreation = errAuthorizationSuccess;
    OSStatus answerToRequest = errAuthorizationSuccess;
    OSStatus answerToExecution = errAuthorizationSuccess;
    int references = 0; // created and not freed
    std::vector<std::string> rights;
    std::vector<AuthorizationFlags> flags;          // of each request
    std::vector<std::vector<std::string>> programs; // the tool and its arguments
};
extern Consent consent;

} // namespace standin
