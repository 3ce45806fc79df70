// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTRegularExpression.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/IcuRegularExpression.h"

#include <mutex>
#include <utility>

namespace {

std::mutex classLock;
ZTRegularExpression::ClassLookUp classLookUp = platformRegularExpressionClass;
bool regexKnown = false;
const RegularExpressionClass *knownClass = nullptr;

} // namespace

const RegularExpressionClass *ZTRegularExpression::regexClass() {
    const std::scoped_lock lock(classLock);
    if (!regexKnown) {
        knownClass = classLookUp("NSRegularExpression");
        regexKnown = true;
    }
    return knownClass;
}

bool ZTRegularExpression::regexAvailable() {
    return regexClass() != nullptr;
}

std::unique_ptr<RegularExpression> ZTRegularExpression::regularExpressionWithPattern(
    const QString &pattern, RegularExpressionOptions options, QString *error) {
    const RegularExpressionClass *const found = regexClass();
    return found ? found->regularExpressionWithPattern(pattern, options, error) : nullptr;
}

ZTRegularExpression::ScopedClassLookUp::ScopedClassLookUp(ClassLookUp lookUp) {
    const std::scoped_lock lock(classLock);
    m_previous = std::exchange(classLookUp, lookUp);
    regexKnown = false;
}

ZTRegularExpression::ScopedClassLookUp::~ScopedClassLookUp() {
    const std::scoped_lock lock(classLock);
    classLookUp = m_previous;
    regexKnown = false;
}
