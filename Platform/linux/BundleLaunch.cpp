// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BundleLaunch.h"

#include "Platform/linux/X11Connection.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QSysInfo>

#include <linux/close_range.h>
#include <unistd.h>

#include <atomic>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// The user's environment, without what told this very program how and by whom it was started.
QProcessEnvironment environmentForOthers() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable :
         {u"DESKTOP_STARTUP_ID"_s, u"XDG_ACTIVATION_TOKEN"_s, u"GIO_LAUNCHED_DESKTOP_FILE"_s,
          u"GIO_LAUNCHED_DESKTOP_FILE_PID"_s, u"INVOCATION_ID"_s, u"JOURNAL_STREAM"_s,
          u"LISTEN_FDS"_s, u"LISTEN_FDNAMES"_s, u"LISTEN_PID"_s, u"NOTIFY_SOCKET"_s, u"OLDPWD"_s,
          u"PWD"_s, u"_"_s})
        environment.remove(variable);
    return environment;
}

// Window managers bring a new program's window to the front when the user did nothing after the
// time in its token. Nothing is told to the desktop, which would show a program as starting for
// long when it does not answer.
QString startupId(std::uint32_t serverTime) {
    static std::atomic<unsigned> number = 0;
    return u"velmora-%1-%2-%3_TIME%4"_s.arg(::getpid())
        .arg(number++)
        .arg(QSysInfo::machineHostName())
        .arg(serverTime);
}

} // namespace

bool launchBundle(const Bundle &bundle, const QString &workingFolder) {
    if (bundle.executablePath().isEmpty())
        return false;
    QProcessEnvironment environment = environmentForOthers();
    if (const auto server = X11Connection::open())
        environment.insert(u"DESKTOP_STARTUP_ID"_s, startupId(server->serverTime()));
    QProcess process;
    process.setProgram(bundle.executablePath());
    process.setWorkingDirectory(workingFolder);
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier(
        [] { ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC); });
    return process.startDetached();
}

} // namespace zt
