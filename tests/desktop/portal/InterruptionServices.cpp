// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Stand-ins for the services that hold off interruptions, those that the arguments name: "login" on
// the system bus, "portal", "session" and "power" on the session bus; "hangs" makes all of them
// leave their callers without an answer. Says "ready" once they can be asked; then a line for each
// request, and one when its hold has ended. The input's end ends it.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QSocketNotifier>

#include <cstdio>
#include <memory>
#include <unistd.h> // pipe, read

using namespace Qt::StringLiterals;

static void say(const QString &line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

// What the services have in common: they may hang, and say who asked for what.
class Service : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    Service(QString name, bool hangs) : m_name(std::move(name)), m_hangs(hangs) {}

protected:
    void note(const QString &request) {
        say(m_name + u": "_s + request);
        if (m_hangs)
            setDelayedReply(true);
    }

    // Says when the caller has left the bus.
    void watchCaller() {
        auto *watcher = new QDBusServiceWatcher(message().service(), connection(),
                                                QDBusServiceWatcher::WatchForUnregistration, this);
        connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
                [this] { say(m_name + u": over"_s); });
    }

private:
    QString m_name;
    bool m_hangs;
};

class LoginManager final : public Service {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit LoginManager(bool hangs) : Service(u"login"_s, hangs) {}

    Q_SLOT QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who,
                                           const QString &why, const QString &mode) {
        note(what + u' ' + who + u' ' + why + u' ' + mode);
        int ends[2] = {};
        if (::pipe(ends) != 0)
            return {};
        // The hold ends when nobody has the other end any more.
        auto *watch = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
        connect(watch, &QSocketNotifier::activated, this, [watch] {
            say(u"login: over"_s);
            ::close(int(watch->socket()));
            watch->deleteLater();
        });
        QDBusUnixFileDescriptor descriptor;
        descriptor.giveFileDescriptor(ends[1]);
        return descriptor;
    }
};

class Portal final : public Service {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    explicit Portal(bool hangs) : Service(u"portal"_s, hangs) {}

    Q_SLOT QDBusObjectPath Inhibit(const QString & /*window*/, uint flags,
                                   const QVariantMap &options) {
        note(QString::number(flags) + u' ' + options.value(u"reason"_s).toString());
        watchCaller();
        return QDBusObjectPath(u"/org/freedesktop/portal/desktop/request/1"_s);
    }
};

class SessionManager final : public Service {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.SessionManager")

public:
    explicit SessionManager(bool hangs) : Service(u"session"_s, hangs) {}

    Q_SLOT uint Inhibit(const QString &application, uint /*window*/, const QString &reason,
                        uint flags) {
        note(application + u' ' + reason + u' ' + QString::number(flags));
        watchCaller();
        return 1;
    }
};

class PowerManagement final : public Service {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PowerManagement.Inhibit")

public:
    explicit PowerManagement(bool hangs) : Service(u"power"_s, hangs) {}

    Q_SLOT uint Inhibit(const QString &application, const QString &reason) {
        note(application + u' ' + reason);
        watchCaller();
        return 1;
    }
};

static bool offer(QDBusConnection bus, const QString &name, const QString &path, QObject &service) {
    return bus.registerObject(path, &service, QDBusConnection::ExportAllSlots) &&
           bus.registerService(name);
}

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool hangs = arguments.contains(u"hangs"_s);
    LoginManager login(hangs);
    Portal portal(hangs);
    SessionManager session(hangs);
    PowerManagement power(hangs);
    const QDBusConnection own = QDBusConnection::sessionBus();
    const bool areOffered =
        (!arguments.contains(u"login"_s) ||
         offer(QDBusConnection::systemBus(), u"org.freedesktop.login1"_s,
               u"/org/freedesktop/login1"_s, login)) &&
        (!arguments.contains(u"portal"_s) || offer(own, u"org.freedesktop.portal.Desktop"_s,
                                                   u"/org/freedesktop/portal/desktop"_s, portal)) &&
        (!arguments.contains(u"session"_s) ||
         offer(own, u"org.gnome.SessionManager"_s, u"/org/gnome/SessionManager"_s, session)) &&
        (!arguments.contains(u"power"_s) ||
         offer(own, u"org.freedesktop.PowerManagement"_s,
               u"/org/freedesktop/PowerManagement/Inhibit"_s, power));
    if (!areOffered)
        return 1;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [] {
        char line[64];
        if (read(STDIN_FILENO, line, sizeof line) <= 0)
            QCoreApplication::quit();
    });
    say(u"ready"_s);
    return QCoreApplication::exec();
}

#include "InterruptionServices.moc"
