// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer as a user runs it who may not write to the applications folder.

#include "tests/desktop/polkit/PolkitAgent.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;
using Answer = PolkitAgent::Answer;

namespace {

const QString destination = u"/Applications/Sample Notes.app"_s;
const QString failed = u"ERROR -- Could not copy myself to /Applications with authorization"_s;

QString productInBuildFolder() {
    // Next to the folders of the tests.
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           u"/../../../Sample Notes.app"_s);
}

} // namespace

class PrivilegedInstallTest : public testing::Test {
protected:
    ~PrivilegedInstallTest() override {
        if (m_installer.state() != QProcess::NotRunning) {
            m_installer.kill();
            m_installer.waitForFinished();
        }
        if (HasFailure())
            ADD_FAILURE() << m_log.toStdString();
    }

    // Starts the product's own installer and waits for its window.
    void start(const QString &product = productInBuildFolder()) {
        m_installer.setProcessChannelMode(QProcess::MergedChannels);
        QObject::connect(&m_installer, &QProcess::readyRead,
                         [this] { m_log += QString::fromUtf8(m_installer.readAll()); });
        m_installer.start(product + u"/Contents/Resources/VelmoraInstaller.app/Contents/Linux/"
                                    "VelmoraInstaller"_s,
                          {u"-destinationPath"_s, destination});
        ASSERT_TRUE(m_installer.waitForStarted());
        ASSERT_TRUE(eventually([] { return hasWindow(u"Install Sample Notes"_s); }));
        focus(u"Install Sample Notes"_s);
    }

    PolkitAgent &answer(Answer answer) {
        m_agent = std::make_unique<PolkitAgent>(answer);
        EXPECT_TRUE(m_agent->registerFor(m_installer.processId()));
        return *m_agent;
    }

    void pressInstall() { QProcess::execute(u"xdotool"_s, {u"key"_s, u"Return"_s}); }

    static bool hasWindow(const QString &title) {
        return QProcess::execute(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--name"_s,
                                                u'^' + title + u'$'}) == 0;
    }

    static void focus(const QString &title) {
        QProcess::execute(u"xdotool"_s,
                          {u"search"_s, u"--name"_s, u'^' + title + u'$', u"windowactivate"_s,
                           u"--sync"_s});
    }

    template <typename Condition>
    static bool eventually(Condition condition) {
        return QTest::qWaitFor(condition, 30'000);
    }

    bool isLogged(const QString &text) const { return m_log.contains(text); }
    bool isEventuallyLogged(const QString &text) {
        return eventually([&] { return isLogged(text); });
    }

    static QStringList contentOfApplications() {
        return QDir(u"/Applications"_s)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    // A copy of the product that belongs to this user.
    static QString ownCopy(const QString &folder) {
        QDir().mkpath(folder);
        QProcess::execute(u"cp"_s, {u"-r"_s, productInBuildFolder(), folder});
        return folder + u"/Sample Notes.app"_s;
    }

    QProcess m_installer;

private:
    QString m_log;
    std::unique_ptr<PolkitAgent> m_agent;
};

TEST_F(PrivilegedInstallTest, withThePasswordTheProductIsInstalledAndLaunched) {
    start();
    PolkitAgent &agent = answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(u"launched immediately: 1"_s));
    EXPECT_EQ(agent.requests, 1);
    EXPECT_TRUE(agent.message.contains(u"/train"_s)) << agent.message.toStdString();
    EXPECT_FALSE(isLogged(u"not authorized"_s));
    const QFileInfo program(destination + u"/Contents/Linux/SampleNotes"_s);
    EXPECT_TRUE(program.isExecutable());
    EXPECT_EQ(program.ownerId(), 0U);
    EXPECT_FALSE(program.isWritable());
    EXPECT_EQ(contentOfApplications(), QStringList{u"Sample Notes.app"_s});
    EXPECT_TRUE(eventually([] { return hasWindow(u"Sample Notes"_s); }));
}

