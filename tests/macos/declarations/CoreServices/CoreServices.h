#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Core Services: Gestalt, files and resources, Apple events, Launch Services, key translation.

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

using Ptr = char *;
using Handle = Ptr *;
using Size = long;
using ResType = FourCharCode;
using ResFileRefNum = SInt16;

struct ProcessSerialNumber {
    UInt32 highLongOfPSN;
    UInt32 lowLongOfPSN;
};
enum : UInt32 { kNoProcess = 0, kCurrentProcess = 2 };

enum : OSErr { paramErr = -50, procNotFound = -600, connectionInvalid = -609, resNotFound = -192 };

enum : OSType {
    gestaltSystemVersion = 'sysv',
    gestaltSystemVersionMajor = 'sys1',
    gestaltSystemVersionMinor = 'sys2',
    gestaltSystemVersionBugFix = 'sys3',
};
OSErr Gestalt(OSType selector, SInt32 *response);

// Files and resources.

struct FSRef {
    UInt8 hidden[80];
};
using FSRefPtr = FSRef *;
OSErr FSResolveAliasFile(FSRef *item, Boolean resolveAliasChains, Boolean *targetIsFolder,
                         Boolean *wasAliased);

enum : SInt8 { fsRdPerm = 1 };
ResFileRefNum FSOpenResFile(const FSRef *item, SInt8 permission);
void CloseResFile(ResFileRefNum file);
ResFileRefNum CurResFile();
void UseResFile(ResFileRefNum file);
Handle Get1Resource(ResType type, SInt16 number);
Size GetHandleSize(Handle handle);

// Apple events.

using DescType = ResType;
using AEEventClass = FourCharCode;
using AEEventID = FourCharCode;
using AEReturnID = SInt16;
using AETransactionID = SInt32;
using AESendMode = SInt32;
using AESendPriority = SInt16;
struct AEDesc {
    DescType descriptorType;
    struct OpaqueAEDataStorageType **dataHandle;
};
using AEAddressDesc = AEDesc;
using AppleEvent = AEDesc;
struct AEBuildError {
    UInt32 fError;
    UInt32 fErrorPos;
};
enum : DescType {
    typeNull = 'null',
    typeAppleEvent = 'aevt',
    typeProcessSerialNumber = 'psn ',
    typeKernelProcessID = 'kpid',
};
enum : AEReturnID { kAutoGenerateReturnID = -1 };
enum : AETransactionID { kAnyTransactionID = 0 };
enum : AESendMode {
    kAENoReply = 0x00000001,
    kAEWaitReply = 0x00000003,
    kAENeverInteract = 0x00000010,
    kAEDontReconnect = 0x00000080,
    kAEDontRecord = 0x00001000,
    kAEDontExecute = 0x00002000,
};
enum : AESendPriority { kAENormalPriority = 0, kAEHighPriority = 1 };
enum : SInt32 { kAEDefaultTimeout = -1 };
OSErr AECreateDesc(DescType type, const void *data, Size size, AEDesc *result);
OSErr AEDisposeDesc(AEDesc *descriptor);
OSErr AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEAddressDesc *target,
                         AEReturnID returnID, AETransactionID transactionID, AppleEvent *result);
OSStatus AEBuildAppleEvent(AEEventClass eventClass, AEEventID eventID, DescType addressType,
                           const void *address, Size addressSize, SInt16 returnID,
                           SInt32 transactionID, AppleEvent *result, AEBuildError *error,
                           const char *format, ...);
OSStatus AESendMessage(const AppleEvent *event, AppleEvent *reply, AESendMode mode,
                       long timeoutInTicks);

// Launch Services.

using LSSharedFileListRef = struct OpaqueLSSharedFileListRef *;
using LSSharedFileListItemRef = struct OpaqueLSSharedFileListItemRef *;
using LSSharedFileListResolutionFlags = UInt32;
extern CFStringRef kLSSharedFileListSessionLoginItems;
LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef allocator, CFStringRef listType,
                                           CFTypeRef options);
CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef list, UInt32 *seed);
OSStatus LSSharedFileListItemResolve(LSSharedFileListItemRef item,
                                     LSSharedFileListResolutionFlags flags, CFURLRef *url,
                                     FSRef *file);
OSStatus LSRegisterURL(CFURLRef url, Boolean update);

// Keys of a layout.

struct UCKeyboardLayout;
enum : UInt16 { kUCKeyActionDown = 0, kUCKeyActionDisplay = 3 };
OSStatus UCKeyTranslate(const UCKeyboardLayout *layout, UInt16 keyCode, UInt16 keyAction,
                        UInt32 modifierKeyState, UInt32 keyboardType, UInt32 options,
                        UInt32 *deadKeyState, UniCharCount maximumLength, UniCharCount *length,
                        UniChar *characters);

} // extern "C"
