// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/macos/standins/ServicesStandIn.h"

#include "tests/macos/standins/ApplicationsStandIn.h"
#include "tests/macos/standins/CoreFoundationStandIn.h"

#include <algorithm>
#include <cstring>

using standin::objectOf;
using standin::referenceTo;

namespace standin {

std::map<OSType, SInt32> gestaltAnswers;
Hid hid;
Power power;
std::optional<std::vector<std::optional<QString>>> loginItems;
LaunchServices launchServices;
Keyboard keyboard;
AppleEvents appleEvents;
UserInterfaces userInterfaces;

namespace {

constexpr io_object_t iterator = 1;
constexpr io_object_t firstService = 2;
std::size_t nextService = 0;

// What an element shows.
struct Element {
    QString role;
    QString title;
};
std::map<const void *, Element> elements;

// What an observer was made for.
std::map<const void *, std::pair<pid_t, AXObserverCallback>> observers;

// A descriptor points to what it holds: an event, or the address in one.
void fill(AEDesc &descriptor, OSType type, SentEvent event) {
    ++appleEvents.descriptors;
    descriptor.descriptorType = type;
    descriptor.dataHandle =
        reinterpret_cast<OpaqueAEDataStorageType **>(new SentEvent(std::move(event)));
}

SentEvent &eventIn(const AEDesc &descriptor) {
    return *reinterpret_cast<SentEvent *>(descriptor.dataHandle);
}

std::vector<char> bytesOf(const void *data, Size size) {
    const char *const bytes = static_cast<const char *>(data);
    return {bytes, bytes + size};
}

} // namespace

void UserInterfaces::notify(pid_t pid, const QString &notification, const QString &role,
                            const QString &title) {
    Object *const element = makeOther();
    elements[element] = {role, title};
    const std::vector<Observed> told = observed;
    for (const Observed &one : told) {
        if (one.pid != pid || one.notification != notification)
            continue;
        Object *const name = make(notification);
        one.callback(referenceTo<AXObserverRef>(objectOf(one.observer)),
                     role.isEmpty() && title.isEmpty() ? nullptr
                                                       : referenceTo<AXUIElementRef>(element),
                     referenceTo<CFStringRef>(name), one.context);
        CFRelease(name);
    }
    elements.erase(element);
    CFRelease(element);
}

void resetServices() {
    gestaltAnswers.clear();
    hid = {};
    power = {};
    loginItems.reset();
    launchServices = {};
    keyboard = {};
    appleEvents = {};
    userInterfaces = {};
}

} // namespace standin

extern "C" {

OSErr Gestalt(OSType selector, SInt32 *response) {
    const auto answer = standin::gestaltAnswers.find(selector);
    if (answer == standin::gestaltAnswers.end())
        return OSErr(-5551); // the selector is undefined
    *response = answer->second;
    return noErr;
}

const mach_port_t kIOMasterPortDefault = 0;

CFMutableDictionaryRef IOServiceMatching(const char *name) {
    return referenceTo<CFMutableDictionaryRef>(
        standin::make(QVariantMap{{QStringLiteral("IOProviderClass"), QString::fromUtf8(name)}}));
}

kern_return_t IOServiceGetMatchingServices(mach_port_t /*port*/, CFDictionaryRef matching,
                                           io_iterator_t *existing) {
    const bool matches =
        !objectOf(matching)->elements.empty() &&
        objectOf(matching)->elements.front()->value == QStringLiteral("IOHIDSystem");
    CFRelease(matching);
    if (!matches)
        return -1;
    standin::nextService = 0;
    ++standin::hid.objects;
    *existing = standin::iterator;
    return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t /*iterator*/) {
    if (standin::nextService >= standin::hid.services.size())
        return IO_OBJECT_NULL;
    ++standin::hid.objects;
    return standin::firstService + io_object_t(standin::nextService++);
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry,
                                                CFMutableDictionaryRef *properties,
                                                CFAllocatorRef /*allocator*/,
                                                IOOptionBits /*options*/) {
    if (!standin::hid.hasProperties)
        return -1;
    *properties = referenceTo<CFMutableDictionaryRef>(
        standin::make(standin::hid.services.at(entry - standin::firstService)));
    return KERN_SUCCESS;
}

kern_return_t IOObjectRelease(io_object_t /*object*/) {
    --standin::hid.objects;
    return KERN_SUCCESS;
}

IOReturn IOPMAssertionCreateWithName(CFStringRef type, IOPMAssertionLevel level, CFStringRef name,
                                     IOPMAssertionID *assertion) {
    if (standin::power.answer != kIOReturnSuccess || level != kIOPMAssertionLevelOn)
        return standin::power.answer;
    static IOPMAssertionID last = kIOPMNullAssertionID;
    *assertion = ++last;
    standin::power.assertions[last] = {objectOf(type)->value.toString(),
                                       objectOf(name)->value.toString()};
    return kIOReturnSuccess;
}

IOReturn IOPMAssertionRelease(IOPMAssertionID assertion) {
    standin::power.assertions.erase(assertion);
    return kIOReturnSuccess;
}

CFStringRef kLSSharedFileListSessionLoginItems =
    CFSTR("com.apple.LSSharedFileList.SessionLoginItems");

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef /*allocator*/, CFStringRef listType,
                                           CFTypeRef /*options*/) {
    return standin::loginItems && listType == kLSSharedFileListSessionLoginItems
               ? referenceTo<LSSharedFileListRef>(standin::makeOther())
               : nullptr;
}

