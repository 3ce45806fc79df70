#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Windows of other programs for unit tests.

#include "Platform/WindowSystem.h"

#include <map>

// Holds what the test puts in, and records what is asked of it.
class FakeWindowSystem final : public zt::WindowSystem {
public:
    QList<std::int32_t> processesWithWindows() const override { return owners; }
    std::optional<std::int32_t> frontProcess() const override { return front; }
    void bringToFront(std::int32_t pid, Windows windows) override {
        broughtToFront << pid;
        whichWindows << windows;
        if (whenBroughtToFront)
            whenBroughtToFront(pid);
    }
    void setHidden(std::int32_t pid, bool hidden) override {
        (hidden ? hiddenProcesses : shownProcesses) << pid;
    }
    int requestClose(std::int32_t pid) override {
        closeRequests << pid;
        return static_cast<int>(owners.count(pid));
    }
    void setChangeListeners(std::function<void()> frontChanged,
                            std::function<void()> windowsChanged) override {
        tellFrontChanged = std::move(frontChanged);
        tellWindowsChanged = std::move(windowsChanged);
    }
    bool blurBehind(std::uint64_t window, const QList<QRect> &parts) override {
        blurred[window] = parts;
        return true;
    }

    QList<std::int32_t> owners;
    std::optional<std::int32_t> front;
    QList<std::int32_t> broughtToFront;
    QList<Windows> whichWindows;
    std::function<void(std::int32_t)> whenBroughtToFront;
    QList<std::int32_t> hiddenProcesses;
    QList<std::int32_t> shownProcesses;
    QList<std::int32_t> closeRequests;
    std::map<std::uint64_t, QList<QRect>> blurred; // by window, as asked last
    std::function<void()> tellFrontChanged;
    std::function<void()> tellWindowsChanged;
};
