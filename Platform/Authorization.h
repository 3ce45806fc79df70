#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An administrator's consent, and a program that is run with the rights it gives.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <stop_token>

namespace zt {

// What the answers mean. The numbers are those of the platform that the terms come from.
namespace AuthorizationStatus {
inline constexpr std::int32_t success = 0;
inline constexpr std::int32_t denied = -60005;
inline constexpr std::int32_t canceled = -60006;              // by the user
inline constexpr std::int32_t interactionNotAllowed = -60007; // nobody could be asked
inline constexpr std::int32_t internal = -60008;
inline constexpr std::int32_t toolExecuteFailure = -60031;
} // namespace AuthorizationStatus

// A program that needs an administrator's rights.
struct PrivilegedCommand {
    QString tool; // an executable file; empty when there is none
    QStringList arguments;
    QByteArray input; // what the program can read on its standard input
};

// How a program that was waited for has ended.
struct ChildEnd {
    enum class Kind {
        Lost,   // it cannot be told any more
        Exited, // with `status`
        Signaled,
    };

    Kind kind = Kind::Lost;
    int status = 0;
};

// One consent, for one command. Thread: any, but one at a time.
class AuthorizationReference {
public:
    virtual ~AuthorizationReference() = default;

    // Asks the administrator for the right to run the command, if need be with a dialog of the
    // system's, and waits for the answer, one of AuthorizationStatus. Each failure but a
    // cancellation is told by one line in the log. A stop request counts as a cancellation as long
    // as the dialog is open.
    virtual std::int32_t requestRight(const PrivilegedCommand &command,
                                      const std::stop_token &stop) = 0;

    // Runs the command for which the right was given. Answers one of AuthorizationStatus.
    virtual std::int32_t executeWithPrivileges(const PrivilegedCommand &command) = 0;

    // Waits for the program's end. Meanwhile what it writes on its standard error comes out on that
    // of this program.
    virtual ChildEnd waitForChild() = 0;

protected:
    AuthorizationReference() = default;
    AuthorizationReference(const AuthorizationReference &) = default;
    AuthorizationReference &operator=(const AuthorizationReference &) = default;
};

class Authorization {
public:
    virtual ~Authorization() = default;

    // Null, with a line in the log, when this system has no way to ask. Thread: any.
    virtual std::unique_ptr<AuthorizationReference> create() = 0;

protected:
    Authorization() = default;
    Authorization(const Authorization &) = default;
    Authorization &operator=(const Authorization &) = default;
};

} // namespace zt
