// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Bundles.h"
#include "Platform/Platform.h"
#include "Platform/SystemVersion.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/NumericComparison.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTUtilitiesState.h"

#include <QDateTime>
#include <QLocale>

#include <atomic>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView developmentStages = u"pdabf ";
constexpr int releaseStage = 5;

// A version split at its first letter.
struct StagedVersion {
    QStringView base;
    int stage;
    QStringView rest;
};

// Letters of every script count, with the marks that go with them.
bool isLetter(char32_t scalar) {
    return QChar::isLetter(scalar) || QChar::isMark(scalar);
}

StagedVersion splitAtFirstLetter(QStringView version) {
    for (qsizetype i = 0; i < version.size(); ++i) {
        const bool pair = i + 1 < version.size() && version.at(i).isHighSurrogate() &&
                          version.at(i + 1).isLowSurrogate();
        const char32_t scalar = pair ? QChar::surrogateToUcs4(version.at(i), version.at(i + 1))
                                     : version.at(i).unicode();
        if (isLetter(scalar)) {
            return {version.left(i), developmentStage(version.at(i).unicode()),
                    version.mid(i + (pair ? 2 : 1))};
        }
        if (pair)
            ++i;
    }
    return {version, releaseStage, u"0"};
}

double frameworkVersion() {
    return zt::currentPlatform().systemVersion.frameworkVersion();
}

QString mainBundleString(const QString &key) {
    return zt::currentPlatform().bundles.mainBundle().stringForKey(key).value_or(QString());
}

std::uint16_t partOrZero(std::optional<std::int32_t> part, QAnyStringView failure) {
    if (!part)
        ZTLog(failure);
    return static_cast<std::uint16_t>(part.value_or(0));
}

} // namespace

int developmentStage(char16_t letter) {
    return static_cast<int>(std::max(qsizetype(0), developmentStages.indexOf(QChar(letter))));
}

QString ZTUtilities::applicationName() {
    return mainBundleString(u"CFBundleExecutable"_s);
}

QString ZTUtilities::versionString() {
    return mainBundleString(u"CFBundleVersion"_s);
}

QString ZTUtilities::plainVersionOf(const QString &version) {
    qsizetype length = 0;
    while (length < version.size() && QStringView(u"0123456789.").contains(version.at(length)))
        ++length;
    return length == version.size() ? version : version.left(length);
}

QString ZTUtilities::plainVersionString() {
    return plainVersionOf(versionString());
}

std::uint32_t ZTUtilities::hexSystemVersion() {
    return zt::currentPlatform().systemVersion.packedVersion().value_or(0);
}

ZTUtilities::ThreePartVersion ZTUtilities::threePartVersion() {
    const zt::SystemVersion &system = zt::currentPlatform().systemVersion;
    if (const auto major = system.majorVersion()) {
        return {static_cast<std::uint16_t>(*major),
                partOrZero(system.minorVersion(), "cannot get minor version number"),
                partOrZero(system.bugFixVersion(), "cannot get bugfix version number")};
    }
    const auto packed = system.packedVersion();
    if (!packed)
        return {};
    const auto digit = [word = *packed](int shift) { return (word >> shift) & 15U; };
    return {static_cast<std::uint16_t>(digit(12) * 10 + digit(8)),
            static_cast<std::uint16_t>(digit(4)), static_cast<std::uint16_t>(digit(0))};
}

std::int32_t ZTUtilities::decimalSystemVersion() {
    std::atomic<std::int32_t> &known = ZTUtilitiesState::shared().decimalSystemVersion;
    if (known == 0) {
        const ThreePartVersion version = threePartVersion();
        known = (version.major * 100 + version.minor) * 100 + version.bugFix;
    }
    return known;
}

QString ZTUtilities::systemVersionString() {
    const ThreePartVersion version = threePartVersion();
    return version.bugFix > 0 ? ZTFormat("%d.%d.%d", version.major, version.minor, version.bugFix)
                              : ZTFormat("%d.%d", version.major, version.minor);
}

Ordering ZTUtilities::compareVersion(const QString &version, const QString &withVersion) {
    const StagedVersion a = splitAtFirstLetter(version);
    const StagedVersion b = splitAtFirstLetter(withVersion);
    if (const Ordering bases = numericCompare(a.base, b.base); bases != Ordering::Same)
        return bases;
    if (a.stage != b.stage)
        return a.stage < b.stage ? Ordering::Ascending : Ordering::Descending;
    return numericCompare(a.rest, b.rest);
}

QString ZTUtilities::localizedDateString(const QString &date) {
    const QDate day = QDate::fromString(date, u"yyyy-MM-dd"_s);
    if (!day.isValid())
        return {};
    const QDateTime midnight = day.startOfDay(Qt::UTC);
    return QLocale().toString(midnight.toLocalTime().date(), QLocale::ShortFormat);
}

bool ZTUtilities::pantherOrOlder() {
    return std::floor(frameworkVersion()) <= 743.0;
}

bool ZTUtilities::leopardOrNewer() {
    return std::floor(frameworkVersion()) > 824.0;
}

bool ZTUtilities::snowleopardOrNewer() {
    return std::floor(frameworkVersion()) >= 1038.0;
}

bool ZTUtilities::lionOrNewer() {
    return frameworkVersion() >= 1138.0;
}

bool ZTUtilities::mountainLionOrNewer() {
    return frameworkVersion() >= 1187.0;
}

bool ZTUtilities::mavericksOrNewer() {
    return frameworkVersion() >= 1265.0;
}

bool ZTUtilities::yosemiteOrNewer() {
    return frameworkVersion() >= 1343.0;
}

bool ZTUtilities::elCapitanOrNewer() {
    return frameworkVersion() >= 1404.0;
}

bool ZTUtilities::sierraOrNewer() {
    return frameworkVersion() >= 1490.0;
}

bool ZTUtilities::highSierraOrNewer() {
    // The releases just before this one share its whole number.
    return frameworkVersion() >= 1537.2;
}

bool ZTUtilities::mojaveOrNewer() {
    return frameworkVersion() >= 1639.0;
}
