#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Foundation.

#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>
#include <dispatch/dispatch.h>

#ifdef __OBJC__

using BOOL = signed char;
using NSInteger = long;
using NSUInteger = unsigned long;
using NSTimeInterval = double;
using unichar = unsigned short;
#define YES BOOL(1)
#define NO BOOL(0)
#ifndef nil
#define nil nullptr
#endif

@class NSArray<ObjectType>, NSData, NSDate, NSDictionary<KeyType, ObjectType>, NSError, NSString,
    NSURL;

@protocol NSObject
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)isEqual:(id)other;
@end

struct NSFastEnumerationState {
    unsigned long state;
    id __unsafe_unretained *itemsPtr;
    unsigned long *mutationsPtr;
    unsigned long extra[5];
};
@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id __unsafe_unretained[])buffer
                                    count:(NSUInteger)count;
@end

@interface NSObject <NSObject>
+ (instancetype)alloc;
+ (Class)class;
- (instancetype)init;
- (id)copy;
@end

@protocol NSCopying
@end

@interface NSString : NSObject <NSCopying>
@property(readonly) NSUInteger length;
- (NSString *)stringByDeletingLastPathComponent;
@property(readonly, copy) NSString *lastPathComponent;
@end

@interface NSNumber : NSObject
+ (NSNumber *)numberWithInteger:(NSInteger)value;
@property(readonly) NSInteger integerValue;
@end

@interface NSArray<__covariant ObjectType> : NSObject <NSFastEnumeration>
+ (instancetype)arrayWithObjects:(const ObjectType[])objects count:(NSUInteger)count;
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)index;
@property(readonly) ObjectType firstObject;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (void)addObject:(ObjectType)object;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
+ (instancetype)dictionaryWithObjects:(const ObjectType[])objects
                              forKeys:(const KeyType<NSCopying>[])keys
                                count:(NSUInteger)count;
@end

@interface NSData : NSObject
+ (instancetype)dataWithBytes:(const void *)bytes length:(NSUInteger)length;
@property(readonly) NSUInteger length;
@property(readonly) const void *bytes;
@end

@interface NSError : NSObject
@property(readonly) NSInteger code;
@property(readonly, copy) NSString *localizedDescription;
@end

@interface NSException : NSObject
@property(readonly, copy) NSString *name;
@property(readonly, copy) NSString *reason;
@end

@interface NSURL : NSObject
+ (instancetype)URLWithString:(NSString *)text;
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle *mainBundle;
+ (instancetype)bundleWithPath:(NSString *)path;
@property(readonly, copy) NSString *bundlePath;
@property(readonly, copy) NSString *resourcePath;
@property(readonly, copy) NSString *executablePath;
@end

using NSSearchPathDirectory = NSUInteger;
using NSSearchPathDomainMask = NSUInteger;
enum : NSSearchPathDirectory { NSApplicationDirectory = 1 };
enum : NSSearchPathDomainMask { NSUserDomainMask = 1, NSLocalDomainMask = 2 };
extern "C" NSArray<NSString *> *NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory,
                                                                    NSSearchPathDomainMask domain,
                                                                    BOOL expandTilde);
extern "C" Class NSClassFromString(NSString *name);
extern "C" void NSLog(NSString *format, ...) __attribute__((format(__NSString__, 1, 2)));

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager *defaultManager;
- (NSString *)displayNameAtPath:(NSString *)path;
- (NSString *)stringWithFileSystemRepresentation:(const char *)bytes length:(NSUInteger)length;
@end

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults *standardUserDefaults;
- (void)addSuiteNamed:(NSString *)name;
- (id)objectForKey:(NSString *)key;
@end

@interface NSFileHandle : NSObject
@property(class, readonly, strong) NSFileHandle *fileHandleWithNullDevice;
- (instancetype)initWithFileDescriptor:(int)descriptor closeOnDealloc:(BOOL)closes;
- (NSData *)readDataToEndOfFile;
@end

@interface NSPipe : NSObject
+ (NSPipe *)pipe;
@property(readonly, strong) NSFileHandle *fileHandleForReading;
@end

@interface NSTask : NSObject
@property(copy) NSString *launchPath;
@property(copy) NSArray<NSString *> *arguments;
@property(copy) NSString *currentDirectoryPath;
@property(strong) id standardInput;
@property(strong) id standardOutput;
@property(strong) id standardError;
@property(readonly) int processIdentifier;
@property(readonly, getter=isRunning) BOOL running;
@property(copy) void (^terminationHandler)(NSTask *);
- (void)launch;
- (void)terminate;
@end

@interface NSNotification : NSObject
@end
using NSNotificationName = NSString *;

@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter *defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(NSNotificationName)name
             object:(id)object;
- (void)removeObserver:(id)observer;
@end

@interface NSDistributedNotificationCenter : NSNotificationCenter
+ (NSDistributedNotificationCenter *)defaultCenter;
@end

@interface NSThread : NSObject
@property(class, readonly) BOOL isMainThread;
@end

#endif
