// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BundleLaunch.h"

#include "Platform/linux/X11Connection.h"

#include <QByteArrayList>
#include <QFile>
#include <QProcessEnvironment>
#include <QSysInfo>

#include <glib.h>
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

// Texts as a list that ends with a null pointer.
class ArgumentList {
public:
    explicit ArgumentList(const QStringList &texts) {
        for (const QString &text : texts)
            m_bytes << QFile::encodeName(text);
        for (QByteArray &text : m_bytes)
            m_pointers << text.data();
        m_pointers << nullptr;
    }

    char **get() { return m_pointers.data(); }

private:
    QByteArrayList m_bytes;
    QList<char *> m_pointers;
};

void beginSession(gpointer /*data*/) {
    ::setsid();
}

} // namespace

std::optional<std::int32_t> launchBundle(const Bundle &bundle, const QString &workingFolder) {
    if (bundle.executablePath().isEmpty())
        return std::nullopt;
    return launchProgram({bundle.executablePath()}, workingFolder);
}

std::optional<std::int32_t> launchProgram(const QStringList &commandLine,
                                          const QString &workingFolder) {
    QProcessEnvironment environment = environmentForOthers();
    if (const auto server = X11Connection::open())
        environment.insert(u"DESKTOP_STARTUP_ID"_s, startupId(server->serverTime()));
    ArgumentList arguments(commandLine);
    ArgumentList variables(environment.toStringList());
    GPid pid = 0;
    // Standard input comes from nowhere and all other descriptors are closed.
    const bool isStarted = g_spawn_async(
        QFile::encodeName(workingFolder).constData(), arguments.get(), variables.get(),
        GSpawnFlags(G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL), beginSession, nullptr,
        &pid, nullptr);
    return isStarted ? std::optional<std::int32_t>(pid) : std::nullopt;
}

} // namespace zt
