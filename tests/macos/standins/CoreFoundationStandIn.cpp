// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/macos/standins/CoreFoundationStandIn.h"

#include "tests/macos/standins/FileReferences.h"

#include <QDateTime>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <set>

namespace standin {

namespace {

std::mutex mutex;
std::set<const Object *> alive;

// They are made before the program begins and live as long as it does.
std::map<std::string, Object> &constantTexts() {
    static std::map<std::string, Object> texts;
    return texts;
}

bool isConstant(const Object *object) {
    return std::ranges::any_of(constantTexts(),
                               [object](const auto &one) { return &one.second == object; });
}

Object *add(Object object) {
    auto *const made = new Object(std::move(object));
    const std::scoped_lock lock(mutex);
    alive.insert(made);
    return made;
}

[[noreturn]] void stop(const char *reason) {
    std::fprintf(stderr, "Core Foundation: %s\n", reason);
    std::abort();
}

} // namespace

Files files;
int runLoopSources = 0;

Object *make(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::QString:
        return add({.kind = Kind::Text, .value = value});
    case QMetaType::Bool:
        return add({.kind = Kind::Boolean, .value = value});
    case QMetaType::QByteArray:
        return add({.kind = Kind::Data, .value = value});
    case QMetaType::QDateTime:
        return add({.kind = Kind::Date, .value = value});
    case QMetaType::QVariantList: {
        Object array = {.kind = Kind::Array};
        for (const QVariant &element : value.toList())
            array.elements.push_back(make(element));
        return add(std::move(array));
    }
    case QMetaType::QVariantMap: {
        Object dictionary = {.kind = Kind::Dictionary};
        const QVariantMap map = value.toMap();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            dictionary.keys.push_back(make(entry.key()));
            dictionary.elements.push_back(make(entry.value()));
        }
        return add(std::move(dictionary));
    }
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return add({.kind = Kind::Number, .value = value});
    default:
        return makeOther();
    }
}

Object *makeUrl(const QString &path) {
    return add({.kind = Kind::Url, .value = path});
}

Object *makeOther(std::function<void()> released) {
    return add({.kind = Kind::Other, .released = std::move(released)});
}

Object *objectOf(const void *reference) {
    auto *const object = static_cast<Object *>(const_cast<void *>(reference));
    const std::scoped_lock lock(mutex);
    if (!alive.contains(object) && !isConstant(object))
        stop("a reference to nothing is used");
    return object;
}

long aliveObjects() {
    const std::scoped_lock lock(mutex);
    return long(alive.size());
}

} // namespace standin

using standin::Kind;
using standin::Object;
using standin::objectOf;
using standin::referenceTo;

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFTimeInterval kCFAbsoluteTimeIntervalSince1970 = 978'307'200;
const CFRunLoopMode kCFRunLoopCommonModes = nullptr;

CFTypeRef CFRetain(CFTypeRef object) {
    ++objectOf(object)->count;
    return object;
}

void CFRelease(CFTypeRef reference) {
    Object *const object = objectOf(reference);
    if (--object->count > 0)
        return;
    for (Object *part : object->keys)
        CFRelease(part);
    for (Object *part : object->elements)
        CFRelease(part);
    if (object->released)
        object->released();
    {
        const std::scoped_lock lock(standin::mutex);
        standin::alive.erase(object);
    }
    delete object;
}

CFTypeID CFGetTypeID(CFTypeRef object) {
    return CFTypeID(objectOf(object)->kind);
}

CFTypeID CFStringGetTypeID() {
    return CFTypeID(Kind::Text);
}

CFStringRef CFStringCreateWithCharacters(CFAllocatorRef /*allocator*/, const UniChar *characters,
                                         CFIndex count) {
    return referenceTo<CFStringRef>(
        standin::make(QString(reinterpret_cast<const QChar *>(characters), qsizetype(count))));
}

CFIndex CFStringGetLength(CFStringRef text) {
    return objectOf(text)->value.toString().size();
}

void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar *characters) {
    const QString units = objectOf(text)->value.toString();
    std::memcpy(characters, units.utf16() + range.location,
                std::size_t(range.length) * sizeof(UniChar));
}

CFStringRef __CFStringMakeConstantString(const char *text) {
    const std::scoped_lock lock(standin::mutex);
    Object &object = standin::constantTexts()[text];
    object.kind = Kind::Text;
    object.value = QString::fromUtf8(text);
    return referenceTo<CFStringRef>(&object);
}

CFTypeID CFNumberGetTypeID() {
    return CFTypeID(Kind::Number);
}

Boolean CFNumberIsFloatType(CFNumberRef number) {
    return objectOf(number)->value.typeId() == QMetaType::Double;
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value) {
    const Object *const object = objectOf(number);
    if (object->kind != Kind::Number)
        return 0;
    switch (type) {
    case kCFNumberSInt32Type:
        *static_cast<SInt32 *>(value) = object->value.toInt();
        return 1;
    case kCFNumberSInt64Type:
        *static_cast<SInt64 *>(value) = object->value.toLongLong();
        return 1;
    case kCFNumberFloat64Type:
        *static_cast<double *>(value) = object->value.toDouble();
        return 1;
    default:
        return 0;
    }
}

