#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// AppKit.

#include <ApplicationServices/ApplicationServices.h>
#include <Foundation/Foundation.h>

#ifdef __OBJC__

using CGFloat = double;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
struct CGSize {
    CGFloat width;
    CGFloat height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};
using NSPoint = CGPoint;
using NSSize = CGSize;
using NSRect = CGRect;
inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}
inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
    return {width, height};
}

extern "C" const double NSAppKitVersionNumber;
extern "C" void NSBeep();

using NSAppearanceName = NSString *;
extern "C" NSAppearanceName const NSAppearanceNameAqua;
extern "C" NSAppearanceName const NSAppearanceNameDarkAqua;

@interface NSAppearance : NSObject
@property(class, strong) NSAppearance *currentAppearance;
- (NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName> *)names;
@end

@interface NSApplication : NSObject
@property(class, readonly, strong) NSApplication *sharedApplication;
@property(readonly, strong) NSAppearance *effectiveAppearance;
@end

using NSControlTint = NSUInteger;
enum : NSControlTint { NSBlueControlTint = 1, NSGraphiteControlTint = 6 };
extern "C" NSNotificationName const NSControlTintDidChangeNotification;
extern "C" NSNotificationName const NSSystemColorsDidChangeNotification;

@interface NSColorSpace : NSObject
@property(class, readonly, strong) NSColorSpace *sRGBColorSpace;
@end

@interface NSColor : NSObject
@property(class, readonly) NSControlTint currentControlTint;
@property(class, readonly, strong) NSColor *controlAccentColor;
- (NSColor *)colorUsingColorSpace:(NSColorSpace *)space;
@property(readonly) CGFloat redComponent;
@property(readonly) CGFloat greenComponent;
@property(readonly) CGFloat blueComponent;
@end

@interface NSImageRep : NSObject
@end
@interface NSImage : NSObject
- (CGImageRef)CGImageForProposedRect:(NSRect *)rectangle context:(id)context hints:(id)hints;
@end
using NSBitmapImageFileType = NSUInteger;
enum : NSBitmapImageFileType { NSBitmapImageFileTypePNG = 4 };
using NSBitmapImageRepPropertyKey = NSString *;
@interface NSBitmapImageRep : NSImageRep
- (instancetype)initWithCGImage:(CGImageRef)image;
- (NSData *)representationUsingType:(NSBitmapImageFileType)type
                         properties:(NSDictionary<NSBitmapImageRepPropertyKey, id> *)properties;
@end

using NSWorkspaceFileOperationName = NSString *;
extern "C" NSWorkspaceFileOperationName const NSWorkspaceRecycleOperation;
extern NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace *sharedWorkspace;
@property(readonly, strong) NSNotificationCenter *notificationCenter;
@property(readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
- (BOOL)openFile:(NSString *)path;
- (BOOL)openURL:(NSURL *)url;
- (NSImage *)iconForFile:(NSString *)path;
- (void)noteFileSystemChanged:(NSString *)path;
- (BOOL)performFileOperation:(NSWorkspaceFileOperationName)operation
                      source:(NSString *)source
                 destination:(NSString *)destination
                       files:(NSArray *)files
                         tag:(NSInteger *)tag;
@end

@interface NSRunningApplication : NSObject
+ (instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
@property(readonly, getter=isTerminated) BOOL terminated;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end

@interface NSPasteboard : NSObject
@property(class, readonly, strong) NSPasteboard *generalPasteboard;
@property(readonly) NSInteger changeCount;
@end

using NSSoundPlaybackDeviceIdentifier = NSString *;
@class NSSound;
@protocol NSSoundDelegate <NSObject>
@optional
- (void)sound:(NSSound *)sound didFinishPlaying:(BOOL)completely;
@end
@interface NSSound : NSObject
- (instancetype)initWithData:(NSData *)data;
- (BOOL)play;
- (BOOL)stop;
@property float volume;
@property(copy) NSSoundPlaybackDeviceIdentifier playbackDeviceIdentifier;
@property(readonly) NSTimeInterval duration;
@property(weak) id<NSSoundDelegate> delegate;
@end

using NSWindowOrderingMode = NSInteger;
enum : NSWindowOrderingMode { NSWindowAbove = 1, NSWindowBelow = -1 };
using NSVisualEffectBlendingMode = NSInteger;
enum : NSVisualEffectBlendingMode { NSVisualEffectBlendingModeBehindWindow = 0 };
using NSVisualEffectState = NSInteger;
enum : NSVisualEffectState { NSVisualEffectStateFollowsWindowActiveState = 0 };
@class NSWindow;
@interface NSView : NSObject
- (instancetype)initWithFrame:(NSRect)frame;
@property(readonly, copy) NSArray<__kindof NSView *> *subviews;
@property(readonly, strong) NSView *superview;
@property(readonly, strong) NSWindow *window;
@property NSRect frame;
@property(readonly) NSRect bounds;
@property(readonly, getter=isFlipped) BOOL flipped;
- (void)addSubview:(NSView *)view positioned:(NSWindowOrderingMode)place relativeTo:(NSView *)other;
- (void)removeFromSuperview;
@end
@interface NSVisualEffectView : NSView
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
@end
@interface NSWindow : NSObject
@property(readonly) CGFloat backingScaleFactor;
@property(strong) __kindof NSView *contentView;
@property(getter=isOpaque) BOOL opaque;
@end

#endif
