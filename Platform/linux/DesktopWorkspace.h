#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The workspace on a Linux desktop: icon theme, default applications, file managers.

#include "Platform/Workspace.h"

namespace zt {

class Bundles;

class DesktopWorkspace final : public Workspace {
public:
    struct Folders {
        QString root; // what stands before "/Applications"; empty on a real system
        QString home;
    };

    // `bundles` must outlive this.
    DesktopWorkspace(Folders folders, const Bundles &bundles);

    QIcon iconForFile(const QString &path) override;
    bool openFile(const QString &path) override;
    bool openUrl(const QUrl &url) override;
    QString displayName(const QString &path) const override;
    void noteFileSystemChanged(const QString &path) override;
    QStringList applicationsFolders(Domain domain) const override;
    void beep() override;

private:
    Folders m_folders;
    const Bundles &m_bundles;
};

} // namespace zt
