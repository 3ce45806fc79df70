// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/FileAttributes.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString stageLetter(std::uint8_t stage) {
    switch (stage) {
    case 0x20:
        return u"d"_s;
    case 0x40:
        return u"a"_s;
    case 0x60:
        return u"b"_s;
    default:
        return {};
    }
}

// The fields of a version resource, of which there are at least four bytes. They are taken from the
// back to the front: the resource has always been read as one number of a little-endian machine,
// and versions are compared with those that were written down then.
QString versionInResource(QByteArrayView resource) {
    const auto byte = [&](qsizetype index) { return static_cast<std::uint8_t>(resource[index]); };
    const int major = (byte(3) >> 4) * 10 + (byte(3) & 0x0F);
    const int minor = byte(2) >> 4;
    const int bugFix = byte(2) & 0x0F;
    QString version =
        bugFix != 0 ? ZTFormat("%d.%d.%d", major, minor, bugFix) : ZTFormat("%d.%d", major, minor);
    const int revision = byte(0);
    if (revision != 0)
        version = ZTFormat("%@%@%d", version, stageLetter(byte(1)), revision);
    return version;
}

} // namespace

std::optional<QString> ZTProcess::carbonVersion() const {
    const std::optional<QString> location =
        m_platform.processManager.bundleLocation(m_serialNumber);
    const std::optional<QByteArray> resource =
        location ? zt::readFileResource(*location, fourCharCode("vers"), 1) : std::nullopt;
    constexpr qsizetype usedBytes = 4;
    if (!resource || resource->size() < usedBytes)
        return std::nullopt;
    return versionInResource(*resource);
}

QString ZTProcess::version() const {
    return *m_version.value([this] { return std::optional(determineVersion()); });
}

QString ZTProcess::determineVersion() const {
    const QString unknown = u"1.0"_s;
    if (!information() || !path())
        return unknown;
    const std::optional<zt::Bundle> package = bundle();
    if (!package)
        return carbonVersion().value_or(unknown);
    const auto shortVersion = package->stringForKey(u"CFBundleShortVersionString"_s);
    if (shortVersion && shortVersion->contains(u'.'))
        return *shortVersion;
    return package->stringForKey(u"CFBundleVersion"_s).value_or(unknown);
}

std::int32_t ZTProcess::majorVersionNumber() const {
    return integerValue(version());
}

bool ZTProcess::isAtLeastVersion(const QString &other) const {
    const QStringList own = version().split(u'.');
    const QStringList wanted = other.split(u'.');
    for (qsizetype index = 0; index < std::max(own.size(), wanted.size()); ++index) {
        const int ownNumber = integerValue(own.value(index));
        const int wantedNumber = integerValue(wanted.value(index));
        if (ownNumber != wantedNumber)
            return ownNumber > wantedNumber;
    }
    return true;
}
