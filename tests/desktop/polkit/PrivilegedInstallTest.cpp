// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11WindowSystem.h"
#include "tests/Waiting.h"

#include "tests/desktop/polkit/PrivilegedInstallFixture.h"

#include <gio/gdesktopappinfo.h>

using Answer = PolkitAgent::Answer;

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

} // namespace

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

    // All users' desktops know it, and this user's needs no entry of its own.
    const QString entry = u"applications/org.example.SampleNotes.desktop"_s;
    EXPECT_TRUE(isLogged(u"registered app: 0"_s));
    EXPECT_FALSE(QFile::exists(QDir::homePath() + u"/.local/share/"_s + entry));
    EXPECT_EQ(QFileInfo(u"/usr/local/share/"_s + entry).ownerId(), 0U);
    EXPECT_EQ(QProcess::execute(u"desktop-file-validate"_s, {u"/usr/local/share/"_s + entry}), 0);
    const std::unique_ptr<GDesktopAppInfo, Unref> known(
        g_desktop_app_info_new("org.example.SampleNotes.desktop"));
    ASSERT_NE(known, nullptr);
    EXPECT_STREQ(g_app_info_get_name(G_APP_INFO(known.get())), "Sample Notes");
    EXPECT_TRUE(
        QFile::exists(u"/usr/local/share/icons/hicolor/48x48/apps/org.example.SampleNotes.png"_s));
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
    ASSERT_TRUE(eventually([] { return log().count(u"launched immediately: 1"_s) == 2; }));
    EXPECT_TRUE(isLogged(u"Trash"_s));
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
    EXPECT_TRUE(eventually([&agent] {
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
    zt::X11WindowSystem windowSystem;
    EXPECT_EQ(windowSystem.requestClose(std::int32_t(m_installer.processId())), 1);
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

namespace {

struct ToolEnd {
    const char *reason;
    const char *lastCommand;
    const char *ownLine;
    const char *fixedLine;
};

void PrintTo(const ToolEnd &end, std::ostream *out) {
    *out << end.reason;
}

} // namespace

class ToolEndTest : public PrivilegedInstallTest, public testing::WithParamInterface<ToolEnd> {};

TEST_P(ToolEndTest, isToldApart) {
    const QString product = ownCopy(QDir::homePath() + u"/Downloads"_s);
    const QString tool =
        product + u"/Contents/Resources/VelmoraInstaller.app/Contents/Resources/train"_s;
    QFile file(tool);
    ASSERT_TRUE(file.remove() && file.open(QIODevice::WriteOnly));
    file.write(QByteArray("#!/bin/sh\necho started\n") + GetParam().lastCommand + '\n');
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    start(product);
    answer(Answer::TypesPassword);
    pressInstall();
    ASSERT_TRUE(isEventuallyLogged(failed));
    EXPECT_TRUE(isLogged(QString::fromUtf8(GetParam().ownLine)));
    EXPECT_TRUE(isLogged(QString::fromUtf8(GetParam().fixedLine)));
}

INSTANTIATE_TEST_SUITE_P(ATool, ToolEndTest,
                         testing::Values(ToolEnd{"thatFails", "exit 2",
                                                 "the tool failed (status 2)", "WEXITSTATUS"},
                                         ToolEnd{"thatCrashes", "kill -SEGV $$",
                                                 "the tool crashed (signal 11)", "!WIFEXITED"}),
                         [](const auto &row) { return row.param.reason; });

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
    EXPECT_TRUE(
        QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).entryList({u"velmora-*"_s}).isEmpty());
}
