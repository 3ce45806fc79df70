#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer as a program of its own, without a display and without a session bus, in a home
// folder of the test's.

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

class ProgramFixture : public testing::Test {
protected:
    ProgramFixture();

    struct Run {
        int status = -1;
        QByteArray output;
        QByteArray error;
    };

    QString path(const QString &relative) const { return m_world.filePath(relative); }
    void makeFolder(const QString &relative) const;
    void makeFile(const QString &relative, const QByteArray &content) const;

    // The product's signature: this test's alone, for others run at the same time, and what bears
    // the signature is quit.
    static QByteArray signature();

    // A product "Demo" whose program sleeps for as many seconds as it is told.
    QString makeProduct(const QString &relative, const QByteArray &version) const;

    // Gives all of the world to the user that the installer runs as, who is not root.
    void handOver() const;

    // The installer, not started yet, as that user.
    std::unique_ptr<QProcess> installer(const QStringList &arguments) const;
    // The same from its start to its end.
    Run run(const QStringList &arguments) const;
    static Run finish(QProcess &process);

    // Another program as that user.
    std::unique_ptr<QProcess> program(const QString &file, const QStringList &arguments) const;

    QByteArray log() const;

private:
    QTemporaryDir m_world;
};
