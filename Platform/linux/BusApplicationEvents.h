#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Events to other applications over the session bus, through the interfaces that applications of
// the desktop offer there.

#include "Platform/ApplicationEvents.h"

namespace zt {

// The quit event ('aevt'/'quit') becomes the application's own action of that name, a media
// player's request to quit, or the quit call of the toolkit's application object, whichever the
// target has. Opening ('aevt'/'oapp', 'aevt'/'rapp', 'aevt'/'odoc') and coming to the front
// ('misc'/'actv') become the request to activate: events carry no documents. Other events are
// handled by nobody.
class BusApplicationEvents final : public ApplicationEvents {
public:
    std::int32_t checkAddress(std::int32_t targetPid) override;
    std::int32_t checkEvent(const Event &event) override;
    std::int32_t sendWithoutReply(const Event &event) override;
    std::int32_t sendAndWait(const Event &event, std::int32_t timeoutTicks) override;
};

} // namespace zt
