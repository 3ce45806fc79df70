// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/SecurityAuthorization.h"

#include "Platform/Log.h"
#include "Platform/posix/SystemCalls.h"

#include <Security/Authorization.h>

#include <sys/wait.h>

#include <string>
#include <utility>
#include <vector>

namespace zt {

static_assert(AuthorizationStatus::success == errAuthorizationSuccess);
static_assert(AuthorizationStatus::denied == errAuthorizationDenied);
static_assert(AuthorizationStatus::canceled == errAuthorizationCanceled);
static_assert(AuthorizationStatus::interactionNotAllowed == errAuthorizationInteractionNotAllowed);
static_assert(AuthorizationStatus::internal == errAuthorizationInternal);
static_assert(AuthorizationStatus::toolExecuteFailure == errAuthorizationToolExecuteFailure);

namespace {

constexpr auto administratorRight = "system.privilege.admin";

constexpr AuthorizationFlags askAndPrepare = kAuthorizationFlagInteractionAllowed |
                                             kAuthorizationFlagExtendRights |
                                             kAuthorizationFlagPreAuthorize;
static_assert(askAndPrepare == 0x13);

class SecurityAuthorizationReference final : public AuthorizationReference {
public:
    SecurityAuthorizationReference(Log &log, AuthorizationRef authorization)
        : m_log(log)
        , m_authorization(authorization) {}

    // Rights that were granted are kept for a while, as the user set it.
    ~SecurityAuthorizationReference() override {
        AuthorizationFree(m_authorization, kAuthorizationFlagDefaults);
    }

    SecurityAuthorizationReference(const SecurityAuthorizationReference &) = delete;
    SecurityAuthorizationReference &operator=(const SecurityAuthorizationReference &) = delete;

    std::int32_t requestRight(const PrivilegedCommand &command,
                              const std::stop_token &stop) override;
    std::int32_t executeWithPrivileges(const PrivilegedCommand &command) override;
    ChildEnd waitForChild() override;

private:
    Log &m_log;
    AuthorizationRef m_authorization;
};

// The dialog is the system's and is closed by nobody but the user.
std::int32_t SecurityAuthorizationReference::requestRight(const PrivilegedCommand & /*command*/,
                                                          const std::stop_token &stop) {
    if (stop.stop_requested())
        return AuthorizationStatus::canceled;
    AuthorizationItem item = {
        .name = administratorRight, .valueLength = 0, .value = nullptr, .flags = 0};
    const AuthorizationRights rights = {.count = 1, .items = &item};
    const OSStatus status =
        AuthorizationCopyRights(m_authorization, &rights, nullptr, askAndPrepare, nullptr);
    if (stop.stop_requested())
        return AuthorizationStatus::canceled;
    if (status != errAuthorizationSuccess && status != errAuthorizationCanceled)
        m_log.writeLine("not authorized: error " + std::to_string(status));
    return status;
}

std::int32_t
SecurityAuthorizationReference::executeWithPrivileges(const PrivilegedCommand &command) {
    const QByteArray tool = command.tool.toUtf8();
    std::vector<QByteArray> texts;
    texts.reserve(std::size_t(command.arguments.size()));
    for (const QString &argument : command.arguments)
        texts.push_back(argument.toUtf8());
    std::vector<char *> arguments;
    arguments.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    return AuthorizationExecuteWithPrivileges(
        m_authorization, tool.constData(), kAuthorizationFlagDefaults, arguments.data(), nullptr);
}

// The system does not tell the tool's process id; whichever child ends is taken for it. No other is
// waited for while a copy is made.
ChildEnd SecurityAuthorizationReference::waitForChild() {
    int status = 0;
    if (retryInterrupted([&] { return ::wait(&status); }) == -1)
        return {.kind = ChildEnd::Kind::Lost, .status = 0};
    if (WIFEXITED(status))
        return {.kind = ChildEnd::Kind::Exited, .status = WEXITSTATUS(status)};
    return {.kind = ChildEnd::Kind::Signaled, .status = WTERMSIG(status)};
}

} // namespace

std::unique_ptr<AuthorizationReference> SecurityAuthorization::create() {
    AuthorizationRef authorization = nullptr;
    const OSStatus status =
        AuthorizationCreate(nullptr, nullptr, kAuthorizationFlagDefaults, &authorization);
    if (status != errAuthorizationSuccess) {
        m_log.writeLine("not authorized: no authorization could be created, error " +
                        std::to_string(status));
        return nullptr;
    }
    return std::make_unique<SecurityAuthorizationReference>(m_log, authorization);
}

} // namespace zt
