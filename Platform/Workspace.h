#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the desktop does for its applications: icons and names of files, opening them, telling
// other programs of changes, and the standard folders.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <optional>

class QIcon; // so that this header needs QtCore alone

namespace zt {

class Workspace {
public:
    enum class Domain { Local, User };

    virtual ~Workspace() = default;

    // The icon that the desktop shows for the file, a bundle's own icon for a bundle. A null icon
    // when there is none. Thread: main.
    virtual QIcon iconForFile(const QString &path) = 0;

    // Opens the document in the application that the desktop assigns to it, or starts the bundle.
    // Answers whether that was under way. Thread: any.
    virtual bool openFile(const QString &path) = 0;

    // The same without an answer and without waiting for a window. Does nothing when the path is
    // empty or nothing is there. Thread: any.
    virtual void startOpening(const QString &path) = 0;

    // What a shortcut to another item leads to in the end, through all others on the way; absolute.
    // No value when the item is no shortcut, and when nothing is at the end. Thread: any.
    virtual std::optional<QString> targetOfAlias(const QString &path) const = 0;

    // The top folder of the volume, where it has the place and the name that the desktop gives to
    // disks, disk images and other media; without a look at whether it is there. No value for a
    // path that is on none. Thread: any.
    virtual std::optional<QString> volumeOf(const QString &path) const = 0;

    // Makes the bundle known to the desktop: its name, its icon, the types of files and addresses
    // that it opens. What is known of a bundle with the same identifier is replaced. 0, or the
    // number of an error, which is told in the log too. Thread: any.
    virtual std::int32_t registerApplication(const QString &path) = 0;

    // What the privileged tool has to be told to make the bundle, installed at the destination,
    // known to all users of this computer. Empty when there is nothing to tell. Thread: any.
    virtual QByteArray registrationForTool(const QString &bundle, const QString &destination) = 0;

    // Opens the address in the default browser or other handler. Answers whether that was under
    // way. Thread: any.
    virtual bool openUrl(const QUrl &url) = 0;

    // The name under which the desktop shows the item: localized, and without an extension that is
    // hidden from users. The last path component when there is nothing better. Thread: any.
    virtual QString displayName(const QString &path) const = 0;

    // Tells the desktop's file managers that something changed at the path. Thread: any.
    virtual void noteFileSystemChanged(const QString &path) = 0;

    // The folders in which applications are kept, absolute; they need not exist. Thread: any.
    virtual QStringList applicationsFolders(Domain domain) const = 0;

    // Sounds the alert. Thread: main.
    virtual void beep() = 0;

protected:
    Workspace() = default;
    Workspace(const Workspace &) = default;
    Workspace &operator=(const Workspace &) = default;
};

} // namespace zt
