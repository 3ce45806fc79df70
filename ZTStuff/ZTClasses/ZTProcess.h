#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// One running application: what it is, since when it runs, and what can be asked of it.

#include "Platform/Bundles.h"
#include "Platform/Platform.h"
#include "Platform/ProcessManager.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/LazyFact.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Ordering.h"

#include <QIcon>
#include <QList>
#include <QString>
#include <QVariant>

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace zt {
class AccessibilityObserver;
}

inline const QString ZTPlatformCocoa = QStringLiteral("Cocoa");
inline const QString ZTPlatformCarbon = QStringLiteral("Carbon");
inline const QString ZTPlatformJava = QStringLiteral("Java");

// Posted when an application was launched, has ended or came to the front. The object is
// ZTProcess::classObject(); "change" in the user information is "started", "ended", "front" or "".
inline const QString ZTProcessChangeNotification = QStringLiteral("ZTProcessChangeNotification");

// Posted when an accessibility notification of a process arrives. The object is the ZTProcess;
// "element" in the user information describes the element, "event" names the notification.
inline const QString ZTProcessUINotification = QStringLiteral("ZTProcessUINotification");

// When the process began, in seconds since 1 January 1970 UTC, and the user processor time that it
// has used, in seconds. 0.0 when that cannot be told. Thread: any.
double proc_start_time(std::int32_t pid);
double proc_cpu_time(std::int32_t pid);

// There is one object for each running application, shared by everybody who looks it up. It is kept
// in a cache until the application has ended; a caller's own copy stays good for longer, and goes
// on answering what it has been asked before. Facts are gathered when they are first asked for and
// then kept. Thread: any, except where said.
class ZTProcess final : public std::enable_shared_from_this<ZTProcess> {
    struct CreationKey {
        explicit CreationKey() = default;
    };

public:
    using Pointer = std::shared_ptr<ZTProcess>;

    // The answer of indexOfCachedProcessWithSerialNumber() for a process that is not cached.
    static constexpr std::uint64_t notFound = 0x7FFFFFFFFFFFFFFF;

    // Look-ups. Null when there is no such application. The first of them begins to listen to the
    // system's application events.

    // The object for the process, running or not: the cached one, which moves to the front of the
    // cache, else a new one. Never null.
    static Pointer processWithSerialNumber(zt::ProcessSerialNumber serialNumber);
    // The object for the process that has the id now, application or not.
    static Pointer processWithPID(std::int32_t pid);
    // The first running application, by start time, with that creator signature.
    static Pointer processWithSignature(FourCharCode signature);
    // The first running application, by start time, with exactly that bundle identifier.
    static Pointer processWithIdentifier(const QString &identifier);
    // The running applications by start time.
    static QList<Pointer> allProcesses();
    // This application. Asked of the system until it is known, then kept for good.
    static Pointer currentProcess();
    // The application whose windows have the keyboard.
    static Pointer frontProcess();

    // The cache, the process that was looked up last in front.

    // The process's place in the cache, or notFound.
    static std::uint64_t indexOfCachedProcessWithSerialNumber(zt::ProcessSerialNumber serialNumber);
    // The cached object, which moves to the front; null when there is none.
    static Pointer cachedProcessWithSerialNumber(zt::ProcessSerialNumber serialNumber);
    // Lets go of every process that does not run any more.
    static void cleanupCache();
    // The cached objects from front to back; no value as long as none was ever cached.
    static std::optional<QList<Pointer>> cachedProcessesEnumerator();

    // What the launch and the end of an application do to the cache and the count.
    static void applicationStarted();
    static void applicationEnded();
    // How many launches and ends were seen. Two equal readings: none in between.
    static std::int32_t applicationLaunchEndCount();
    // Begins to listen to the system's application events, once.
    static void installNotifications();

    // The sender of ZTProcessChangeNotification.
    static std::shared_ptr<const void> classObject();

    // Forgets everything that was learnt from the platform before, for a program that has made
    // another one the current platform. Thread: main, while no other thread uses the class.
    static void platformChanged();

    ZTProcess(CreationKey key, zt::ProcessSerialNumber serialNumber);
    ~ZTProcess();
    ZTProcess(const ZTProcess &) = delete;
    ZTProcess &operator=(const ZTProcess &) = delete;

    // Puts this object at the front of the cache.
    void addToCache();

    // Identity.