CFTypeID CFBooleanGetTypeID() {
    return CFTypeID(Kind::Boolean);
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    return objectOf(boolean)->value.toBool();
}

CFTypeID CFDataGetTypeID() {
    return CFTypeID(Kind::Data);
}

CFDataRef CFDataCreate(CFAllocatorRef /*allocator*/, const UInt8 *bytes, CFIndex count) {
    return referenceTo<CFDataRef>(
        standin::make(QByteArray(reinterpret_cast<const char *>(bytes), qsizetype(count))));
}

CFIndex CFDataGetLength(CFDataRef data) {
    return objectOf(data)->value.toByteArray().size();
}

const UInt8 *CFDataGetBytePtr(CFDataRef data) {
    return static_cast<const UInt8 *>(static_cast<const void *>(
        static_cast<const QByteArray *>(objectOf(data)->value.constData())->constData()));
}

CFTypeID CFDateGetTypeID() {
    return CFTypeID(Kind::Date);
}

CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef date) {
    return double(objectOf(date)->value.toDateTime().toMSecsSinceEpoch()) / 1000 -
           kCFAbsoluteTimeIntervalSince1970;
}

CFTypeID CFArrayGetTypeID() {
    return CFTypeID(Kind::Array);
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    return CFIndex(objectOf(array)->elements.size());
}

const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    return objectOf(array)->elements.at(std::size_t(index));
}

CFTypeID CFDictionaryGetTypeID() {
    return CFTypeID(Kind::Dictionary);
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary) {
    return CFIndex(objectOf(dictionary)->elements.size());
}

const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key) {
    const Object *const object = objectOf(dictionary);
    const QVariant wanted = static_cast<const Object *>(key)->value;
    for (std::size_t index = 0; index < object->keys.size(); ++index) {
        if (object->keys[index]->value == wanted)
            return object->elements[index];
    }
    return nullptr;
}

void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void **keys,
                                  const void **values) {
    const Object *const object = objectOf(dictionary);
    std::ranges::copy(object->keys, keys);
    std::ranges::copy(object->elements, values);
}

CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef /*allocator*/, CFStringRef path,
                                       CFURLPathStyle /*style*/, Boolean /*isDirectory*/) {
    return referenceTo<CFURLRef>(standin::makeUrl(objectOf(path)->value.toString()));
}

// An address has no blanks in it.
CFURLRef CFURLCreateWithString(CFAllocatorRef /*allocator*/, CFStringRef text, CFURLRef /*base*/) {
    const QString address = objectOf(text)->value.toString();
    return address.isEmpty() || address.contains(u' ')
               ? nullptr
               : referenceTo<CFURLRef>(standin::makeUrl(address));
}

CFURLRef CFURLCreateFromFSRef(CFAllocatorRef /*allocator*/, const FSRef *item) {
    const auto path = standin::pathOf(*item);
    return path ? referenceTo<CFURLRef>(standin::makeUrl(*path)) : nullptr;
}

Boolean CFURLGetFSRef(CFURLRef url, FSRef *item) {
    const QString path = objectOf(url)->value.toString();
    if (std::ranges::find(standin::files.missing, path) != standin::files.missing.end())
        return 0;
    *item = standin::referenceToFile(path);
    return 1;
}

CFPropertyListRef CFPropertyListCreateWithData(CFAllocatorRef /*allocator*/, CFDataRef data,
                                               CFOptionFlags /*options*/,
                                               CFPropertyListFormat * /*format*/,
                                               CFErrorRef *error) {
    const auto list = standin::files.propertyLists.find(objectOf(data)->value.toByteArray());
    if (list != standin::files.propertyLists.end())
        return standin::make(list->second);
    if (error)
        *error = referenceTo<CFErrorRef>(standin::makeOther());
    return nullptr;
}

CFStringRef CFErrorCopyDescription(CFErrorRef error) {
    objectOf(error);
    return referenceTo<CFStringRef>(standin::make(QStringLiteral("it is malformed")));
}

CFStringRef CFURLCopyFileSystemPath(CFURLRef url, CFURLPathStyle /*style*/) {
    return referenceTo<CFStringRef>(standin::make(objectOf(url)->value));
}

CFRunLoopRef CFRunLoopGetMain() {
    return nullptr;
}

void CFRunLoopAddSource(CFRunLoopRef /*loop*/, CFRunLoopSourceRef /*source*/,
                        CFRunLoopMode /*mode*/) {
    ++standin::runLoopSources;
}

void CFRunLoopRemoveSource(CFRunLoopRef /*loop*/, CFRunLoopSourceRef /*source*/,
                           CFRunLoopMode /*mode*/) {
    --standin::runLoopSources;
}

} // extern "C"