// An item that can be resolved is its path.
CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef list, UInt32 *seed) {
    objectOf(list);
    *seed = 1;
    QVariantList items;
    for (const std::optional<QString> &item : *standin::loginItems)
        items << (item ? QVariant(*item) : QVariant(false));
    return referenceTo<CFArrayRef>(standin::make(items));
}

OSStatus LSSharedFileListItemResolve(LSSharedFileListItemRef item,
                                     LSSharedFileListResolutionFlags flags, CFURLRef *url,
                                     FSRef * /*file*/) {
    const standin::Object *const object = objectOf(item);
    if (object->kind != standin::Kind::Text || flags != 0)
        return OSStatus(-43); // there is no such file
    *url = referenceTo<CFURLRef>(standin::makeUrl(object->value.toString()));
    return noErr;
}

OSStatus LSRegisterURL(CFURLRef url, Boolean update) {
    standin::launchServices.registered.emplace_back(objectOf(url)->value.toString(), update != 0);
    return standin::launchServices.answer;
}

const CFStringRef kTISPropertyUnicodeKeyLayoutData = CFSTR("TISPropertyUnicodeKeyLayoutData");

// A source with a layout is the data of it.
static TISInputSourceRef inputSource(bool hasLayout) {
    return referenceTo<TISInputSourceRef>(standin::make(
        hasLayout ? QVariant(QByteArray("layout")) : QVariant(QStringLiteral("input method"))));
}

TISInputSourceRef TISCopyCurrentKeyboardInputSource() {
    return inputSource(standin::keyboard.hasLayout && !standin::keyboard.isInputMethod);
}

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource() {
    return inputSource(standin::keyboard.hasLayout);
}

void *TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef key) {
    standin::Object *const object = objectOf(source);
    return object->kind == standin::Kind::Data && key == kTISPropertyUnicodeKeyLayoutData ? object
                                                                                          : nullptr;
}

UInt8 LMGetKbdType() {
    return standin::keyboard.type;
}

OSStatus UCKeyTranslate(const UCKeyboardLayout *layout, UInt16 keyCode, UInt16 keyAction,
                        UInt32 modifierKeyState, UInt32 keyboardType, UInt32 options,
                        UInt32 *deadKeyState, UniCharCount maximumLength, UniCharCount *length,
                        UniChar *characters) {
    standin::keyboard.askedTypes.push_back(keyboardType);
    const auto text = standin::keyboard.layout.find({keyCode, modifierKeyState});
    if (!layout || keyAction != kUCKeyActionDisplay || options != 0 || *deadKeyState != 0 ||
        text == standin::keyboard.layout.end() || UniCharCount(text->second.size()) > maximumLength)
        return paramErr;
    *length = UniCharCount(text->second.size());
    std::memcpy(characters, text->second.utf16(), *length * sizeof(UniChar));
    return noErr;
}

OSErr AECreateDesc(DescType type, const void *data, Size size, AEDesc *result) {
    standin::fill(*result, type, {.addressType = type, .address = standin::bytesOf(data, size)});
    return noErr;
}

OSErr AEDisposeDesc(AEDesc *descriptor) {
    if (!descriptor->dataHandle)
        return noErr;
    delete &standin::eventIn(*descriptor);
    *descriptor = {typeNull, nullptr};
    --standin::appleEvents.descriptors;
    return noErr;
}

