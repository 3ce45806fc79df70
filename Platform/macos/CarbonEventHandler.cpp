// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CarbonEventHandler.h"

#include <Carbon/Carbon.h>

#include <utility>
#include <vector>

namespace zt {

struct CarbonEventHandler::Native {
    // The copy lives on when the handler removes itself.
    static OSStatus call(EventHandlerCallRef /*next*/, EventRef event, void *context) noexcept {
        const Handler handler = static_cast<CarbonEventHandler *>(context)->m_handler;
        return handler({.eventClass = GetEventClass(event), .eventKind = GetEventKind(event)});
    }

    EventHandlerRef reference = nullptr;
};

CarbonEventHandler::CarbonEventHandler(Handler handler)
    : m_handler(std::move(handler))
    , m_native(std::make_unique<Native>()) {}

std::unique_ptr<CarbonEventHandler>
CarbonEventHandler::install(Target target, std::span<const CarbonEventType> wanted,
                            Handler handler) {
    std::vector<EventTypeSpec> types;
    types.reserve(wanted.size());
    for (const CarbonEventType &type : wanted)
        types.push_back({type.eventClass, type.eventKind});
    std::unique_ptr<CarbonEventHandler> installed(new CarbonEventHandler(std::move(handler)));
    const OSStatus status = InstallEventHandler(
        target == Target::Application ? GetApplicationEventTarget() : GetEventDispatcherTarget(),
        &Native::call, ItemCount(types.size()), types.data(), installed.get(),
        &installed->m_native->reference);
    if (status != noErr)
        return nullptr;
    return installed;
}

CarbonEventHandler::~CarbonEventHandler() {
    if (m_native->reference)
        RemoveEventHandler(m_native->reference);
}

} // namespace zt
