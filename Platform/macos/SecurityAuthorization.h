#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An administrator's consent through the authorization services.

#include "Platform/Authorization.h"

namespace zt {

class Log;

class SecurityAuthorization final : public Authorization {
public:
    // The log outlives this, and all that is created.
    explicit SecurityAuthorization(Log &log) : m_log(log) {}

    std::unique_ptr<AuthorizationReference> create() override;

private:
    Log &m_log;
};

} // namespace zt
