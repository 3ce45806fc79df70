#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Windows on an X server, through the hints that window managers keep.

#include "Platform/WindowSystem.h"

#include <memory>
#include <mutex>
#include <vector>

namespace zt {

class X11ChangeListener;
class X11ClientWindows;
class X11Connection;
struct X11ClientWindow;

class X11WindowSystem final : public WindowSystem {
public:
    // The first question connects to the server that DISPLAY names. Where there is none, every
    // answer is the neutral one, for good.
    X11WindowSystem();
    ~X11WindowSystem() override;
    X11WindowSystem(const X11WindowSystem &) = delete;
    X11WindowSystem &operator=(const X11WindowSystem &) = delete;

    QList<std::int32_t> processesWithWindows() const override;
    std::optional<std::int32_t> frontProcess() const override;
    void bringToFront(std::int32_t pid, Windows which) override;
    void setHidden(std::int32_t pid, bool hidden) override;
    int requestClose(std::int32_t pid) override;
    void setChangeListeners(std::function<void()> frontChanged,
                            std::function<void()> windowsChanged) override;
    bool blurBehind(std::uint64_t window, const QList<QRect> &parts) override;

private:
    X11Connection *connection() const;
    std::vector<X11ClientWindow> windowsOf(std::int32_t pid) const;

    mutable std::mutex m_mutex; // guards the next two
    // Not there before the first question; null without a server.
    mutable std::optional<std::unique_ptr<X11Connection>> m_connection;
    mutable std::unique_ptr<X11ClientWindows> m_clientWindows; // with the connection
    std::unique_ptr<X11ChangeListener> m_changeListener;       // while somebody listens
    std::optional<std::int32_t> m_frontProcess; // the last one that listeners know of
};

} // namespace zt
