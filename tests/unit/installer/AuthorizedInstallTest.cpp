// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/Waiting.h"
#include "tests/unit/installer/InstallerFixture.h"

#include <QMouseEvent>
#include <QProgressBar>

using namespace Qt::StringLiterals;
using zt::AuthorizationStatus::canceled;
using zt::AuthorizationStatus::denied;

class AuthorizedInstallTest : public InstallerFixture {
protected:
    AuthorizedInstallTest() {
        makeFile(u"Disk/Demo.app/Contents/Resources/VelmoraInstaller.app/train"_s, "tool");
    }

    QString destination() { return path(u"Applications/Demo.app"_s); }
    QString tool() { return platform.services.bundles.mainBundle().path() + u"/train"_s; }

    // Holds the Option key and presses the button.
    void installWithOption() {
        auto *button = field<QPushButton>("installButton");
        const QPointF middle = button->rect().center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, middle, button->mapToGlobal(middle), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::AltModifier);
            QApplication::sendEvent(button, &event);
        }
        ASSERT_TRUE(eventually([button] { return button->isEnabled(); }));
    }

    bool logged(const QString &line) { return platform.log.lines().contains(line); }
};

TEST_F(AuthorizedInstallTest, theOptionKeyForcesTheToolAlsoWhereThisUserMayWrite) {
    start();
    installWithOption();
    EXPECT_TRUE(logged(u"enforcing authorization"_s));
    ASSERT_EQ(platform.authorization.executed.size(), 1U);
    const zt::PrivilegedCommand &command = platform.authorization.executed.front();
    EXPECT_EQ(command.arguments, (QStringList{product, destination()}));
    EXPECT_EQ(command.input, (product + u" at "_s + destination()).toUtf8());
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
    EXPECT_FALSE(QFileInfo::exists(destination())); // which is the tool's to copy
    EXPECT_EQ(platform.interruptions.reasons(), QStringList{u"Demo is being installed."_s});
    EXPECT_TRUE(platform.interruptions.held().isEmpty());
}

TEST_F(AuthorizedInstallTest, withoutTheKeyNobodyIsAsked) {
    start();
    field<QPushButton>("installButton")->click();
    ASSERT_TRUE(eventually([this] { return field<QPushButton>("installButton")->isEnabled(); }));
    EXPECT_FALSE(logged(u"enforcing authorization"_s));
    EXPECT_EQ(platform.authorization.references, 0);
}

TEST_F(AuthorizedInstallTest, aWrapperIsTheToolsThirdArgument) {
    makeFile(u"Disk/Folder/Demo.app/Contents/Linux/Demo"_s, "program");
    const QString source = path(u"Disk/Folder/Demo.app"_s);
    platform.bundles.add(source, {{u"CFBundleSignature"_s, u"DEMO"_s}});
    start({u"-sourcePath"_s, source, u"-wrapperPath"_s, path(u"Disk/Folder"_s)});
    installWithOption();
    ASSERT_EQ(platform.authorization.executed.size(), 1U);
    EXPECT_EQ(
        platform.authorization.executed.front().arguments,
        (QStringList{source, path(u"Applications/Folder/Demo.app"_s), path(u"Disk/Folder"_s)}));
}

TEST_F(AuthorizedInstallTest, theToolIsGivenPathsWithoutLinks) {
    ASSERT_TRUE(QFile::link(path(u"Disk"_s), path(u"LinkedDisk"_s)));
    ASSERT_TRUE(QFile::link(path(u"Applications"_s), path(u"LinkedApplications"_s)));
    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"Applications/Linked.app"_s)));
    start();
    ASSERT_TRUE(controller().authorizedInstall(path(u"LinkedDisk/Demo.app"_s),
                                               path(u"LinkedApplications/Linked.app"_s),
                                               path(u"LinkedDisk"_s), nullptr));
    EXPECT_EQ(platform.authorization.executed.front().arguments,
              (QStringList{product, path(u"Applications/Linked.app"_s), path(u"Disk"_s)}));
    ASSERT_TRUE(controller().authorizedInstall(
        product, path(u"LinkedApplications/New Folder/Demo.app"_s), std::nullopt, nullptr));
    EXPECT_EQ(platform.authorization.executed.back().arguments.last(),
              path(u"Applications/New Folder/Demo.app"_s));
}