OSErr AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEAddressDesc *target,
                         AEReturnID returnID, AETransactionID transactionID, AppleEvent *result) {
    if (standin::appleEvents.answerToCreation != noErr)
        return standin::appleEvents.answerToCreation;
    if (returnID != kAutoGenerateReturnID || transactionID != kAnyTransactionID)
        return paramErr;
    standin::SentEvent event = standin::eventIn(*target);
    event.eventClass = eventClass;
    event.eventId = eventID;
    standin::fill(*result, typeAppleEvent, std::move(event));
    return noErr;
}

OSStatus AEBuildAppleEvent(AEEventClass eventClass, AEEventID eventID, DescType addressType,
                           const void *address, Size addressSize, SInt16 returnID,
                           SInt32 transactionID, AppleEvent *result, AEBuildError * /*error*/,
                           const char *format, ...) {
    if (standin::appleEvents.answerToCreation != noErr)
        return standin::appleEvents.answerToCreation;
    if (returnID != kAutoGenerateReturnID || transactionID != kAnyTransactionID || *format != 0)
        return paramErr;
    standin::fill(*result, typeAppleEvent,
                  {.eventClass = eventClass,
                   .eventId = eventID,
                   .addressType = addressType,
                   .address = standin::bytesOf(address, addressSize)});
    return noErr;
}

static OSErr send(const AppleEvent *event, AESendMode mode, AESendPriority priority, long timeout) {
    standin::SentEvent sent = standin::eventIn(*event);
    sent.mode = mode;
    sent.priority = priority;
    sent.timeout = timeout;
    standin::appleEvents.sent.push_back(std::move(sent));
    return standin::appleEvents.answerToSending;
}

OSErr AESend(const AppleEvent *event, AppleEvent * /*reply*/, AESendMode mode,
             AESendPriority priority, SInt32 timeoutInTicks, AEIdleProcPtr /*idle*/,
             AEFilterProcPtr /*filter*/) {
    return send(event, mode, priority, timeoutInTicks);
}

OSStatus AESendMessage(const AppleEvent *event, AppleEvent *reply, AESendMode mode,
                       long timeoutInTicks) {
    const OSErr answer = send(event, mode, kAENormalPriority, timeoutInTicks);
    if (answer == noErr)
        standin::fill(*reply, typeAppleEvent, {});
    return answer;
}

AXUIElementRef AXUIElementCreateApplication(pid_t /*pid*/) {
    return standin::userInterfaces.hasApplications
               ? referenceTo<AXUIElementRef>(standin::makeOther())
               : nullptr;
}

AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef *value) {
    const standin::Element &shown = standin::elements.at(objectOf(element));
    const QString name = objectOf(attribute)->value.toString();
    const QString text = name == QStringLiteral("AXRoleDescription") ? shown.role : shown.title;
    if (text.isEmpty())
        return kAXErrorCannotComplete;
    *value = standin::make(text);
    return kAXErrorSuccess;
}

AXError AXObserverCreate(pid_t pid, AXObserverCallback callback, AXObserverRef *observer) {
    if (standin::userInterfaces.answer != kAXErrorSuccess)
        return standin::userInterfaces.answer;
    standin::Object *const made = standin::makeOther();
    made->released = [made] {
        standin::observers.erase(made);
        std::erase_if(standin::userInterfaces.observed,
                      [made](const auto &one) { return one.observer == made; });
    };
    standin::observers[made] = {pid, callback};
    *observer = referenceTo<AXObserverRef>(made);
    return kAXErrorSuccess;
}

AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element,
                                  CFStringRef notification, void *context) {
    objectOf(element);
    if (standin::userInterfaces.answer != kAXErrorSuccess)
        return standin::userInterfaces.answer;
    const auto &[pid, callback] = standin::observers.at(objectOf(observer));
    standin::userInterfaces.observed.push_back(
        {.pid = pid,
         .notification = objectOf(notification)->value.toString(),
         .callback = callback,
         .observer = observer,
         .context = context});
    return kAXErrorSuccess;
}

AXError AXObserverRemoveNotification(AXObserverRef observer, AXUIElementRef /*element*/,
                                     CFStringRef notification) {
    const QString name = objectOf(notification)->value.toString();
    std::erase_if(standin::userInterfaces.observed, [&](const auto &one) {
        return one.observer == observer && one.notification == name;
    });
    return kAXErrorSuccess;
}

// It lives as long as the observer.
CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer) {
    return reinterpret_cast<CFRunLoopSourceRef>(observer);
}

} // extern "C"
