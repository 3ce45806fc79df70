// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CarbonMenuBarEvents.h"

#include <Carbon/Carbon.h>

#include <utility>

namespace zt {

static_assert(MenuBarEvents::menuClass == kEventClassMenu);
static_assert(MenuBarEvents::shown.eventKind == kEventMenuBarShown);
static_assert(MenuBarEvents::hidden.eventKind == kEventMenuBarHidden);
static_assert(MenuBarEvents::handled == noErr);
static_assert(MenuBarEvents::notHandled == eventNotHandledErr);

bool CarbonMenuBarEvents::installHandler(std::span<const Type> wanted, Handler handler) {
    std::vector<CarbonEventType> types;
    types.reserve(wanted.size());
    for (const Type &type : wanted)
        types.push_back({type.eventClass, type.eventKind});
    auto installed = CarbonEventHandler::install(
        CarbonEventHandler::Target::Dispatcher, types,
        [handler = std::move(handler)](CarbonEventType event) {
            return handler({.eventClass = event.eventClass, .eventKind = event.eventKind});
        });
    if (!installed)
        return false;
    m_handlers.push_back(std::move(installed));
    return true;
}

} // namespace zt
