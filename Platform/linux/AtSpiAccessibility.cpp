// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AtSpiAccessibility.h"

#include "Platform/linux/AccessibilityEventNames.h"
#include "Platform/linux/AtSpiLibrary.h"
#include "Platform/linux/GLibPointer.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QThread>

#include <map>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// How long one question to another program may take, in milliseconds. Also when it has only just
// started: a program that takes longer can be asked again.
constexpr int patience = 500;

// The functions of the library; it is there wherever the bus was connected to.
const AtSpiLibrary &atSpi() {
    return *atSpiLibrary();
}

struct AtSpiDeleter {
    void operator()(gpointer object) const { atSpi().g_object_unref(object); }
    void operator()(AtspiEvent *event) const {
        atSpi().g_boxed_free(atSpi().atspi_event_get_type(), event);
    }
};

template <typename T>
using AtSpiPointer = std::unique_ptr<T, AtSpiDeleter>;

// An error from what the library reported; it need not have reported anything.
Error errorFrom(const char *operation, std::string object, GError *reported) {
    const GLibPointer<GError> owner(reported);
    return {operation, std::move(object), reported ? reported->message : "no answer"};
}

Error applicationError(std::int32_t pid, const char *cause) {
    return {"find user interface of process", std::to_string(pid), cause};
}

bool isOnMainThread() {
    return QCoreApplication::instance() &&
           QThread::currentThread() == QCoreApplication::instance()->thread();
}

// The library itself would end the program where there is no such bus.
bool hasAccessibilityBus() {
    const QDBusConnection session = QDBusConnection::sessionBus();
    if (!session.isConnected())
        return false;
    const QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s);
    const QDBusMessage answer = session.call(question, QDBus::Block, 10 * patience);
    return answer.type() == QDBusMessage::ReplyMessage &&
           !answer.arguments().value(0).toString().isEmpty();
}

Result<void> connectToBus() {
    static bool isConnected = false;
    if (isConnected)
        return {};
    if (!atSpiLibrary())
        return Error{"connect to", "accessibility bus", "the library libatspi is not installed"};
    if (!hasAccessibilityBus())
        return Error{"connect to", "accessibility bus", "there is none"};
    // 1 says that somebody else in this program was here before.
    if (const int status = atSpi().atspi_init(); status != 0 && status != 1)
        return Error{"connect to", "accessibility bus", "refused"};
    atSpi().atspi_set_timeout(patience, patience);
    isConnected = true;
    return {};
}

// The process's root element.
Result<AtSpiPointer<AtspiAccessible>> findApplication(std::int32_t pid) {
    Q_ASSERT(isOnMainThread());
    if (pid <= 0)
        return applicationError(pid, "no such process");
    if (Result<void> connected = connectToBus(); !connected)
        return connected.error();
    const AtSpiPointer<AtspiAccessible> desktop(atSpi().atspi_get_desktop(0));
    if (!desktop)
        return applicationError(pid, "no desktop");
    GError *error = nullptr;
    const int count = atSpi().atspi_accessible_get_child_count(desktop.get(), &error);
    if (error)
        return errorFrom("list", "user interfaces", error);
    for (int index = 0; index < count; ++index) {
        // One that cannot be asked is not the one: its process would have been told by the bus.
        AtSpiPointer<AtspiAccessible> candidate(
            atSpi().atspi_accessible_get_child_at_index(desktop.get(), index, nullptr));
        if (candidate && atSpi().atspi_accessible_get_process_id(candidate.get(), nullptr) ==
                             static_cast<guint>(pid))
            return candidate;
    }
    return applicationError(pid, "it shows none");
}

// The element in words: role and name.
QString describe(AtspiAccessible *element) {
    if (!element)
        return {};
    const GLibPointer<gchar> role(atSpi().atspi_accessible_get_role_name(element, nullptr));
    const GLibPointer<gchar> name(atSpi().atspi_accessible_get_name(element, nullptr));
    QString text = role ? QString::fromUtf8(role.get()) : QString();
    if (name && *name)
        text += (text.isEmpty() ? u"\""_s : u" \""_s) + QString::fromUtf8(name.get()) + u'"';
    return text;
}

