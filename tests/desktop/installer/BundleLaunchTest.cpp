// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Launching a bundle's program: what it finds when it begins.

#include "Platform/linux/BundleLaunch.h"
#include "tests/Waiting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class BundleLaunchTest : public testing::Test {
protected:
    // Launches a program that runs the lines of shell and keeps what they print.
    QString launch(const QByteArray &lines) {
        const QString program = folder.filePath(u"program"_s);
        const QString output = folder.filePath(u"output"_s);
        QFile file(program);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/bash\n{ " + lines + "; } >'" + output.toUtf8() + ".new'\nmv '" +
                   output.toUtf8() + ".new' '" + output.toUtf8() + "'\n");
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const zt::Bundle bundle({.path = folder.path(),
                                 .resourcesPath = folder.path(),
                                 .executablePath = program,
                                 .information = {}});
        pid = zt::launchBundle(bundle, QDir::homePath());
        EXPECT_TRUE(pid);
        EXPECT_TRUE(eventually([&] { return QFile::exists(output); }));
        QFile result(output);
        EXPECT_TRUE(result.open(QIODevice::ReadOnly));
        return QString::fromUtf8(result.readAll()).trimmed();
    }

    QTemporaryDir folder;
    std::optional<std::int32_t> pid;
};

TEST_F(BundleLaunchTest, theProcessIdIsTheProgramsOwn) {
    const QString seen = launch("echo $$");
    EXPECT_EQ(seen, QString::number(*pid));
}

TEST_F(BundleLaunchTest, theProgramLeadsASessionOfItsOwnInTheHomeFolder) {
    const QString seen = launch("ps -o sid= -p $$; pwd");
    EXPECT_EQ(seen.split(u'\n'), (QStringList{QString::number(*pid), QDir::homePath()}));
}

TEST_F(BundleLaunchTest, nothingOfThisProgramIsOpenThere) {
    const int inherited = ::open("/dev/zero", O_RDONLY); // NOLINT(android-cloexec-open)
    ASSERT_GE(inherited, 0);
    const QString descriptors = launch("ls -l /proc/$$/fd | sed 's/.* -> //'");
    ::close(inherited);
    EXPECT_FALSE(descriptors.contains(u"/dev/zero"_s)) << descriptors.toStdString();
    EXPECT_TRUE(descriptors.contains(u"/dev/null"_s)) << descriptors.toStdString();
}

TEST_F(BundleLaunchTest, theUsersEnvironmentStaysAndThatOfThisStartGoes) {
    qputenv("VELMORA_TEST", "kept");
    qputenv("LISTEN_FDS", "3");
    qputenv("DESKTOP_STARTUP_ID", "old");
    EXPECT_EQ(launch("echo $VELMORA_TEST; echo ${LISTEN_FDS-gone}").split(u'\n'),
              (QStringList{u"kept"_s, u"gone"_s}));
}

TEST_F(BundleLaunchTest, aTokenTellsTheTimeOfTheLaunch) {
    const QString token = launch("echo $DESKTOP_STARTUP_ID");
    const qsizetype time = token.lastIndexOf(u"_TIME"_s);
    ASSERT_GT(time, 0) << token.toStdString();
    EXPECT_GT(token.mid(time + 5).toUInt(), 0U);
}

TEST_F(BundleLaunchTest, aProgramThatCannotBeStartedIsToldAtOnce) {
    const zt::Bundle bundle({.path = folder.path(),
                             .resourcesPath = folder.path(),
                             .executablePath = folder.filePath(u"missing"_s),
                             .information = {}});
    EXPECT_FALSE(zt::launchBundle(bundle, QDir::homePath()));
}
