#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Which applications have windows and which is in front, from the Process Manager and the window
// server.

#include "Platform/WindowSystem.h"
#include "Platform/macos/CarbonEventHandler.h"

#include <memory>

namespace zt {

class CarbonWindowSystem final : public WindowSystem {
public:
    // Lets what is behind the parts of a window of this program show through blurred.
    using Blur = std::function<bool(std::uint64_t window, const QList<QRect> &parts)>;

    explicit CarbonWindowSystem(Blur blur) : m_blur(std::move(blur)) {}

    QList<std::int32_t> processesWithWindows() const override;
    std::optional<std::int32_t> frontProcess() const override;
    void bringToFront(std::int32_t pid, Windows windows) override;
    void setHidden(std::int32_t pid, bool hidden) override;
    // Programs are asked to quit as a whole here, never by their windows: 0 each time.
    int requestClose(std::int32_t pid) override;
    void setChangeListeners(std::function<void()> frontChanged,
                            std::function<void()> windowsChanged) override;
    bool blurBehind(std::uint64_t window, const QList<QRect> &parts) override;

private:
    Blur m_blur;
    std::unique_ptr<CarbonEventHandler> m_events;
};

} // namespace zt
