#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Core Foundation: objects that are counted by hand, and the values of property lists.

#include <cstddef>
#include <cstdint>

using SInt8 = std::int8_t;
using SInt16 = std::int16_t;
using SInt32 = std::int32_t;
using SInt64 = std::int64_t;
using UInt8 = std::uint8_t;
using UInt16 = std::uint16_t;
using UInt32 = std::uint32_t;
using UInt64 = std::uint64_t;
using Boolean = unsigned char;
using UniChar = UInt16;
using UniCharCount = unsigned long;
using OSErr = SInt16;
using OSStatus = SInt32;
using OSType = UInt32;
using FourCharCode = UInt32;
using StringPtr = unsigned char *;
using ConstStringPtr = const unsigned char *;
using pid_t = int;

constexpr OSStatus noErr = 0;

extern "C" {

using CFIndex = long;
using CFTypeID = unsigned long;
using CFHashCode = unsigned long;
using CFOptionFlags = unsigned long;
using CFTypeRef = const void *;
using CFAllocatorRef = const struct __CFAllocator *;
using CFStringRef = const struct __CFString *;
using CFNumberRef = const struct __CFNumber *;
using CFBooleanRef = const struct __CFBoolean *;
using CFDataRef = const struct __CFData *;
using CFDateRef = const struct __CFDate *;
using CFArrayRef = const struct __CFArray *;
using CFDictionaryRef = const struct __CFDictionary *;
using CFMutableDictionaryRef = struct __CFDictionary *;
using CFURLRef = const struct __CFURL *;
using CFErrorRef = struct __CFError *;
using CFRunLoopRef = struct __CFRunLoop *;
using CFRunLoopSourceRef = struct __CFRunLoopSource *;
using CFRunLoopMode = CFStringRef;
using CFPropertyListRef = CFTypeRef;
using CFAbsoluteTime = double;
using CFTimeInterval = double;

struct CFRange {
    CFIndex location;
    CFIndex length;
};
inline CFRange CFRangeMake(CFIndex location, CFIndex length) {
    return {location, length};
}

extern const CFAllocatorRef kCFAllocatorDefault;

CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef reference);
CFTypeID CFGetTypeID(CFTypeRef object);

using CFStringEncoding = UInt32;
enum : CFStringEncoding { kCFStringEncodingUTF8 = 0x08000100 };
CFTypeID CFStringGetTypeID();
CFStringRef CFStringCreateWithCharacters(CFAllocatorRef allocator, const UniChar *characters,
                                         CFIndex count);
CFIndex CFStringGetLength(CFStringRef text);
void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar *characters);
// The text must be written as a literal.
CFStringRef __CFStringMakeConstantString(const char *text);
#define CFSTR(text) __CFStringMakeConstantString("" text "")

using CFNumberType = CFIndex;
enum : CFNumberType { kCFNumberSInt32Type = 3, kCFNumberSInt64Type = 4, kCFNumberFloat64Type = 6 };
CFTypeID CFNumberGetTypeID();
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value);

extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;
CFTypeID CFBooleanGetTypeID();
Boolean CFBooleanGetValue(CFBooleanRef boolean);

CFTypeID CFDataGetTypeID();
CFDataRef CFDataCreate(CFAllocatorRef allocator, const UInt8 *bytes, CFIndex count);
CFIndex CFDataGetLength(CFDataRef data);
const UInt8 *CFDataGetBytePtr(CFDataRef data);

extern const CFTimeInterval kCFAbsoluteTimeIntervalSince1970;
CFTypeID CFDateGetTypeID();
CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef date);

CFTypeID CFArrayGetTypeID();
CFIndex CFArrayGetCount(CFArrayRef array);
const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

struct CFDictionaryKeyCallBacks;
struct CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
CFTypeID CFDictionaryGetTypeID();
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void **keys, const void **values,
                                   CFIndex count, const CFDictionaryKeyCallBacks *keyCallBacks,
                                   const CFDictionaryValueCallBacks *valueCallBacks);
CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary);
const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key);
void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void **keys,
                                  const void **values);

using CFPropertyListFormat = CFIndex;
enum : CFOptionFlags { kCFPropertyListImmutable = 0 };
CFPropertyListRef CFPropertyListCreateWithData(CFAllocatorRef allocator, CFDataRef data,
                                               CFOptionFlags options, CFPropertyListFormat *format,
                                               CFErrorRef *error);
CFStringRef CFErrorCopyDescription(CFErrorRef error);

struct FSRef;
using CFURLPathStyle = CFIndex;
enum : CFURLPathStyle { kCFURLPOSIXPathStyle = 0 };
CFURLRef CFURLCreateWithString(CFAllocatorRef allocator, CFStringRef text, CFURLRef base);
CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef allocator, CFStringRef path,
                                       CFURLPathStyle style, Boolean isDirectory);
CFURLRef CFURLCreateFromFSRef(CFAllocatorRef allocator, const FSRef *item);
Boolean CFURLGetFSRef(CFURLRef url, FSRef *item);
CFStringRef CFURLCopyFileSystemPath(CFURLRef url, CFURLPathStyle style);

CFDictionaryRef CFBundleCopyInfoDictionaryForURL(CFURLRef url);

extern const CFRunLoopMode kCFRunLoopCommonModes;
CFRunLoopRef CFRunLoopGetMain();
void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);

} // extern "C"
