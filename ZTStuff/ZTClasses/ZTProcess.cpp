// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/Accessibility.h"
#include "Platform/Workspace.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace {

// Whether a value in an information dictionary says yes. The old text form of property lists has
// no truth values; people write YES or 1 there.
bool isTrue(const QVariant &value) {
    if (value.metaType() != QMetaType::fromType<QString>())
        return value.toBool();
    const QString text = value.toString().trimmed();
    constexpr QStringView yes = u"YyTt";
    return !text.isEmpty() && (yes.contains(text.front()) || integerValue(text) != 0);
}

} // namespace

ZTProcess::ZTProcess(CreationKey /*key*/, zt::ProcessSerialNumber serialNumber)
    : m_platform(zt::currentPlatform())
    , m_serialNumber(serialNumber) {
    installNotifications();
}

ZTProcess::~ZTProcess() {
    unregisterAXNotifications();
}

std::int32_t ZTProcess::unixPID() const {
    return m_platform.processManager.pidOf(m_serialNumber).value_or(0);
}

bool ZTProcess::isStillRunning() const {
    return m_platform.processManager.pidOf(m_serialNumber).has_value();
}

bool ZTProcess::isSameProcess(zt::ProcessSerialNumber serialNumber) const {
    constexpr zt::ProcessSerialNumber noProcess;
    return m_serialNumber != noProcess && m_serialNumber == serialNumber;
}

bool ZTProcess::isEqual(const ZTProcess *other) const {
    return other && (other == this || isSameProcess(other->serialNumber()));
}

std::uint32_t ZTProcess::hash() const {
    return m_serialNumber.high + m_serialNumber.low;
}

Ordering ZTProcess::compare(const ZTProcess &other) const {
    const int order = QString::compare(name().value_or(QString()), other.name().value_or(QString()),
                                       Qt::CaseInsensitive);
    if (order == 0)
        return Ordering::Same;
    return order < 0 ? Ordering::Ascending : Ordering::Descending;
}

std::optional<zt::ProcessInformation> ZTProcess::information() const {
    return m_information.value(
        [this] { return m_platform.processManager.information(m_serialNumber); });
}

std::optional<QString> ZTProcess::name() const {
    const std::optional<zt::ProcessInformation> known = information();
    return known ? std::optional(known->name) : std::nullopt;
}

std::optional<QString> ZTProcess::displayName() const {
    return m_displayName.value([this] {
        const std::optional<QString> shown = m_platform.processManager.displayName(m_serialNumber);
        return shown ? shown : name();
    });
}

FourCharCode ZTProcess::signature() const {
    const std::optional<zt::ProcessInformation> known = information();
    return known ? known->signature : 0;
}

QString ZTProcess::signatureString() const {
    const std::optional<zt::ProcessInformation> known = information();
    return known ? UTCreateStringForOSType(known->signature) : QString();
}

QString ZTProcess::signatureHexString() const {
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        // Through the signed type on purpose: others compare these texts as they have always been.
        const auto byte = static_cast<std::int8_t>(signature() >> shift);
        text += ZTFormat("%02X", static_cast<std::uint32_t>(byte));
    }
    return text;
}

std::optional<QString> ZTProcess::path() const {
    return m_path.value(
        [this] { return m_platform.processManager.bundleLocation(m_serialNumber); });
}

std::optional<zt::Bundle> ZTProcess::bundle() const {
    const std::optional<QString> location = path();
    return location ? m_platform.bundles.bundleAtPath(*location) : std::nullopt;
}

QVariantMap ZTProcess::infoDictionary() const {
    const auto read = [this]() -> std::optional<QVariantMap> {
        QVariantMap dictionary = m_platform.processManager.informationDictionary(m_serialNumber);
        if (dictionary.isEmpty())
            return std::nullopt;
        return dictionary;
    };
    return m_infoDictionary.value(read).value_or(QVariantMap());
}

QString ZTProcess::identifier() const {
    return infoDictionary().value(u"CFBundleIdentifier"_s).toString();
}

QIcon ZTProcess::icon() const {
    const auto read = [this]() -> std::optional<QIcon> {
        const std::optional<QString> location = path();
        if (!location)
            return std::nullopt;
        return m_platform.workspace.iconForFile(*location);
    };
    return m_icon.value(read).value_or(QIcon());
}

bool ZTProcess::isCocoa() const {
    return *m_isCocoa.value([this] { return std::optional(determineIsCocoa()); });
}

bool ZTProcess::determineIsCocoa() const {
    // Asked of the system rather than taken from path(): a bundle may have moved since.
    const std::optional<QString> location =
        m_platform.processManager.bundleLocation(m_serialNumber);
    if (!location)
        return false;
    const std::optional<zt::Bundle> package = m_platform.bundles.bundleAtPath(*location);
    const bool isNativeApplication = package && !package->executablePath().isEmpty();
    return isNativeApplication && package->stringForKey(u"NSPrincipalClass"_s).has_value();
}

QString ZTProcess::platform() const {
    if (isCocoa())
        return ZTPlatformCocoa;
    return identifier().contains(".java"_L1) ? ZTPlatformJava : ZTPlatformCarbon;
}

bool ZTProcess::isBackgroundOnly() const {
    const QVariantMap dictionary = infoDictionary();
    return isTrue(dictionary.value(u"LSBackgroundOnly"_s)) ||
           isTrue(dictionary.value(u"LSUIElement"_s));
}

bool ZTProcess::isFrontProcess() const {
    return isEqual(frontProcess().get());
}

QString ZTProcess::hashStringSource() const {
    const QString bundleIdentifier = identifier();
    if (!bundleIdentifier.isEmpty())
        return u"id:"_s + bundleIdentifier;
    const QString code = signatureString();
    if (!code.isEmpty() && code != "????"_L1)
        return u"sig:"_s + code;
    return u"name:"_s + name().value_or(QString());
}

QString ZTProcess::hashString() const {
    QByteArray source = hashStringSource().toUtf8();
    // The sum has always been taken over the text as a C string.
    if (const qsizetype zero = source.indexOf('\0'); zero >= 0)
        source.truncate(zero);
    return QString::fromLatin1(QCryptographicHash::hash(source, QCryptographicHash::Md5).toHex());
}

QString ZTProcess::description() const {
    return ZTFormat("Process \"%@\" (%@) %@", name(), signatureString(), version());
}

void ZTProcess::setInfo(const QVariant &value, const QString &forKey) {
    const std::scoped_lock lock(m_customInfoMutex);
    if (value.isValid())
        m_customInfo.insert(forKey, value);
    else
        m_customInfo.remove(forKey);
}

QVariant ZTProcess::infoForKey(const QString &key) const {
    const std::scoped_lock lock(m_customInfoMutex);
    return m_customInfo.value(key);
}
