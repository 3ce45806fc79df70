// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppKitAppearance.h"

#include "Platform/macos/AppearanceAnswers.h"
#include "Platform/macos/FoundationText.h"

#import <AppKit/AppKit.h>

#include <map>
#include <utility>

// Hears of changes and tells of them. It goes on living while one is on its way, without telling.
@interface VelmoraAppearanceObserver : NSObject {
    std::function<void()> _changed;
}
- (instancetype)initWithFunction:(std::function<void()>)changed;
- (void)appearanceChanged:(NSNotification *)notification;
- (void)stop;
@end

@implementation VelmoraAppearanceObserver

- (instancetype)initWithFunction:(std::function<void()>)changed {
    self = [super init];
    if (self) {
        _changed = std::move(changed);
        const SEL selector = @selector(appearanceChanged:);
        [[NSDistributedNotificationCenter defaultCenter]
            addObserver:self
               selector:selector
                   name:@"AppleInterfaceThemeChangedNotification"
                 object:nil];
        for (NSNotificationName name in
             @[ NSControlTintDidChangeNotification, NSSystemColorsDidChangeNotification ])
            [[NSNotificationCenter defaultCenter] addObserver:self
                                                     selector:selector
                                                         name:name
                                                       object:nil];
        [[NSWorkspace sharedWorkspace].notificationCenter
            addObserver:self
               selector:selector
                   name:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                 object:nil];
    }
    return self;
}

- (void)appearanceChanged:(NSNotification *)notification {
    // The application itself has taken on the new appearance one turn of the main loop later.
    dispatch_async(dispatch_get_main_queue(), ^{
      if (self->_changed)
          self->_changed();
    });
}

- (void)stop {
    _changed = nullptr;
    [[NSDistributedNotificationCenter defaultCenter] removeObserver:self];
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [[NSWorkspace sharedWorkspace].notificationCenter removeObserver:self];
}

@end

namespace zt {

struct AppKitAppearance::Watch {
    Watch() : observer([[VelmoraAppearanceObserver alloc] initWithFunction:[this] { tell(); }]) {}
    ~Watch() { [observer stop]; }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    // Listeners may come and go while they are told.
    void tell() {
        const std::map<const void *, std::function<void()>> told = listeners;
        for (const auto &[owner, changed] : told) {
            if (listeners.contains(owner))
                changed();
        }
    }

    std::map<const void *, std::function<void()>> listeners;
    VelmoraAppearanceObserver *const observer;
};

AppKitAppearance::AppKitAppearance() = default;
AppKitAppearance::~AppKitAppearance() = default;

std::optional<Appearance::Scheme> AppKitAppearance::preferredScheme() const {
    @autoreleasepool {
        NSAppearance *const appearance = [NSApplication sharedApplication].effectiveAppearance;
        NSAppearanceName const match = [appearance
            bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
        return schemeOfAppearance(textOf(match), textOf(NSAppearanceNameAqua),
                                  textOf(NSAppearanceNameDarkAqua));
    }
}

bool AppKitAppearance::prefersMoreContrast() const {
    return [NSWorkspace sharedWorkspace].accessibilityDisplayShouldIncreaseContrast;
}

Appearance::ControlTint AppKitAppearance::controlTint() const {
    return controlTintOf([NSColor currentControlTint]);
}

std::optional<AccentColor> AppKitAppearance::accentColor() const {
    @autoreleasepool {
        NSColor *const color =
            [[NSColor controlAccentColor] colorUsingColorSpace:[NSColorSpace sRGBColorSpace]];
        if (!color)
            return std::nullopt;
        return AccentColor{
            .red = color.redComponent, .green = color.greenComponent, .blue = color.blueComponent};
    }
}

void AppKitAppearance::setChangeListener(const void *owner, std::function<void()> changed) {
    if (!m_watch)
        m_watch = std::make_unique<Watch>();
    if (changed)
        m_watch->listeners.insert_or_assign(owner, std::move(changed));
    else
        m_watch->listeners.erase(owner);
}

} // namespace zt
