// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fakes/FakePlatform.h"

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

void FakeLog::writeLine(std::string_view message) {
    const std::scoped_lock lock(m_mutex);
    m_lines << QString::fromUtf8(message.data(), static_cast<qsizetype>(message.size()));
}

void FakeLog::passOn(std::string_view lines) {
    const std::scoped_lock lock(m_mutex);
    m_lines << QString::fromUtf8(lines.data(), static_cast<qsizetype>(lines.size()))
                   .split(u'\n', Qt::SkipEmptyParts);
}

std::vector<std::string> FakeLog::recentLines() const {
    std::vector<std::string> recent;
    for (const QString &line : lines())
        recent.push_back(line.toStdString());
    return recent;
}

QStringList FakeLog::lines() const {
    const std::scoped_lock lock(m_mutex);
    return m_lines;
}

void FakeLog::clear() {
    const std::scoped_lock lock(m_mutex);
    m_lines.clear();
}

std::chrono::system_clock::time_point FakeClock::now() const {
    const std::scoped_lock lock(m_mutex);
    return std::chrono::system_clock::time_point(m_elapsed);
}

std::chrono::steady_clock::time_point FakeClock::steadyNow() const {
    const std::scoped_lock lock(m_mutex);
    const std::chrono::steady_clock::time_point reading(m_elapsed);
    m_elapsed += tick;
    return reading;
}

void FakeClock::sleepFor(std::chrono::microseconds duration) {
    const std::scoped_lock lock(m_mutex);
    sleeps.push_back(duration);
    m_elapsed += duration;
}

void FakeClock::callAfter(std::chrono::milliseconds delay, std::function<void()> action) {
    const std::scoped_lock lock(m_mutex);
    m_delayedCalls.push_back({m_elapsed + delay, std::move(action)});
}

void FakeClock::advance(std::chrono::microseconds duration) {
    std::vector<DelayedCall> due;
    {
        const std::scoped_lock lock(m_mutex);
        m_elapsed += duration;
        const auto firstDue =
            std::stable_partition(m_delayedCalls.begin(), m_delayedCalls.end(),
                                  [this](const DelayedCall &call) { return call.due > m_elapsed; });
        due.assign(firstDue, m_delayedCalls.end());
        m_delayedCalls.erase(firstDue, m_delayedCalls.end());
    }
    std::stable_sort(due.begin(), due.end(),
                     [](const DelayedCall &a, const DelayedCall &b) { return a.due < b.due; });
    for (const DelayedCall &call : due)
        call.action();
}

std::optional<zt::Bundle> FakeBundles::bundleAtPath(const QString &path) const {
    const auto found = m_bundles.constFind(path);
    if (found == m_bundles.cend())
        return std::nullopt;
    const QString program = found->value(u"CFBundleExecutable"_s).toString();
    return zt::Bundle(
        {.path = path,
         .resourcesPath = path + u"/Contents/Resources"_s,
         .executablePath = program.isEmpty() ? QString() : path + u"/Contents/Linux/"_s + program,
         .information = *found});
}

std::optional<zt::Bundle> FakeBundles::bundleEnclosing(const QString &path) const {
    for (auto bundle = m_bundles.cbegin(); bundle != m_bundles.cend(); ++bundle) {
        if (path == bundle.key() || path.startsWith(bundle.key() + u'/'))
            return bundleAtPath(bundle.key());
    }
    return std::nullopt;
}

void FakeBundles::add(const QString &path, const QVariantMap &information) {
    m_bundles.insert(path, information);
}

void FakeBundles::setMainBundle(const QString &path, const QVariantMap &information) {
    m_mainBundle = zt::Bundle({.path = path,
                               .resourcesPath = path + u"/Contents/Resources"_s,
                               .executablePath = {},
                               .information = information});
}

std::optional<QVariant> FakeUserDefaults::objectForKey(const QString &key) const {
    const auto found = values.constFind(key);
    return found == values.cend() ? std::nullopt : std::optional(*found);
}

std::optional<QVariant> FakeUserDefaults::objectForKey(const QString &key,
                                                       const QString &suiteName) const {
    const QVariantMap suite = suites.value(suiteName);
    const auto found = suite.constFind(key);
    return found == suite.cend() ? std::nullopt : std::optional(*found);
}

QIcon FakeWorkspace::iconForFile(const QString &path) {
    iconRequests << path;
    return iconRequests.size() <= iconsMissing ? QIcon() : icon;
}

bool FakeWorkspace::openFile(const QString &path) {
    openedFiles << path;
    return openedFiles.size() > opensThatFail;
}

std::int32_t FakeWorkspace::registerApplication(const QString &path) {
    registered << path;
    return registrationStatus;
}

bool FakeWorkspace::openUrl(const QUrl &url) {
    openedUrls << url;
    return true;
}

QString FakeWorkspace::displayName(const QString &path) const {
    return displayNames.value(path, path.section(u'/', -1));
}

void FakeWorkspace::noteFileSystemChanged(const QString &path) {
    const std::scoped_lock lock(m_mutex);
    notedChanges << path;
}

QStringList FakeWorkspace::applicationsFolders(Domain domain) const {
    return domain == Domain::Local ? localApplications : userApplications;
}

void FakeAppearance::setChangeListener(const void *owner, std::function<void()> changed) {
    if (changed)
        m_listeners[owner] = std::move(changed);
    else
        m_listeners.erase(owner);
}

void FakeWorkspace::startOpening(const QString &path) {
    startedOpenings << path;
    if (whenStartedOpening)
        whenStartedOpening();
}

std::optional<QString> FakeWorkspace::volumeOf(const QString &path) const {
    for (const QString &volume : volumes) {
        if (path == volume || path.startsWith(volume + u'/'))
            return volume;
    }
    return std::nullopt;
}

std::optional<QString> FakeWorkspace::targetOfAlias(const QString &path) const {
    const auto found = aliases.constFind(path);
    return found == aliases.cend() ? std::nullopt : std::optional(*found);
}

void FakeAppearance::setScheme(std::optional<Scheme> scheme) {
    m_scheme = scheme;
    tellListeners();
}

void FakeAppearance::setPrefersMoreContrast(bool prefersMoreContrast) {
    m_prefersMoreContrast = prefersMoreContrast;
    tellListeners();
}

void FakeAppearance::tellListeners() const {
    const auto listeners = m_listeners;
    for (const auto &[owner, changed] : listeners)
        changed();
}

zt::Result<std::string> FakeTrash::moveToTrash(const std::string &path) {
    if (whenAsked)
        whenAsked();
    if (refuses)
        return zt::Error{"trash", path, "refused by the test"};
    const std::string target = folder + '/' + std::filesystem::path(path).filename().string();
    std::error_code failure;
    std::filesystem::rename(path, target, failure);
    if (failure)
        return zt::Error{"trash", path, failure.message(), failure.value()};
    return target;
}
