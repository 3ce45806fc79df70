// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A desktop portal with nothing but the setting of the colour scheme. Says "ready" once it can be
// asked; each line "scheme N" on its input sets the value and tells everybody; the input's end ends
// it. An argument is the value at first, and "slow" as second argument makes it answer late.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <unistd.h> // read

using namespace Qt::StringLiterals;

class PortalSettings final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    PortalSettings(uint scheme, bool slow) : m_scheme(scheme), m_slow(slow) {}

    void setScheme(uint scheme) {
        m_scheme = scheme;
        Q_EMIT SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s,
                              QDBusVariant(scheme));
    }

    Q_SLOT QDBusVariant Read(const QString &group, const QString &key) {
        if (group != u"org.freedesktop.appearance" || key != u"color-scheme") {
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
            return {};
        }
        // The value is wrapped twice, as this old call of the portal has it.
        const QDBusVariant answer(QVariant::fromValue(QDBusVariant(m_scheme)));
        if (m_slow) {
            setDelayedReply(true);
            const QDBusMessage reply = message().createReply(QVariant::fromValue(answer));
            QTimer::singleShot(500, this, [reply] { QDBusConnection::sessionBus().send(reply); });
        }
        return answer;
    }

    Q_SIGNAL void SettingChanged(const QString &group, const QString &key,
                                 const QDBusVariant &value);

private:
    uint m_scheme;
    bool m_slow;
};

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    qRegisterMetaType<QDBusVariant>();
    const QStringList arguments = QCoreApplication::arguments();
    PortalSettings settings(arguments.value(1).toUInt(), arguments.value(2) == u"slow");
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &settings,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) ||
        !bus.registerService(u"org.freedesktop.portal.Desktop"_s))
        return 1;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &settings, [&settings] {
        char line[64];
        const auto length = read(STDIN_FILENO, line, sizeof line);
        if (length <= 0) {
            QCoreApplication::quit();
            return;
        }
        const QString command = QString::fromLatin1(line, length).trimmed();
        if (command.startsWith(u"scheme "))
            settings.setScheme(command.mid(7).toUInt());
    });
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

#include "PortalSettings.moc"
