#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Windows of other programs, by process: which process is in front, bringing forward, hiding,
// asking to close. And what shows behind a window of this one.

#include <QList>
#include <QRect>

#include <cstdint>
#include <functional>
#include <optional>

namespace zt {

// Where there is no window system that can be asked (a console, a compositor that keeps its windows
// to itself), lists are empty, questions have no answer and requests do nothing. Thread: any,
// except where said.
class WindowSystem {
public:
    enum class Windows { All, FrontOnly };

    virtual ~WindowSystem() = default;

    // The ids of the processes on this machine that own a top-level window, each once.
    virtual QList<std::int32_t> processesWithWindows() const = 0;

    // The process that owns the active window.
    virtual std::optional<std::int32_t> frontProcess() const = 0;

    // Brings the process's windows before all others and gives the foremost of them the keyboard.
    // Windows that are minimised come back.
    virtual void bringToFront(std::int32_t pid, Windows windows) = 0;

    // Minimises all of the process's windows, or brings them back.
    virtual void setHidden(std::int32_t pid, bool hidden) = 0;

    // Asks each of the process's windows to close, as its close button would; the program may ask
    // its user first. Answers how many windows were asked.
    virtual int requestClose(std::int32_t pid) = 0;

    // Calls the listeners on the main thread when another process comes to the front, and when the
    // set of processes that own windows may have changed. Empty functions end that. Thread: main.
    virtual void setChangeListeners(std::function<void()> frontChanged,
                                    std::function<void()> windowsChanged) = 0;

    // Asks that what is behind these parts of a translucent window of this program shows through
    // blurred; no parts end that. In pixels of the window, whose number is the window system's own.
    // False where the compositor does not offer it.
    virtual bool blurBehind(std::uint64_t window, const QList<QRect> &parts) = 0;

protected:
    WindowSystem() = default;
    WindowSystem(const WindowSystem &) = default;
    WindowSystem &operator=(const WindowSystem &) = default;
};

} // namespace zt
