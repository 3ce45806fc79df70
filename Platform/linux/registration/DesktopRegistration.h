#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Result.h"
#include "Platform/linux/registration/ApplicationRecord.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace zt {

class Log;

// The errors of registering, with the numbers of the platform that the terms come from.
namespace RegistrationError {
inline constexpr std::int32_t notAnApplication = -10811;
inline constexpr std::int32_t cannotWrite = -61;
} // namespace RegistrationError

// The desktop's list of applications. Thread: any.
class DesktopRegistration {
public:
    struct Folders {
        QString user;
        QStringList system;
    };

    // `log` must outlive this.
    DesktopRegistration(Folders folders, Log &log) : m_folders(std::move(folders)), m_log(log) {}

    // Makes the application known to this user's desktop. One that all users' folders already have
    // at the same place is left to them, and this user's own entry for another place goes, since it
    // would hide theirs.
    Result<void> registerForUser(const ApplicationRecord &record) const;

private:
    bool isRegisteredForAll(const ApplicationRecord &record) const;

    Folders m_folders;
    Log &m_log;
};

} // namespace zt
