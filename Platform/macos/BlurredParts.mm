// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/BlurredParts.h"

#include "Platform/macos/BlurredPart.h"

#import <AppKit/AppKit.h>

// A class of its own tells the parts made here from all other views.
@interface VelmoraBlurredPart : NSVisualEffectView
@end
@implementation VelmoraBlurredPart
@end

namespace zt {

namespace {

NSView *viewOf(std::uint64_t window) {
    return (__bridge NSView *)reinterpret_cast<void *>(window);
}

void removePartsFrom(NSView *container) {
    for (NSView *view in [container.subviews copy]) {
        if ([view isKindOfClass:[VelmoraBlurredPart class]])
            [view removeFromSuperview];
    }
}

void addPart(const QRect &pixels, NSView *container, NSView *content) {
    const PlacedPart place = placedPart(pixels, {.scale = content.window.backingScaleFactor,
                                                 .height = container.bounds.size.height,
                                                 .isFlipped = container.flipped != NO});
    VelmoraBlurredPart *const part = [[VelmoraBlurredPart alloc]
        initWithFrame:NSMakeRect(place.x, place.y, place.width, place.height)];
    part.blendingMode = NSVisualEffectBlendingModeBehindWindow;
    part.state = NSVisualEffectStateFollowsWindowActiveState;
    [container addSubview:part positioned:NSWindowBelow relativeTo:content];
}

} // namespace

bool blurPartsOfWindow(std::uint64_t window, const QList<QRect> &parts) {
    @autoreleasepool {
        NSView *const content = viewOf(window);
        NSView *const container = content.superview;
        if (!container || !content.window)
            return false;
        removePartsFrom(container);
        for (const QRect &pixels : parts)
            addPart(pixels, container, content);
        return true;
    }
}

} // namespace zt
