#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Values of property lists on their way from Core Foundation.

#include <CoreFoundation/CoreFoundation.h>

#include <QVariant>

namespace zt {

// The value as Platform/PropertyList.h says. What no property list can hold is left out of arrays
// and dictionaries, and has no value itself. Thread: any, for both.
QVariant valueOf(CFTypeRef object);

// The dictionary's values with texts as keys. Empty for a null reference.
QVariantMap mapOf(CFDictionaryRef dictionary);

} // namespace zt
