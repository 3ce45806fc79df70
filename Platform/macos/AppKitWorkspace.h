#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The workspace of AppKit, and the services behind it.

#include "Platform/Workspace.h"

namespace zt {

class Log;

class AppKitWorkspace final : public Workspace {
public:
    // The log outlives this.
    explicit AppKitWorkspace(Log &log) : m_log(log) {}

    QIcon iconForFile(const QString &path) override;
    bool openFile(const QString &path) override;
    void startOpening(const QString &path) override;
    std::optional<QString> targetOfAlias(const QString &path) const override;
    std::optional<QString> volumeOf(const QString &path) const override;
    std::int32_t registerApplication(const QString &path) override;
    // The system finds applications in the folders of all users by itself: there is nothing to
    // tell.
    QByteArray registrationForTool(const QString &bundle, const QString &destination) override;
    bool openUrl(const QUrl &url) override;
    QString displayName(const QString &path) const override;
    void noteFileSystemChanged(const QString &path) override;
    QStringList applicationsFolders(Domain domain) const override;
    void beep() override;

private:
    Log &m_log;
};

} // namespace zt
