// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/Waiting.h"
#include "tests/unattended/ProgramFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class UnattendedProgramTest : public ProgramFixture {
protected:
    QStringList unattended(const QStringList &more = {}) const {
        return QStringList{u"-unattended"_s,      u"YES"_s,
                           u"-sourcePath"_s,      path(u"Disk/Demo.app"_s),
                           u"-destinationPath"_s, destination()} +
               more;
    }

    QString destination() const { return path(u"Applications/Demo.app"_s); }
    bool isInstalled() const { return QFileInfo::exists(destination()); }
};

TEST_F(UnattendedProgramTest, withoutADisplayTheProductIsInstalledAndRegistered) {
    const Run done = run(unattended());
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.output, "Demo was successfully installed.\n");
    EXPECT_EQ(done.error.count('\n'), 10) << done.error.constData();
    EXPECT_TRUE(done.error.startsWith("Copying Demo: 10 %\n")) << done.error.constData();
    EXPECT_TRUE(done.error.endsWith("Copying Demo: 100 %\n")) << done.error.constData();
    EXPECT_TRUE(QFileInfo(destination() + u"/Contents/Linux/Demo"_s).isExecutable());
    QFile entry(path(u"home/.local/share/applications/org.example.Demo.desktop"_s));
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    EXPECT_TRUE(entry.readAll().contains("TryExec=" + destination().toUtf8()));
    EXPECT_TRUE(log().contains("registered app: 0"));
    EXPECT_FALSE(log().contains("] launching "));
}

TEST_F(UnattendedProgramTest, anEarlierCopyGoesToTheTrash) {
    makeProduct(u"Applications/Demo.app"_s, "1.0");
    makeFile(u"Applications/Demo.app/old"_s, "old");
    EXPECT_EQ(run(unattended()).status, 0);
    EXPECT_TRUE(QFileInfo::exists(path(u"home/.local/share/Trash/files/Demo.app/old"_s)));
    EXPECT_FALSE(QFileInfo::exists(destination() + u"/old"_s));
}

TEST_F(UnattendedProgramTest, aReaderThatGoesAwayDoesNotEndTheCopy) {
    handOver();
    const auto process = installer(unattended());
    process->start();
    process->closeReadChannel(QProcess::StandardError);
    process->closeReadChannel(QProcess::StandardOutput);
    EXPECT_EQ(finish(*process).status, 0);
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/Contents/Linux/Demo"_s));
}

TEST_F(UnattendedProgramTest, onATerminalTheProgressIsOneLine) {
    if (QStandardPaths::findExecutable(u"script"_s).isEmpty())
        GTEST_SKIP() << "script, which gives a program a terminal, is not installed";
    handOver();
    QStringList words = QStringList{QStringLiteral(INSTALLER)} + unattended();
    for (QString &word : words)
        word = u'\'' + word + u'\'';
    const auto process = program(u"script"_s, {u"-qec"_s, words.join(u' '), u"/dev/null"_s});
    process->start();
    process->closeWriteChannel();
    const Run done = finish(*process);
    EXPECT_EQ(done.status, 0);
    EXPECT_TRUE(done.output.contains("\rCopying Demo: 100 %")) << done.output.constData();
    EXPECT_TRUE(done.output.endsWith("Demo was successfully installed.\r\n"));
}

TEST_F(UnattendedProgramTest, aValueThatIsNeitherYesNorNoIsABadArgument) {
    const Run done = run({u"-unattended"_s, u"true"_s});
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.output, "The value of -unattended must be one of YES, NO, not \"true\".\n");
    EXPECT_EQ(log(), "");
}

TEST_F(UnattendedProgramTest, withoutAProductTheArgumentsAreBad) {
    const Run done = run({u"-unattended"_s, u"YES"_s});
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.output, "missing source path\n");
}

