// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11MenuBarEvents.h"

#include "Platform/linux/X11FullScreenWatch.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace zt {

X11MenuBarEvents::X11MenuBarEvents() = default;

X11MenuBarEvents::~X11MenuBarEvents() = default;

bool X11MenuBarEvents::installHandler(std::span<const Type> wanted, Handler handler) {
    const QCoreApplication *const application = QCoreApplication::instance();
    // Without an event loop nothing could be delivered.
    if (!application)
        return false;
    Q_ASSERT(QThread::currentThread() == application->thread());
    if (!m_watch) {
        m_watch = X11FullScreenWatch::start(
            [this](bool isFullScreen) { tell(isFullScreen ? hidden : shown); });
    }
    if (!m_watch)
        return false;
    m_handlers.insert(m_handlers.begin(), {{wanted.begin(), wanted.end()}, std::move(handler)});
    return true;
}

void X11MenuBarEvents::tell(Type event) const {
    // A handler may install another.
    const std::vector<Installed> handlers = m_handlers;
    for (const Installed &entry : handlers) {
        if (std::ranges::find(entry.wanted, event) != entry.wanted.end() &&
            entry.handler(event) != notHandled)
            return;
    }
}

} // namespace zt