    zt::ProcessSerialNumber serialNumber() const { return m_serialNumber; }
    // The process id; 0 when the process has ended.
    std::int32_t unixPID() const;
    bool isStillRunning() const;
    bool isSameProcess(zt::ProcessSerialNumber serialNumber) const;
    // Whether the other is this object, or stands for the same process. False for null.
    bool isEqual(const ZTProcess *other) const;
    std::uint32_t hash() const;
    // By name, without regard to case.
    Ordering compare(const ZTProcess &other) const;

    // Facts. No value, 0 or "" when the process has ended before the question was first asked.

    // The name in the system's record of the process.
    std::optional<QString> name() const;
    // The name as the system shows it.
    std::optional<QString> displayName() const;
    // The creator signature: 0 when it cannot be told, "????" when the application has none.
    FourCharCode signature() const;
    QString signatureString() const;
    // The signature's bytes in hexadecimal. Bytes from 0x80 are printed as the negative numbers
    // that they are as signed ones: 0x8A as FFFFFF8A.
    QString signatureHexString() const;
    // The bundle's folder, or the program file of an application without a bundle.
    std::optional<QString> path() const;
    // The bundle as it is on disk now.
    std::optional<zt::Bundle> bundle() const;
    // What the system knows of the application, its bundle's information included.
    QVariantMap infoDictionary() const;
    QString identifier() const;
    // Thread: main.
    QIcon icon() const;
    bool isCocoa() const;
    // One of the ZTPlatform constants.
    QString platform() const;
    // Whether the application stays out of the list of applications that users see.
    bool isBackgroundOnly() const;
    bool isFrontProcess() const;
    // Text that tells this application from others across launches: its identifier, else its
    // signature, else its name; and the MD5 sum of that in hexadecimal.
    QString hashStringSource() const;
    QString hashString() const;
    QString description() const;

    // Versions.

    // The version in the classic version resource of the program file.
    std::optional<QString> carbonVersion() const;
    // The version; "1.0" when nothing tells it.
    QString version() const;
    std::int32_t majorVersionNumber() const;
    bool isAtLeastVersion(const QString &version) const;

    // Statistics.

    // When the process began; the present when it has ended before the question was first asked.
    std::chrono::system_clock::time_point launchDate() const;
    float secondsRunning() const;
    // User processor time in seconds; 0.0 when it cannot be told.
    double cpuTime() const;

    // Values that callers attach to the process. An invalid value removes the key, and is the
    // answer for a key without a value. Without a key, the key is "".
    void setInfo(const QVariant &value, const QString &forKey = {});
    QVariant infoForKey(const QString &key) const;
    QVariant info() const { return infoForKey({}); }

    // Quitting. Thread: any; these wait on the calling thread.

    // Asks the application to end, then forces it, within a little over eight seconds; when that
    // fails, sends it the quit event and does not wait.
    void quit();
    // Asks for at most `timeout` seconds, then forces for at most as long again. Whether the
    // process has ended.
    bool quitRunningApplicationWithTimeout(float timeout);
    // Sends the event and waits for the answer, at most `timeout` seconds.
    void sendAppleEventClass(FourCharCode eventClass, FourCharCode eventID, float timeout) const;

    // Front, hidden, stopped. Failures are ignored.

    void wakeUp() const;
    void setHidden(bool hidden) const;
    void setFrontProcess() const;
    void setFrontProcessFrontWindowOnly() const;
    // Brings this program to the front, then the process with its front window only, then wakes the
    // process.
    void temporarilySwitchOut() const;

    // Accessibility notifications, delivered as ZTProcessUINotification. Thread: main.

    void installAXObserver();
    void addAXNotification(const QString &name);
    void removeAXNotification(const QString &name);
    void unregisterAXNotifications();

private:
    std::optional<zt::ProcessInformation> information() const;
    bool determineIsCocoa() const;
    QString determineVersion() const;
    std::chrono::system_clock::time_point determineLaunchDate() const;

    const zt::Platform &m_platform;
    const zt::ProcessSerialNumber m_serialNumber;

    LazyFact<zt::ProcessInformation> m_information;
    LazyFact<QString> m_displayName;
    LazyFact<QString> m_path;
    LazyFact<QVariantMap> m_infoDictionary;
    LazyFact<QString> m_version;
    LazyFact<std::chrono::system_clock::time_point> m_launchDate;
    LazyFact<QIcon> m_icon;
    LazyFact<bool> m_isCocoa;

    mutable std::mutex m_customInfoMutex;
    QVariantMap m_customInfo;

    // Accessibility, used on the main thread alone. The element stands once the application was
    // found to show its interface, also when no observer could be made for it.
    bool m_axAppElem = false;
    std::unique_ptr<zt::AccessibilityObserver> m_axObserver;
};
