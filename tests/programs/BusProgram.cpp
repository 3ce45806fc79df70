// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A program on the session bus that offers what it is told.
//
//   bus_program toolkit        the toolkit's object for the application
//   bus_program media-player   a media player that can quit and cannot come forward
//   bus_program stubborn       a media player that cannot quit
//   bus_program silent         a name and nothing else
//   bus_program hangs          a name, and never an answer
//
// It prints "ready" once it is on the bus, and ends with status 7 when it is asked to quit.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTimer>

#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class MediaPlayer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit MEMBER m_canQuit)
    Q_PROPERTY(bool CanRaise MEMBER m_canRaise)

public:
    explicit MediaPlayer(bool canQuit) : m_canQuit(canQuit) {}

    // After the answer was sent.
    Q_SLOT void Quit() {
        QTimer::singleShot(0, [] { QCoreApplication::exit(7); });
    }
    Q_SLOT void Raise() {}

private:
    bool m_canQuit;
    bool m_canRaise = false;
};

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const QString mode = QCoreApplication::arguments().value(1);
    QDBusConnection bus = QDBusConnection::sessionBus();
    const bool isPlayer = mode == u"media-player" || mode == u"stubborn";
    MediaPlayer player(mode == u"media-player");
    bool done = true;
    if (isPlayer)
        done = bus.registerObject(u"/org/mpris/MediaPlayer2"_s, &player,
                                  QDBusConnection::ExportAllSlots |
                                      QDBusConnection::ExportAllProperties) &&
               bus.registerService(u"org.mpris.MediaPlayer2.velmora"_s);
    else
        done = bus.registerService(u"org.example.velmora-%1"_s.arg(getpid()));
    if (mode == u"toolkit")
        done &= bus.registerObject(u"/MainApplication"_s, &application,
                                   QDBusConnection::ExportAllSlots);
    if (!done)
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    while (mode == u"hangs")
        pause();
    return QCoreApplication::exec();
}

#include "BusProgram.moc"
