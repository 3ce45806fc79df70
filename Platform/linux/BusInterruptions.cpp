// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BusInterruptions.h"

#include "Platform/Log.h"
#include "Platform/linux/GLibPointer.h"
#include "Platform/linux/GioLibrary.h"
#include "Platform/posix/BlockedSignals.h"

#include <QByteArray>

#include <array>
#include <string>
#include <thread>
#include <utility>

namespace zt {

namespace {

constexpr int patience = 5000; // milliseconds, for one answer

constexpr const char *programName = "Velmora Installer";
constexpr const char *programIdentifier = "com.velmora.VelmoraInstaller";

// What the portal and the session manager are asked for have different numbers.
constexpr guint32 portalLogOut = 1;
constexpr guint32 portalSuspend = 4;
constexpr guint32 sessionLogOut = 1;
constexpr guint32 sessionSuspend = 4;

// A request to one of the services that can hold something off.
struct Request {
    const char *service;
    const char *path;
    const char *interface;
    GLibPointer<GVariant> parameters;
};

// A new value begins without an owner.
GLibPointer<GVariant> owned(GVariant *value) {
    return GLibPointer<GVariant>(g_variant_ref_sink(value));
}

Request loginManagerRequest(const char *reason) {
    return {"org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager",
            owned(g_variant_new("(ssss)", "sleep:shutdown", programName, reason, "block"))};
}

// The desktops' services, the best first.
std::array<Request, 3> desktopRequests(const char *reason) {
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "reason", g_variant_new_string(reason));
    return {
        Request{"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                "org.freedesktop.portal.Inhibit",
                owned(g_variant_new("(sua{sv})", "", portalLogOut | portalSuspend, &options))},
        Request{"org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager",
                owned(g_variant_new("(susu)", programIdentifier, guint32{0}, reason,
                                    sessionLogOut | sessionSuspend))},
        Request{"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
                "org.freedesktop.PowerManagement.Inhibit",
                owned(g_variant_new("(ss)", programName, reason))},
    };
}

class BusHold final : public InterruptionHold {
public:
    BusHold(const GioLibrary &gio, Log &log, QByteArray reason)
        : m_gio(gio)
        , m_log(log)
        , m_reason(std::move(reason)) {
        const BlockedSignals blocked; // also in the thread, which begins with the same
        m_thread = std::jthread([this] { ask(); });
    }

    // What was got is given back by closing the connection and the descriptor: then also nothing is
    // held off any more for a program that has crashed.
    ~BusHold() override { m_gio.g_cancellable_cancel(m_canceled.get()); }

    BusHold(const BusHold &) = delete;
    BusHold &operator=(const BusHold &) = delete;

private:
    void ask();
    void askLoginManager();
    void askDesktop();
    GioPointer<GDBusConnection> connect(GBusType bus);
    GLibPointer<GVariant> call(GDBusConnection *connection, const Request &request,
                               GUnixFDList **descriptors = nullptr);
    void noteFailure(GError *error);

    const GioLibrary &m_gio;
    Log &m_log;
    const QByteArray m_reason;
    const GioPointer<GCancellable> m_canceled{m_gio.g_cancellable_new()};
    std::string m_lastFailure; // the thread's own, as are the next two until it has ended
    GioPointer<GUnixFDList> m_loginManagersDescriptor;
    GioPointer<GDBusConnection> m_session;
    std::jthread m_thread; // ends before the others go
};

class NoHold final : public InterruptionHold {};

void BusHold::ask() {
    askLoginManager();
    if (!m_gio.g_cancellable_is_cancelled(m_canceled.get()))
        askDesktop();
}

void BusHold::askLoginManager() {
    const GioPointer<GDBusConnection> system = connect(G_BUS_TYPE_SYSTEM);
    GUnixFDList *descriptors = nullptr;
    const Request request = loginManagerRequest(m_reason.constData());
    const bool isHeld = system && call(system.get(), request, &descriptors) && descriptors;
    m_loginManagersDescriptor.reset(descriptors);
    if (!isHeld && !m_gio.g_cancellable_is_cancelled(m_canceled.get()))
        m_log.writeLine("sleep is not held off: " + m_lastFailure);
}

void BusHold::askDesktop() {
    GioPointer<GDBusConnection> session = connect(G_BUS_TYPE_SESSION);
    if (session) {
        for (const Request &request : desktopRequests(m_reason.constData())) {
            if (call(session.get(), request)) {
                m_session = std::move(session);
                return;
            }
        }
    }
    if (!m_gio.g_cancellable_is_cancelled(m_canceled.get()))
        m_log.writeLine("log-out is not held off: " + m_lastFailure);
}

// A connection of this hold's own: the services take its end for the end of the hold.
GioPointer<GDBusConnection> BusHold::connect(GBusType bus) {
    GError *error = nullptr;
    const GLibPointer<gchar> address(
        m_gio.g_dbus_address_get_for_bus_sync(bus, m_canceled.get(), &error));
    GDBusConnection *connection = nullptr;
    if (address) {
        connection = m_gio.g_dbus_connection_new_for_address_sync(
            address.get(),
            GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                 G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
            nullptr, m_canceled.get(), &error);
    }
    noteFailure(error);
    return GioPointer<GDBusConnection>(connection);
}

GLibPointer<GVariant> BusHold::call(GDBusConnection *connection, const Request &request,
                                    GUnixFDList **descriptors) {
    GError *error = nullptr;
    GLibPointer<GVariant> answer(m_gio.g_dbus_connection_call_with_unix_fd_list_sync(
        connection, request.service, request.path, request.interface, "Inhibit",
        request.parameters.get(), nullptr, G_DBUS_CALL_FLAGS_NONE, patience, nullptr, descriptors,
        m_canceled.get(), &error));
    noteFailure(error);
    return answer;
}

void BusHold::noteFailure(GError *error) {
    const GLibPointer<GError> failure(error);
    if (failure)
        m_lastFailure = failure->message;
}

} // namespace

std::unique_ptr<InterruptionHold> BusInterruptions::holdOff(const QString &reason) {
    const GioLibrary *const gio = gioLibrary();
    if (gio)
        return std::make_unique<BusHold>(*gio, m_log, reason.toUtf8());
    m_log.writeLine("sleep and log-out are not held off: the library libgio is not installed");
    return std::make_unique<NoHold>();
}

} // namespace zt
