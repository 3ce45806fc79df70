#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Services for unit tests: small real things that hold state, follow a script and record what they
// were asked.

#include "Platform/Appearance.h"
#include "Platform/Bundles.h"
#include "Platform/Clock.h"
#include "Platform/Log.h"
#include "Platform/LoginItems.h"
#include "Platform/Platform.h"
#include "Platform/SystemVersion.h"
#include "Platform/Trash.h"
#include "Platform/UserDefaults.h"
#include "Platform/Workspace.h"

#include "tests/fakes/FakeAccessibility.h"
#include "tests/fakes/FakeApplicationEvents.h"
#include "tests/fakes/FakeAuthorization.h"
#include "tests/fakes/FakeChildProcesses.h"
#include "tests/fakes/FakeFileSystems.h"
#include "tests/fakes/FakeInterruptions.h"
#include "tests/fakes/FakeKeyboardLayout.h"
#include "tests/fakes/FakeMenuBarEvents.h"
#include "tests/fakes/FakePasteboard.h"
#include "tests/fakes/FakeProcessManager.h"
#include "tests/fakes/FakeRunningApplications.h"
#include "tests/fakes/FakeSounds.h"
#include "tests/fakes/FakeUserInput.h"
#include "tests/fakes/FakeWindowSystem.h"

#include <QIcon>
#include <QMap>
#include <QStringList>

#include <functional>
#include <map>
#include <mutex>
#include <vector>

// Keeps the lines.
class FakeLog final : public zt::Log {
public:
    void writeLine(std::string_view message) override;
    void passOn(std::string_view lines) override;
    std::vector<std::string> recentLines() const override;
    QStringList lines() const;
    void clear();

private:
    mutable std::mutex m_mutex;
    QStringList m_lines;
};

// Stands still; sleeping and advance() move it, and delayed calls run when their time has come.
class FakeClock final : public zt::Clock {
public:
    std::chrono::system_clock::time_point now() const override;
    std::chrono::steady_clock::time_point steadyNow() const override;
    void sleepFor(std::chrono::microseconds duration) override;
    void sleepFor(std::chrono::microseconds duration, const Wait & /*wait*/) override {
        sleepFor(duration);
    }
    void callAfter(std::chrono::milliseconds delay, std::function<void()> action) override;
    void advance(std::chrono::microseconds duration);

    std::vector<std::chrono::microseconds> sleeps;
    std::chrono::microseconds tick{0}; // passes after each reading of the steady time

private:
    struct DelayedCall {
        std::chrono::microseconds due;
        std::function<void()> action;
    };

    mutable std::mutex m_mutex;
    mutable std::chrono::microseconds m_elapsed{0};
    std::vector<DelayedCall> m_delayedCalls;
};

// Bundles made up in memory, by path.
class FakeBundles final : public zt::Bundles {
public:
    std::optional<zt::Bundle> bundleAtPath(const QString &path) const override;
    const zt::Bundle &mainBundle() const override { return m_mainBundle; }
    std::optional<zt::Bundle> bundleEnclosing(const QString &path) const override;

    void add(const QString &path, const QVariantMap &information);
    void setMainBundle(const QString &path, const QVariantMap &information = {});

private:
    QMap<QString, QVariantMap> m_bundles;
    zt::Bundle m_mainBundle{{}};
};

class FakeUserDefaults final : public zt::UserDefaults {
public:
    using zt::UserDefaults::objectForKey;
    std::optional<QVariant> objectForKey(const QString &key) const override;
    std::optional<QVariant> objectForKey(const QString &key,
                                         const QString &suiteName) const override;

    QVariantMap values;
    QMap<QString, QVariantMap> suites;
};

class FakeSystemVersion final : public zt::SystemVersion {
public:
    std::optional<std::int32_t> majorVersion() const override { return major; }
    std::optional<std::int32_t> minorVersion() const override { return minor; }
    std::optional<std::int32_t> bugFixVersion() const override { return bugFix; }
    std::optional<std::uint32_t> packedVersion() const override { return packed; }
    double frameworkVersion() const override { return framework; }

    std::optional<std::int32_t> major = 12;
    std::optional<std::int32_t> minor = 4;
    std::optional<std::int32_t> bugFix = 0;
    std::optional<std::uint32_t> packed = 0x1240;
    double framework = 1671.0;
};

class FakeLoginItems final : public zt::LoginItems {
public:
    std::optional<std::vector<std::optional<QString>>> resolvedPaths() const override {
        return paths;
    }

    std::optional<std::vector<std::optional<QString>>> paths;
};