TEST_F(UnattendedProgramTest, whereThisUserMayNotWriteItIsNotAuthorised) {
    handOver();
    const QByteArray folder = QFile::encodeName(path(u"Applications"_s));
    ASSERT_EQ(chmod(folder.constData(), 0555), 0);
    const auto process = installer(unattended());
    process->start();
    const Run done = finish(*process);
    EXPECT_EQ(done.status, 4);
    EXPECT_TRUE(done.output.startsWith("Only an administrator may install Demo in " + folder))
        << done.output.constData();
    ASSERT_EQ(chmod(folder.constData(), 0755), 0);
}

TEST_F(UnattendedProgramTest, whatCannotBeCopiedEndsIt) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"Disk/Demo.app/pipe"_s)).constData(), 0644), 0);
    const Run done = run(unattended());
    EXPECT_EQ(done.status, 5);
    EXPECT_EQ(done.output, "Installation failed. Try installing Demo manually by copying it to the "
                           "Applications folder.\n");
    EXPECT_TRUE(log().contains("ERROR -- Could not copy myself to ")) << log().constData();
    EXPECT_TRUE(QDir(path(u"Applications"_s))
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(UnattendedProgramTest, aSystemThatIsTooOldIsLeftAlone) {
    const Run done = run(unattended({u"-minSystemVersion"_s, u"99999"_s}));
    EXPECT_EQ(done.status, 6);
    EXPECT_EQ(done.output, "Demo 2.0 cannot be installed on this computer because it requires Mac "
                           "OS X 99999 or newer.\n");
    EXPECT_FALSE(isInstalled());
}

TEST_F(UnattendedProgramTest, aRunningCopyIsQuit) {
    makeProduct(u"Applications/Demo.app"_s, "1.0");
    handOver();
    const auto old = program(destination() + u"/Contents/Linux/Demo"_s, {u"1000"_s});
    old->start();
    ASSERT_TRUE(old->waitForStarted());
    const Run done = run(unattended());
    EXPECT_EQ(done.status, 0);
    EXPECT_TRUE(old->waitForFinished(-1));
    EXPECT_TRUE(log().contains("Quitting '" + signature() + "': Demo")) << log().constData();
}

// The product runs, and whenever it ends, it is started again.
class UnattendedWithObstinateCopyTest : public UnattendedProgramTest {
protected:
    UnattendedWithObstinateCopyTest() {
        makeProduct(u"Applications/Demo.app"_s, "1.0");
        makeFile(u"Applications/Demo.app/old"_s, "old");
        handOver();
        m_starter = program(u"sh"_s, {u"-c"_s, u"while :; do \"$0\" 1000; done"_s,
                                      destination() + u"/Contents/Linux/Demo"_s});
        const auto becomeUser = m_starter->childProcessModifier();
        m_starter->setChildProcessModifier([becomeUser] {
            setsid();
            becomeUser();
        });
        m_starter->start();
        EXPECT_TRUE(m_starter->waitForStarted());
    }

    void TearDown() override {
        kill(-pid_t(m_starter->processId()), SIGKILL);
        m_starter->waitForFinished();
    }

    bool oldCopyIsThere() { return QFileInfo::exists(destination() + u"/old"_s); }

private:
    std::unique_ptr<QProcess> m_starter;
};

TEST_F(UnattendedWithObstinateCopyTest, aCopyThatDoesNotGiveWayEndsIt) {
    const Run done = run(unattended());
    EXPECT_EQ(done.status, 3);
    EXPECT_EQ(done.output, "Demo cannot be running during the installation. Quit Demo, then start "
                           "the installation again.\n");
    EXPECT_TRUE(oldCopyIsThere());
}

class UnattendedSignalTest : public UnattendedWithObstinateCopyTest,
                             public testing::WithParamInterface<int> {};

TEST_P(UnattendedSignalTest, aRequestToEndCancelsIt) {
    const auto process = installer(unattended());
    process->start();
    ASSERT_TRUE(eventually([this] { return log().contains("Quitting '" + signature()); }));
    ASSERT_EQ(kill(pid_t(process->processId()), GetParam()), 0);
    const Run done = finish(*process);
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(done.output, "The installation was stopped.\n");
    EXPECT_TRUE(oldCopyIsThere());
}

INSTANTIATE_TEST_SUITE_P(Signals, UnattendedSignalTest, testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto &row) { return 'n' + std::to_string(row.param); });

