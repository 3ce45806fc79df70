#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What holds for ordinary users, tested by root as well.

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

#include <unistd.h> // setresuid

// Root may write everywhere. While this lives, a test that runs as root is an ordinary user.
class AsOrdinaryUser {
public:
    explicit AsOrdinaryUser(const QString &ownFolder) : m_wasRoot(geteuid() == 0) {
        if (!m_wasRoot)
            return;
        const QByteArray folder = QFile::encodeName(ownFolder);
        EXPECT_EQ(chown(folder.constData(), nobody, nobody), 0);
        EXPECT_EQ(setresuid(nobody, nobody, 0), 0);
    }
    ~AsOrdinaryUser() {
        if (m_wasRoot) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    AsOrdinaryUser(const AsOrdinaryUser &) = delete;
    AsOrdinaryUser &operator=(const AsOrdinaryUser &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    bool m_wasRoot;
};