TEST_F(PrivilegedInstallTest, anEarlierCopyOfRootsGoesToATrash) {
    // Nobody else can put one there.
    start();
    answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(u"launched immediately: 1"_s));
    m_installer.kill();
    ASSERT_TRUE(m_installer.waitForFinished());
    start();
    answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(eventually([this] {
        return m_installer.state() == QProcess::Running && isLogged(u"launched immediately: 1"_s) &&
               isLogged(u"Trash"_s);
    }));
    EXPECT_EQ(contentOfApplications(), QStringList{u"Sample Notes.app"_s});
}

TEST_F(PrivilegedInstallTest, cancellingCostsNothingAndAllowsAnotherTry) {
    start();
    PolkitAgent &agent = answer(Answer::Dismisses);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(u"User canceled authorization"_s));
    EXPECT_TRUE(contentOfApplications().isEmpty());
    EXPECT_FALSE(isLogged(failed));
    EXPECT_FALSE(isLogged(u"not authorized"_s));
    // The button is the default one again.
    EXPECT_TRUE(eventually([this, &agent] {
        pressInstall();
        return agent.requests == 2;
    }));
}

TEST_F(PrivilegedInstallTest, aWrongPasswordIsToldAsSuch) {
    start();
    answer(Answer::TypesWrongPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(failed));
    EXPECT_TRUE(isLogged(u"not authorized: the password was not accepted"_s));
    EXPECT_TRUE(contentOfApplications().isEmpty());
}

TEST_F(PrivilegedInstallTest, withoutAnAgentItFailsAndSaysSo) {
    start();
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(failed));
    EXPECT_TRUE(isLogged(u"no authentication agent runs in this session"_s));
    EXPECT_TRUE(contentOfApplications().isEmpty());
}

TEST_F(PrivilegedInstallTest, closingTheWindowClosesTheDialog) {
    start();
    PolkitAgent &agent = answer(Answer::Waits);
    pressInstall();
    ASSERT_TRUE(eventually([&agent] { return agent.requests == 1; }));
    QProcess::execute(u"xdotool"_s, {u"search"_s, u"--name"_s, u"^Install Sample Notes$"_s,
                                     u"windowquit"_s});
    EXPECT_TRUE(eventually([this] { return m_installer.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(eventually([&agent] { return agent.cancellations == 1; }));
    EXPECT_EQ(m_installer.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE(contentOfApplications().isEmpty());
}

TEST_F(PrivilegedInstallTest, aMissingToolIsToldWithItsName) {
    const QString product = ownCopy(QDir::homePath() + u"/Downloads"_s);
    const QString tool = u"/Contents/Resources/VelmoraInstaller.app/Contents/Resources/train"_s;
    ASSERT_TRUE(QFile::remove(product + tool));
    start(product);
    PolkitAgent &agent = answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(failed));
    EXPECT_TRUE(isLogged(u"AuthorizationExecuteWithPrivileges failed"_s));
    EXPECT_EQ(agent.requests, 0);
}

TEST_F(PrivilegedInstallTest, aToolThatOthersCouldExchangeRunsFromAPlaceOfTheUsersOwn) {
    const QString folder = QDir::homePath() + u"/shared"_s;
    const QString product = ownCopy(folder);
    QFile::setPermissions(folder, QFile::Permissions(0x7777));
    start(product);
    PolkitAgent &agent = answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(u"launched immediately: 1"_s));
    EXPECT_FALSE(agent.message.contains(folder)) << agent.message.toStdString();
    EXPECT_TRUE(agent.message.contains(u"/velmora-"_s)) << agent.message.toStdString();
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).entryList({u"velmora-*"_s}).isEmpty());
}

// As a user to whom the rules allow nothing.
TEST_F(PrivilegedInstallTest, DISABLED_aRuleThatForbidsItIsToldAsSuch) {
    start();
    PolkitAgent &agent = answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(failed));
    EXPECT_TRUE(isLogged(u"not authorized: the system's rules do not allow it"_s));
    EXPECT_EQ(agent.requests, 0);
    EXPECT_TRUE(contentOfApplications().isEmpty());
}

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
