#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The workspace on a Linux desktop: icon theme, default applications, file managers.

#include "Platform/Workspace.h"
#include "Platform/linux/registration/DesktopRegistration.h"

namespace zt {

class Bundle;
class Bundles;
class Clock;
class Log;
class WindowSystem;

class DesktopWorkspace final : public Workspace {
public:
    struct Folders {
        // What stands before "/Applications" and the folders of media; empty on a real system.
        QString root;
        QString home;
        QString userData;       // where this user's applications are registered
        QStringList systemData; // and those of all users, the first one winning
    };

    // Services that outlive this.
    struct Services {
        const Bundles &bundles;
        const WindowSystem &windowSystem;
        Clock &clock;
        Log &log;
    };

    DesktopWorkspace(Folders folders, const Services &services);

    QIcon iconForFile(const QString &path) override;
    bool openFile(const QString &path) override;
    void startOpening(const QString &path) override;
    std::optional<QString> targetOfAlias(const QString &path) const override;
    std::optional<QString> volumeOf(const QString &path) const override;
    std::int32_t registerApplication(const QString &path) override;
    QByteArray registrationForTool(const QString &bundle, const QString &destination) override;
    bool openUrl(const QUrl &url) override;
    QString displayName(const QString &path) const override;
    void noteFileSystemChanged(const QString &path) override;
    QStringList applicationsFolders(Domain domain) const override;
    void beep() override;

private:
    bool launch(const Bundle &bundle);

    Folders m_folders;
    Services m_services;
    DesktopRegistration m_registration;
};

} // namespace zt
