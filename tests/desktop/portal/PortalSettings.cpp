// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A desktop portal with nothing but the settings of the colour scheme, the contrast and the accent
// colour. Says "ready" once it can be asked; each line "scheme N", "contrast N" or "accent R G B"
// on its input sets the value and tells everybody; the input's end ends it. The first argument is
// the scheme at first; the others are "slow", which makes it answer late, "contrast" for more of
// it, or "accent" and three numbers: without them no accent colour is known at first. "none" as
// scheme means that it is not known either.

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <unistd.h> // read

using namespace Qt::StringLiterals;

// As the portal has colours.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
};
Q_DECLARE_METATYPE(Color)

static QDBusArgument &operator<<(QDBusArgument &argument, const Color &color) {
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, Color &color) {
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

class PortalSettings final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit PortalSettings(bool slow) : m_slow(slow) {}

    void set(const QString &key, const QVariant &value) {
        m_values.insert(key, value);
        Q_EMIT SettingChanged(u"org.freedesktop.appearance"_s, key, QDBusVariant(value));
    }

    // A line of the input.
    void obey(const QString &line) {
        const QStringList words = line.split(u' ');
        if (words.size() == 2 && words[0] == u"scheme")
            set(u"color-scheme"_s, words[1].toUInt());
        else if (words.size() == 2 && words[0] == u"contrast")
            set(u"contrast"_s, words[1].toUInt());
        else if (words.size() == 4 && words[0] == u"accent")
            set(u"accent-color"_s,
                QVariant::fromValue(
                    Color{words[1].toDouble(), words[2].toDouble(), words[3].toDouble()}));
    }

    Q_SLOT QDBusVariant Read(const QString &group, const QString &key) {
        if (group != u"org.freedesktop.appearance" || !m_values.contains(key)) {
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
            return {};
        }
        // The value is wrapped twice, as this old call of the portal has it.
        const QDBusVariant answer(QVariant::fromValue(QDBusVariant(m_values.value(key))));
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
    QVariantMap m_values;
    bool m_slow;
};

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    qRegisterMetaType<QDBusVariant>();
    const QStringList arguments = QCoreApplication::arguments();
    PortalSettings settings(arguments.contains(u"slow"_s));
    qDBusRegisterMetaType<Color>();
    if (arguments.value(1) != u"none")
        settings.obey(u"scheme "_s + arguments.value(1));
    if (arguments.contains(u"contrast"_s))
        settings.obey(u"contrast 1"_s);
    if (const qsizetype accent = arguments.indexOf(u"accent"_s); accent > 0)
        settings.obey(arguments.mid(accent, 4).join(u' '));
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
        settings.obey(QString::fromLatin1(line, length).trimmed());
    });
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

#include "PortalSettings.moc"