// What root installs with folders of the machine's that only this test sees.
class UnattendedAsRootTest : public UnattendedProgramTest {
protected:
    static constexpr int cannotMount = 77;

    Run runAsRoot(const QStringList &arguments) const {
        makeFolder(u"share"_s);
        makeFolder(u"opt"_s);
        const auto process = installer(arguments);
        const QByteArray share = QFile::encodeName(path(u"share"_s));
        const QByteArray opt = QFile::encodeName(path(u"opt"_s));
        process->setChildProcessModifier([share, opt] {
            const bool hasMounts =
                unshare(CLONE_NEWNS) == 0 &&
                mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                mount(share.constData(), "/usr/local/share", nullptr, MS_BIND, nullptr) == 0 &&
                mount(opt.constData(), "/opt", nullptr, MS_BIND, nullptr) == 0;
            if (!hasMounts)
                _exit(cannotMount);
        });
        process->start();
        return finish(*process);
    }
};

TEST_F(UnattendedAsRootTest, theProductBecomesRootsAndIsForAllUsers) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root installs for all users";
    handOver();
    const Run done =
        runAsRoot({u"-unattended"_s, u"YES"_s, u"-sourcePath"_s, path(u"Disk/Demo.app"_s),
                   u"-destinationPath"_s, u"/opt/Demo.app"_s});
    if (done.status == cannotMount)
        GTEST_SKIP() << "there can be no private mounts";
    EXPECT_EQ(done.status, 0) << done.output.constData() << log().constData();
    EXPECT_EQ(QFileInfo(path(u"opt/Demo.app/Contents/Linux/Demo"_s)).ownerId(), 0U);
    EXPECT_TRUE(QFileInfo::exists(path(u"share/applications/org.example.Demo.desktop"_s)))
        << log().constData();
    EXPECT_FALSE(QFileInfo::exists(path(u"home/.local/share/applications"_s)));
}

TEST_F(UnattendedProgramTest, aCheckSaysWhatWouldHappenAndLeavesNoTraces) {
    const Run report = run(unattended({u"-check"_s, u"YES"_s}));
    EXPECT_EQ(report.status, 0);
    EXPECT_TRUE(report.output.startsWith(
        "Product: Demo 2.0\nFrom: " + QFile::encodeName(path(u"Disk/Demo.app"_s)) +
        "\nTo: " + QFile::encodeName(destination()) + '\n'))
        << report.output.constData();
    EXPECT_TRUE(report.output.endsWith("\nDemo can be installed.\n")) << report.output.constData();
    EXPECT_EQ(report.error, "");
    EXPECT_FALSE(isInstalled());
    EXPECT_TRUE(
        QDir(path(u"home"_s)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(UnattendedProgramTest, aCheckForProgramsIsOneJsonObjectAlsoForBadArguments) {
    const QJsonObject good =
        QJsonDocument::fromJson(run(unattended({u"-check"_s, u"JSON"_s})).output).object();
    EXPECT_EQ(good.value(u"status"_s).toInt(-1), 0);
    EXPECT_EQ(good.value(u"destinationPath"_s).toString(), destination());
    EXPECT_GT(good.value(u"bytesNeeded"_s).toInteger(), 1000);
    EXPECT_GT(good.value(u"bytesAvailable"_s).toInteger(), 1000);
    const Run bad = run({u"-check"_s, u"JSON"_s});
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(QJsonDocument::fromJson(bad.output).object(),
              (QJsonObject{{u"status"_s, 2}, {u"message"_s, u"missing source path"_s}}));
}

TEST_F(UnattendedProgramTest, helpNamesEveryExitStatusAndTheVersionIsTold) {
    const Run help = run({u"--help"_s});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.startsWith("Usage: VelmoraInstaller "));
    for (const char *status : {"0 installed", "1 cancelled", "2 bad arguments", "3 the product",
                               "4 not authorised", "5 the copy", "6 the system"})
        EXPECT_TRUE(help.output.contains(status)) << status;
    const Run version = run({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "VelmoraInstaller " VELMORA_VERSION "\n");
}
