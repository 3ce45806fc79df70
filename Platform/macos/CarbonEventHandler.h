#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Events of the Carbon Event Manager.

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace zt {

struct CarbonEventType {
    std::uint32_t eventClass = 0; // a four-character code
    std::uint32_t eventKind = 0;
};

// An installed handler. Destroy it to remove it, which it may do itself while it is called.
// Thread: main, for all operations.
class CarbonEventHandler {
public:
    enum class Target {
        Application, // events sent to this application
        Dispatcher,  // every event on its way to whatever in this application it is for
    };

    // Answers the native error, or that the event was not handled and is to travel on.
    using Handler = std::function<std::int32_t(CarbonEventType)>;

    // Calls the handler for each event of the wanted types. Null when the system refuses.
    static std::unique_ptr<CarbonEventHandler>
    install(Target target, std::span<const CarbonEventType> wanted, Handler handler);

    ~CarbonEventHandler();
    CarbonEventHandler(const CarbonEventHandler &) = delete;
    CarbonEventHandler &operator=(const CarbonEventHandler &) = delete;

private:
    struct Native;

    explicit CarbonEventHandler(Handler handler);

    Handler m_handler;
    std::unique_ptr<Native> m_native;
};

} // namespace zt