// Display names are last path components unless given; what is opened or noted is recorded.
class FakeWorkspace final : public zt::Workspace {
public:
    QIcon iconForFile(const QString &path) override;
    bool openFile(const QString &path) override;
    std::int32_t registerApplication(const QString &path) override;
    QByteArray registrationForTool(const QString &bundle, const QString &destination) override {
        return (bundle + QStringLiteral(" at ") + destination).toUtf8();
    }
    bool openUrl(const QUrl &url) override;
    QString displayName(const QString &path) const override;
    void noteFileSystemChanged(const QString &path) override;
    QStringList applicationsFolders(Domain domain) const override;
    void startOpening(const QString &path) override;
    std::optional<QString> volumeOf(const QString &path) const override;
    std::optional<QString> targetOfAlias(const QString &path) const override;
    void beep() override { ++beeps; }

    QStringList localApplications;
    QStringList userApplications;
    QMap<QString, QString> displayNames;
    QIcon icon;
    QStringList iconRequests;
    int iconsMissing = 0; // so many requests for an icon are answered with none
    QStringList openedFiles;
    int opensThatFail = 0; // so many requests to open are answered with no
    QStringList registered;
    std::int32_t registrationStatus = 0;
    QList<QUrl> openedUrls;
    QStringList notedChanges;
    QStringList startedOpenings;
    std::function<void()> whenStartedOpening;
    QStringList volumes;
    QMap<QString, QString> aliases;
    int beeps = 0;

private:
    std::mutex m_mutex;
};

class FakeAppearance final : public zt::Appearance {
public:
    std::optional<Scheme> preferredScheme() const override { return m_scheme; }
    bool prefersMoreContrast() const override { return m_prefersMoreContrast; }
    ControlTint controlTint() const override { return tint; }
    std::optional<zt::AccentColor> accentColor() const override { return accent; }
    void setChangeListener(const void *owner, std::function<void()> changed) override;
    void setScheme(std::optional<Scheme> scheme);
    void setPrefersMoreContrast(bool prefersMoreContrast);
    std::size_t listenerCount() const { return m_listeners.size(); }

    ControlTint tint = ControlTint::Blue;
    std::optional<zt::AccentColor> accent;

private:
    void tellListeners() const;

    std::optional<Scheme> m_scheme;
    bool m_prefersMoreContrast = false;
    std::map<const void *, std::function<void()>> m_listeners; // by owner
};

// A Trash in a folder of the test's own.
class FakeTrash final : public zt::Trash {
public:
    zt::Result<std::string> moveToTrash(const std::string &path) override;

    std::string folder;                   // where trashed items go; must exist
    bool refuses = false;                 // answers an error instead
    std::function<void()> whenAsked = {}; // called first
};

// All fakes, and the platform made of them.
struct FakePlatform {
    FakeLog log;
    FakeClock clock;
    FakeChildProcesses childProcesses;
    FakeBundles bundles;
    FakeUserDefaults userDefaults;
    FakeSystemVersion systemVersion;
    FakeLoginItems loginItems;
    FakeWorkspace workspace;
    FakeAppearance appearance;
    FakeTrash trash;
    FakeWindowSystem windowSystem;
    FakeProcessManager processManager;
    FakeRunningApplications runningApplications;
    FakeApplicationEvents applicationEvents;
    FakeAccessibility accessibility;
    FakeAuthorization authorization;
    FakeKeyboardLayout keyboardLayout;
    FakeSounds sounds;
    FakeMenuBarEvents menuBarEvents;
    FakePasteboard pasteboard;
    FakeUserInput userInput;
    FakeFileSystems fileSystems;
    FakeInterruptions interruptions;
    zt::Platform services{.log = log,
                          .clock = clock,
                          .childProcesses = childProcesses,
                          .bundles = bundles,
                          .userDefaults = userDefaults,
                          .systemVersion = systemVersion,
                          .loginItems = loginItems,
                          .workspace = workspace,
                          .appearance = appearance,
                          .trash = trash,
                          .windowSystem = windowSystem,
                          .processManager = processManager,
                          .runningApplications = runningApplications,
                          .applicationEvents = applicationEvents,
                          .accessibility = accessibility,
                          .authorization = authorization,
                          .keyboardLayout = keyboardLayout,
                          .sounds = sounds,
                          .menuBarEvents = menuBarEvents,
                          .pasteboard = pasteboard,
                          .userInput = userInput,
                          .fileSystems = fileSystems,
                          .interruptions = interruptions};
    zt::ScopedPlatform current{services};
};