bool belongTogether(AtspiAccessible *one, AtspiAccessible *other) {
    const AtspiApplication *const first = one ? one->parent.app : nullptr;
    const AtspiApplication *const second = other ? other->parent.app : nullptr;
    return first && second && first->bus_name && second->bus_name &&
           std::string_view(first->bus_name) == second->bus_name;
}

// One notification that somebody asked for. Its address is known to the library, so it stays where
// it is.
class Registration {
public:
    Registration(AtspiAccessible *application, AccessibilityObserver::Handler handler,
                 QString notification, AccessibilityEvent event)
        : m_application(application)
        , m_handler(std::move(handler))
        , m_notification(std::move(notification))
        , m_event(std::move(event))
        , m_listener(atSpi().atspi_event_listener_new(deliver, this, nullptr)) {}

    Registration(const Registration &) = delete;
    Registration &operator=(const Registration &) = delete;

    ~Registration() {
        atSpi().atspi_event_listener_deregister(m_listener.get(), m_event.type.constData(),
                                                nullptr);
    }

    Result<void> start() {
        GError *error = nullptr;
        if (!atSpi().atspi_event_listener_register_with_app(
                m_listener.get(), m_event.type.constData(), nullptr, m_application, &error))
            return errorFrom("register for", m_event.type.toStdString(), error);
        return {};
    }

private:
    static void deliver(AtspiEvent *given, void *registration) {
        const AtSpiPointer<AtspiEvent> event(given);
        const auto *self = static_cast<const Registration *>(registration);
        // The registry tells every listener of a kind of event about every program.
        if (!belongTogether(event->source, self->m_application) ||
            (self->m_event.onlyWhen && *self->m_event.onlyWhen != event->detail1))
            return;
        // The handler may end the observation, so that nothing of it is touched afterwards.
        const AccessibilityObserver::Handler handler = self->m_handler;
        const QString notification = self->m_notification;
        handler(describe(event->source), notification);
    }

    AtspiAccessible *m_application;
    AccessibilityObserver::Handler m_handler;
    QString m_notification;
    AccessibilityEvent m_event;
    AtSpiPointer<AtspiEventListener> m_listener;
};

class AtSpiObserver final : public AccessibilityObserver {
public:
    AtSpiObserver(AtSpiPointer<AtspiAccessible> application, Handler handler)
        : m_application(std::move(application))
        , m_handler(std::move(handler)) {}

    Result<void> addNotification(const QString &notification) override {
        Q_ASSERT(isOnMainThread());
        if (m_registrations.contains(notification))
            return {};
        const std::optional<AccessibilityEvent> event = accessibilityEventFor(notification);
        if (!event)
            return Error{"register for", notification.toStdString(), "no such notification"};
        auto registration =
            std::make_unique<Registration>(m_application.get(), m_handler, notification, *event);
        if (Result<void> started = registration->start(); !started)
            return started;
        m_registrations.emplace(notification, std::move(registration));
        return {};
    }

    void removeNotification(const QString &notification) override {
        Q_ASSERT(isOnMainThread());
        m_registrations.erase(notification);
    }

private:
    AtSpiPointer<AtspiAccessible> m_application;
    Handler m_handler;
    std::map<QString, std::unique_ptr<Registration>> m_registrations;
};

} // namespace

Result<void> AtSpiAccessibility::checkApplication(std::int32_t pid) {
    const Result<AtSpiPointer<AtspiAccessible>> application = findApplication(pid);
    return application ? Result<void>() : application.error();
}

Result<std::unique_ptr<AccessibilityObserver>>
AtSpiAccessibility::observeApplication(std::int32_t pid, AccessibilityObserver::Handler handler) {
    const QAbstractEventDispatcher *const dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher || !dispatcher->inherits("QEventDispatcherGlib"))
        return applicationError(pid, "this program's event loop cannot receive its events");
    Result<AtSpiPointer<AtspiAccessible>> application = findApplication(pid);
    if (!application)
        return application.error();
    return std::unique_ptr<AccessibilityObserver>(
        std::make_unique<AtSpiObserver>(std::move(*application), std::move(handler)));
}

} // namespace zt
