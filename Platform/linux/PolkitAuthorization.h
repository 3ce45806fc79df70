#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Consent through polkit: "pkexec" shows the desktop's own password dialog and then becomes the
// program, so that asking and running are one and there is never a second prompt.

#include "Platform/Authorization.h"

namespace zt {

class Log;

class PolkitAuthorization final : public Authorization {
public:
    // `log` must outlive this and all that it creates.
    explicit PolkitAuthorization(Log &log) : m_log(log) {}

    std::unique_ptr<AuthorizationReference> create() override;

private:
    Log &m_log;
};

} // namespace zt
