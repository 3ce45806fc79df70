// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CFValues.h"

#include "Platform/macos/CFText.h"

#include <QDateTime>

#include <cmath>
#include <vector>

namespace zt {

namespace {

QVariant numberOf(CFNumberRef number) {
    if (CFNumberIsFloatType(number)) {
        double real = 0;
        CFNumberGetValue(number, kCFNumberFloat64Type, &real);
        return real;
    }
    SInt64 integer = 0;
    CFNumberGetValue(number, kCFNumberSInt64Type, &integer);
    return qlonglong(integer);
}

QVariant dateOf(CFDateRef date) {
    const double seconds = CFDateGetAbsoluteTime(date) + kCFAbsoluteTimeIntervalSince1970;
    return QDateTime::fromMSecsSinceEpoch(qint64(std::llround(seconds * 1000)), Qt::UTC);
}

QByteArray bytesOf(CFDataRef data) {
    return {reinterpret_cast<const char *>(CFDataGetBytePtr(data)), CFDataGetLength(data)};
}

QVariantList listOf(CFArrayRef array) {
    QVariantList list;
    for (CFIndex index = 0; index < CFArrayGetCount(array); ++index) {
        if (QVariant value = valueOf(CFArrayGetValueAtIndex(array, index)); value.isValid())
            list << value;
    }
    return list;
}

} // namespace

QVariant valueOf(CFTypeRef object) {
    if (!object)
        return {};
    const CFTypeID type = CFGetTypeID(object);
    if (type == CFStringGetTypeID())
        return textOf(static_cast<CFStringRef>(object));
    if (type == CFBooleanGetTypeID())
        return CFBooleanGetValue(static_cast<CFBooleanRef>(object)) != 0;
    if (type == CFNumberGetTypeID())
        return numberOf(static_cast<CFNumberRef>(object));
    if (type == CFDateGetTypeID())
        return dateOf(static_cast<CFDateRef>(object));
    if (type == CFDataGetTypeID())
        return bytesOf(static_cast<CFDataRef>(object));
    if (type == CFArrayGetTypeID())
        return listOf(static_cast<CFArrayRef>(object));
    if (type == CFDictionaryGetTypeID())
        return mapOf(static_cast<CFDictionaryRef>(object));
    return {};
}

QVariantMap mapOf(CFDictionaryRef dictionary) {
    if (!dictionary)
        return {};
    const auto count = std::size_t(CFDictionaryGetCount(dictionary));
    std::vector<const void *> keys(count);
    std::vector<const void *> values(count);
    CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    QVariantMap map;
    for (std::size_t index = 0; index < count; ++index) {
        if (CFGetTypeID(keys[index]) != CFStringGetTypeID())
            continue;
        if (QVariant value = valueOf(values[index]); value.isValid())
            map.insert(textOf(static_cast<CFStringRef>(keys[index])), value);
    }
    return map;
}

} // namespace zt