TEST_F(AuthorizedInstallTest, cancellingShowsNothingAndAllowsAnotherTry) {
    platform.authorization.answer = canceled;
    start();
    installWithOption();
    EXPECT_TRUE(logged(u"User canceled authorization"_s));
    EXPECT_EQ(text("messageField"), QString());
    EXPECT_TRUE(field<QPushButton>("cancelButton")->isEnabled());
    EXPECT_TRUE(platform.authorization.executed.empty());
    platform.authorization.answer = zt::AuthorizationStatus::success;
    installWithOption();
    EXPECT_EQ(platform.authorization.requested.size(), 2U); // asked again
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
    EXPECT_EQ(platform.authorization.freed, platform.authorization.references);
}

TEST_F(AuthorizedInstallTest, aRefusalIsReported) {
    platform.authorization.answer = denied;
    start();
    installWithOption();
    EXPECT_TRUE(logged(u"ERROR -- Could not copy myself to /Applications with authorization"_s));
    EXPECT_EQ(text("messageField"),
              u"Authorized copying failed.\rTry installing Demo manually by copying it to the "
              "Applications folder."_s);
    EXPECT_TRUE(platform.workspace.openedFiles.isEmpty());
    EXPECT_EQ(platform.authorization.freed, 1);
}

TEST_F(AuthorizedInstallTest, whereNobodyCanBeAskedItFailsWithTheSameMessage) {
    platform.authorization.isUnavailable = true;
    start();
    installWithOption();
    EXPECT_TRUE(logged(u"ERROR -- Could not copy myself to /Applications with authorization"_s));
    EXPECT_TRUE(text("messageField").startsWith(u"Authorized copying failed."_s));
}

TEST_F(AuthorizedInstallTest, aToolThatFailsIsReportedAfterItsStatus) {
    platform.authorization.end = {.kind = zt::ChildEnd::Kind::Exited, .status = 1};
    start();
    installWithOption();
    const QStringList lines = platform.log.lines();
    const qsizetype status = lines.indexOf(u"WEXITSTATUS"_s);
    ASSERT_GE(status, 0);
    EXPECT_EQ(lines.value(status + 1),
              u"ERROR -- Could not copy myself to /Applications with authorization"_s);
}

TEST_F(AuthorizedInstallTest, nothingMovesWhileTheDialogIsOpenAndAgainOnceTheToolRuns) {
    start();
    bool movedWhileAsking = true;
    bool movedWhileRunning = false;
    const auto lookFromOtherThread = [this](bool &moves) {
        QMetaObject::invokeMethod(
            &controller(), [this, &moves] { moves = shown("progressIndicator"); },
            Qt::BlockingQueuedConnection);
    };
    platform.authorization.whileAsking = [&] { lookFromOtherThread(movedWhileAsking); };
    platform.authorization.whileRunning = [&] { lookFromOtherThread(movedWhileRunning); };
    installWithOption();
    EXPECT_FALSE(movedWhileAsking);
    EXPECT_TRUE(movedWhileRunning);
}

TEST_F(AuthorizedInstallTest, blankPathsAreRefusedWithoutAsking) {
    start();
    bool wasCanceled = true;
    EXPECT_FALSE(controller().authorizedInstall(product, u" \t"_s, std::nullopt, &wasCanceled));
    EXPECT_FALSE(wasCanceled);
    EXPECT_FALSE(controller().authorizedInstall(QString(), destination(), std::nullopt, nullptr));
    EXPECT_EQ(platform.authorization.references, 0);
}

TEST_F(AuthorizedInstallTest, whoDoesNotWantToKnowAboutACancellationNeedNot) {
    platform.authorization.answer = canceled;
    start();
    EXPECT_FALSE(controller().authorizedInstall(product, destination(), std::nullopt, nullptr));
}
