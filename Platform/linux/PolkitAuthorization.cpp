// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PolkitAuthorization.h"

#include "Platform/Log.h"
#include "Platform/linux/PolkitRules.h"
#include "Platform/linux/ToolToRun.h"
#include "Platform/posix/SystemCalls.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <unistd.h> // STDERR_FILENO

#include <optional>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

constexpr int pollInterval = 100; // milliseconds; how long a stop request may go unheard

// What pkexec ends with by itself. The tool never uses these.
constexpr int dismissed = 126;
constexpr int notRun = 127;

const QByteArray startedLine = "started\n";

class PolkitAuthorizationReference final : public AuthorizationReference {
public:
    PolkitAuthorizationReference(Log &log, QString pkexec)
        : m_log(log)
        , m_pkexec(std::move(pkexec)) {}

    ~PolkitAuthorizationReference() override {
        // A tool that runs cannot be ended by this user; it is waited for instead.
        if (m_process.state() != QProcess::NotRunning)
            waitForChild();
    }

    PolkitAuthorizationReference(const PolkitAuthorizationReference &) = delete;
    PolkitAuthorizationReference &operator=(const PolkitAuthorizationReference &) = delete;

    std::int32_t requestRight(const PrivilegedCommand &command,
                              const std::stop_token &stop) override;
    std::int32_t executeWithPrivileges(const PrivilegedCommand &command) override;
    ChildEnd waitForChild() override;

private:
    bool startPkexec(const PrivilegedCommand &command);
    bool awaitStart(const std::stop_token &stop);
    std::int32_t refusal();
    std::int32_t fail(std::int32_t status, const QByteArray &reason) const;
    void forwardLog();

    Log &m_log;
    const QString m_pkexec;
    std::optional<ToolToRun> m_tool;
    QProcess m_process;
    bool m_hasStarted = false; // the tool itself
};

std::int32_t PolkitAuthorizationReference::fail(std::int32_t status,
                                                const QByteArray &reason) const {
    m_log.writeLine("not authorized: " + reason.toStdString());
    return status;
}

bool PolkitAuthorizationReference::startPkexec(const PrivilegedCommand &command) {
    // Nothing of this program's environment has a say in what runs as root, and pkexec's own
    // messages are read below.
    QProcessEnvironment environment;
    environment.insert(u"PATH"_s, u"/usr/sbin:/usr/bin:/sbin:/bin"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_process.setProcessEnvironment(environment);
    // pkexec could ask on a terminal; a window program has none that its user looks at.
    m_process.start(m_pkexec, QStringList{u"--disable-internal-agent"_s,
                                          QFile::decodeName(m_tool->path().c_str())} +
                                  command.arguments);
    if (!m_process.waitForStarted(-1))
        return false;
    m_process.write(command.input);
    m_process.closeWriteChannel();
    return true;
}

// Whether the tool itself came to run.
bool PolkitAuthorizationReference::awaitStart(const std::stop_token &stop) {
    while (m_process.state() != QProcess::NotRunning) {
        if (m_process.bytesAvailable() >= startedLine.size())
            return m_process.peek(startedLine.size()) == startedLine;
        if (stop.stop_requested())
            m_process.terminate(); // which closes the dialog
        m_process.waitForReadyRead(pollInterval);
    }
    // The tool may have been over before it was looked at.
    return m_process.peek(startedLine.size()) == startedLine;
}

std::int32_t PolkitAuthorizationReference::requestRight(const PrivilegedCommand &command,
                                                        const std::stop_token &stop) {
    if (!QFileInfo(command.tool).isFile())
        return AuthorizationStatus::success; // there is nothing that an administrator could allow
    Result<ToolToRun> tool = ToolToRun::prepare(QFile::encodeName(command.tool).toStdString());
    if (!tool)
        return fail(AuthorizationStatus::internal, QByteArray::fromStdString(tool.error().text()));
    m_tool.emplace(*std::move(tool));
    if (!startPkexec(command))
        return fail(AuthorizationStatus::internal, m_pkexec.toUtf8() + " could not be started");
    m_hasStarted = awaitStart(stop);
    if (m_hasStarted)
        return AuthorizationStatus::success;
    if (stop.stop_requested())
        return AuthorizationStatus::canceled;
    return refusal();
}

// Why the tool did not come to run.
std::int32_t PolkitAuthorizationReference::refusal() {
    if (m_process.exitStatus() == QProcess::CrashExit)
        return fail(AuthorizationStatus::internal, "the request was ended from outside");
    if (m_process.exitCode() == dismissed)
        return AuthorizationStatus::canceled;
    const QByteArray words = m_process.readAllStandardError().simplified();
    if (m_process.exitCode() != notRun)
        return fail(AuthorizationStatus::internal, "the tool did not say that it runs: " + words);
    if (words.contains("authentication agent")) {
        return fail(AuthorizationStatus::interactionNotAllowed,
                    "nobody could be asked, for no authentication agent runs in this session");
    }
    if (!words.contains("Not authorized"))
        return fail(AuthorizationStatus::internal, words);
    switch (polkitAnswerForTool(QFile::decodeName(m_tool->path().c_str()))) {
    case PolkitAnswer::Forbidden:
        return fail(AuthorizationStatus::denied, "the system's rules do not allow it");
    case PolkitAnswer::NeedsPassword:
        return fail(AuthorizationStatus::denied, "the password was not accepted");
    case PolkitAnswer::Allowed:
    case PolkitAnswer::Unknown:
        break;
    }
    return fail(AuthorizationStatus::denied, words);
}

std::int32_t
PolkitAuthorizationReference::executeWithPrivileges(const PrivilegedCommand & /*command*/) {
    // pkexec has become the tool by now.
    return m_hasStarted ? AuthorizationStatus::success : AuthorizationStatus::toolExecuteFailure;
}

// The tool writes lines like this program's own, with its own name and number.
void PolkitAuthorizationReference::forwardLog() {
    while (m_process.canReadLine() ||
           (m_process.state() == QProcess::NotRunning && m_process.bytesAvailable() > 0))
        m_log.passOn(m_process.readLine().toStdString());
}

ChildEnd PolkitAuthorizationReference::waitForChild() {
    m_process.setReadChannel(QProcess::StandardError);
    while (m_process.state() != QProcess::NotRunning) {
        m_process.waitForReadyRead(pollInterval);
        forwardLog();
    }
    forwardLog();
    if (m_process.exitStatus() == QProcess::CrashExit) {
        m_log.writeLine("the tool crashed (signal " + std::to_string(m_process.exitCode()) + ')');
        return {.kind = ChildEnd::Kind::Signaled, .status = m_process.exitCode()};
    }
    if (m_process.exitCode() != 0)
        m_log.writeLine("the tool failed (status " + std::to_string(m_process.exitCode()) + ')');
    return {.kind = ChildEnd::Kind::Exited, .status = m_process.exitCode()};
}

} // namespace

std::unique_ptr<AuthorizationReference> PolkitAuthorization::create() {
    QString pkexec = QStandardPaths::findExecutable(
        u"pkexec"_s, {u"/usr/bin"_s, u"/usr/local/bin"_s, u"/bin"_s});
    if (pkexec.isEmpty()) {
        m_log.writeLine("not authorized: there is no pkexec on this system; the package pkexec or "
                        "polkit brings it");
        return nullptr;
    }
    return std::make_unique<PolkitAuthorizationReference>(m_log, std::move(pkexec));
}

} // namespace zt
