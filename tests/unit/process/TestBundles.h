#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Bundles with programs that run, in a folder of a test's own.

#include <QString>
#include <QTemporaryDir>
#include <QVariantMap>

#include <string>

class TestBundles {
public:
    enum class Layout { Contents, Flat, OldText };

    // The folder's real path, without a slash at the end.
    QString folder() const;
    QString path(const QString &relative) const;

    // A bundle "<name>.app" whose information dictionary holds these strings, and whose program
    // "program" sleeps for as many seconds as it is told. The bundle's path.
    QString add(const QString &name, const QVariantMap &information = {},
                Layout layout = Layout::Contents) const;

    // The program of a bundle with a Contents folder.
    static std::string program(const QString &bundlePath);

    // Writes a file below the folder, with the folders that lead to it. Its path.
    QString write(const QString &relative, const QByteArray &content) const;
    void makeExecutable(const QString &path) const;

private:
    QTemporaryDir m_folder;
};
