// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/UnattendedInstallation.h"

#include "tests/unit/installer/AsOrdinaryUser.h"
#include "tests/unit/installer/ProductFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class UnattendedInstallationTest : public ProductFixture {
protected:
    using ExitStatus = UnattendedInstallation::ExitStatus;

    UnattendedInstallationTest() {
        platform.processManager.start(
            installerPid, {.name = u"VelmoraInstaller"_s, .signature = fourCharCode("DEMO")});
        platform.processManager.setCurrent(installerPid);
    }

    UnattendedInstallation &installation(const QStringList &arguments = {}) {
        if (!m_installation) {
            m_installation =
                std::make_unique<UnattendedInstallation>(UnattendedInstallation::Environment{
                    .platform = platform.services,
                    .argumentVector =
                        QStringList{u"installer"_s, u"-unattended"_s, u"YES"_s} + arguments,
                    .writeProgress = [this](const QByteArray &bytes) { progress += bytes; },
                    .registerForAllUsers = registerForAllUsers});
        }
        return *m_installation;
    }

    ExitStatus install(const QStringList &arguments = {}) {
        const UnattendedInstallation::Outcome outcome = installation(arguments).install();
        message = outcome.message;
        return outcome.status;
    }

    // An application that ends after so many polite requests.
    void run(std::int32_t pid, const QString &name,
             int requests = FakeRunningApplicationScript::never) {
        platform.processManager.start(pid, {.name = name, .signature = fourCharCode("DEMO")});
        FakeRunningApplicationScript &script = platform.runningApplications.applications[pid];
        script.endsAfterPoliteRequest = requests;
        script.whenEnded = [this, pid] { platform.processManager.end(pid); };
    }

    QString destination() { return path(u"Applications/Demo.app"_s); }

    QString message;
    QByteArray progress;
    std::function<bool(const QByteArray &, const QString &)> registerForAllUsers;

    static constexpr std::int32_t installerPid = 100;

private:
    std::unique_ptr<UnattendedInstallation> m_installation;
};

TEST_F(UnattendedInstallationTest, theProductIsInstalledAndRegisteredButNotLaunched) {
    EXPECT_EQ(install(), ExitStatus::Done);
    EXPECT_EQ(message, u"Demo was successfully installed."_s);
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/Contents/Linux/Demo"_s));
    EXPECT_EQ(platform.workspace.registered, QStringList{destination()});
    EXPECT_EQ(platform.workspace.openedFiles, QStringList());
    EXPECT_TRUE(progress.endsWith("Copying Demo: 100 %\n")) << progress.constData();
    EXPECT_EQ(progress.count('\n'), 10);
}

TEST_F(UnattendedInstallationTest, whatRootInstallsIsForAllUsers) {
    makeFile(u"Disk/Demo.app/shared"_s, "x");
    const auto everybodyMayChange = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                    QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    ASSERT_TRUE(QFile::setPermissions(product + u"/shared"_s, everybodyMayChange));
    QByteArray registered;
    registerForAllUsers = [&registered](const QByteArray &prepared, const QString &place) {
        registered = prepared + ';' + place.toUtf8();
        return true;
    };
    EXPECT_EQ(install(), ExitStatus::Done);
    EXPECT_EQ(registered,
              (destination() + u" at "_s + destination() + u';' + destination()).toUtf8());
    EXPECT_EQ(platform.workspace.registered, QStringList());
    EXPECT_FALSE(QFile::permissions(destination() + u"/shared"_s)
                     .testAnyFlags(QFile::WriteGroup | QFile::WriteOther));
}

TEST_F(UnattendedInstallationTest, whereRootMayNotRegisterForAllItDoesForItself) {
    registerForAllUsers = [](const QByteArray &, const QString &) { return false; };
    EXPECT_EQ(install(), ExitStatus::Done);
    EXPECT_EQ(platform.workspace.registered, QStringList{destination()});
}

TEST_F(UnattendedInstallationTest, anEarlierCopyGoesToTheTrash) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    EXPECT_EQ(install(), ExitStatus::Done);
    EXPECT_TRUE(QFileInfo::exists(path(u"Trash/Demo.app/old"_s)));
    EXPECT_FALSE(QFileInfo::exists(destination() + u"/old"_s));
}

TEST_F(UnattendedInstallationTest, runningCopiesAreQuitAsWithAWindow) {
    run(7, u"Demo"_s, 1);
    EXPECT_EQ(install(), ExitStatus::Done);
    EXPECT_EQ(platform.runningApplications.applications[7].politeRequests, 1);
}

TEST_F(UnattendedInstallationTest, aCopyThatNeverGivesWayEndsIt) {
    run(7, u"Demo Helper"_s);
    makeFile(u"Applications/Demo.app/old"_s, "old");
    EXPECT_EQ(install(), ExitStatus::ProductRunning);
    EXPECT_EQ(message, u"Demo Helper cannot be running during the installation. Quit Demo Helper, "
                       "then start the installation again."_s);
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/old"_s));
    EXPECT_EQ(std::count(platform.clock.sleeps.begin(), platform.clock.sleeps.end(), 1s), 3);
}

TEST_F(UnattendedInstallationTest, whereOnlyAnAdministratorMayWriteNobodyIsAskedAndNothingIsQuit) {
    run(7, u"Demo"_s, 1);
    const AsOrdinaryUser user(folder.path());
    QFile::setPermissions(path(u"Applications"_s),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    EXPECT_EQ(install({u"-destinationPath"_s, destination()}), ExitStatus::NotAuthorised);
    EXPECT_EQ(message, u"Only an administrator may install Demo in "_s + path(u"Applications"_s) +
                           u". Run the installer with sudo, or choose another place with "
                           "-destinationPath."_s);
    EXPECT_EQ(platform.authorization.references, 0);
    EXPECT_EQ(platform.runningApplications.applications[7].politeRequests, 0);
}

TEST_F(UnattendedInstallationTest, aSystemThatIsTooOldIsLeftAlone) {
    EXPECT_EQ(install({u"-minSystemVersion"_s, u"12.5"_s}), ExitStatus::SystemTooOld);
    EXPECT_EQ(message, u"Demo 2.0 cannot be installed on this computer because it requires Mac OS "
                       "X 12.5 or newer."_s);
    EXPECT_FALSE(QFileInfo::exists(destination()));
}

TEST_F(UnattendedInstallationTest, aCopyThatFailsSaysWhatCanBeDone) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    EXPECT_EQ(install(), ExitStatus::CopyFailed);
    EXPECT_EQ(message,
              u"Could not delete existing copy. Try installing Demo manually by copying it "
              "to the Applications folder."_s);
    EXPECT_EQ(platform.workspace.registered, QStringList());
}

TEST_F(UnattendedInstallationTest, cancellingDuringTheCopyLeavesNothingUnfinished) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.whenAsked = [this] { installation().cancel(); };
    EXPECT_EQ(install(), ExitStatus::Cancelled);
    EXPECT_EQ(message,
              u"The installation was stopped. The earlier copy of Demo is in the Trash."_s);
    EXPECT_TRUE(
        QDir(path(u"Applications"_s))
            .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
}

TEST_F(UnattendedInstallationTest, cancellingWhileACopyIsAskedToQuitChangesNothing) {
    run(7, u"Demo"_s);
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.runningApplications.applications[7].whenHeld = [this] { installation().cancel(); };
    EXPECT_EQ(install(), ExitStatus::Cancelled);
    EXPECT_EQ(message, u"The installation was stopped."_s);
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/old"_s));
    EXPECT_EQ(std::count(platform.clock.sleeps.begin(), platform.clock.sleeps.end(), 1s), 0);
}

TEST_F(UnattendedInstallationTest, cancellingBeforeTheStartIsHeeded) {
    installation().cancel();
    EXPECT_EQ(install(), ExitStatus::Cancelled);
    EXPECT_FALSE(QFileInfo::exists(destination()));
}

TEST_F(UnattendedInstallationTest, aTrashThatRefusesIsTheReasonEvenWhenItWasToBeStopped) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    platform.trash.whenAsked = [this] { installation().cancel(); };
    EXPECT_EQ(install(), ExitStatus::CopyFailed);
}

TEST_F(UnattendedInstallationTest, aCheckTellsAndChangesNothing) {
    run(7, u"Demo"_s, 1);
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.bundles.add(destination(), {{u"CFBundleShortVersionString"_s, u"1.0"_s}});
    const UnattendedInstallation::Prospect prospect = installation().check();
    EXPECT_EQ(prospect.outcome.status, ExitStatus::Done);
    EXPECT_EQ(prospect.outcome.message, u"Demo can be installed."_s);
    ASSERT_TRUE(prospect.forecast);
    EXPECT_EQ(prospect.forecast->destination, destination());
    EXPECT_EQ(prospect.forecast->existingCopy->version, u"1.0"_s);
    EXPECT_EQ(prospect.forecast->runningCopies.size(), 1);
    EXPECT_EQ(platform.runningApplications.applications[7].politeRequests, 0);
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/old"_s));
    EXPECT_EQ(platform.workspace.registered, QStringList());
    EXPECT_EQ(progress, "");
}

TEST_F(UnattendedInstallationTest, aCheckAnswersTheStatusThatTheInstallationWouldEndWith) {
    const UnattendedInstallation::Prospect prospect =
        installation({u"-minSystemVersion"_s, u"12.5"_s}).check();
    EXPECT_EQ(prospect.outcome.status, ExitStatus::SystemTooOld);
    EXPECT_TRUE(prospect.forecast->systemTooOld);
}

TEST_F(UnattendedInstallationTest, aCheckOfBadArgumentsHasNothingToForecast) {
    const UnattendedInstallation::Prospect prospect =
        installation({u"-sourcePath"_s, u"/no/Demo.app"_s, u"-productCode"_s, u"DEMO"_s}).check();
    EXPECT_EQ(prospect.outcome.status, ExitStatus::BadArguments);
    EXPECT_FALSE(prospect.forecast);
}

TEST_F(UnattendedInstallationTest, withTooLittleSpaceTheCopyWouldFail) {
    platform.fileSystems.availableBytes.insert(path(u"Applications"_s), 1);
    const UnattendedInstallation::Prospect prospect = installation().check();
    EXPECT_EQ(prospect.outcome.status, ExitStatus::CopyFailed);
    EXPECT_EQ(prospect.outcome.message, u"There is too little space for Demo."_s);
}

namespace {

struct MistakeRow {
    const char *reason;
    QStringList arguments;
    QString message;
};

void PrintTo(const MistakeRow &row, std::ostream *stream) {
    *stream << row.reason;
}

} // namespace

class UnattendedMistakeTest : public UnattendedInstallationTest,
                              public testing::WithParamInterface<MistakeRow> {};

TEST_P(UnattendedMistakeTest, argumentsThatLeadNowhereAreTold) {
    platform.bundles.setMainBundle(u"/opt/VelmoraInstaller.app"_s);
    EXPECT_EQ(install(GetParam().arguments), ExitStatus::BadArguments);
    EXPECT_EQ(message, GetParam().message);
    EXPECT_EQ(progress, "");
}

INSTANTIATE_TEST_SUITE_P(
    Mistakes, UnattendedMistakeTest,
    testing::Values(MistakeRow{"noSource", {}, u"missing source path"_s},
                    MistakeRow{"noName", {u"-sourcePath"_s, u""_s}, u"missing program name"_s},
                    MistakeRow{"noSignature",
                               {u"-sourcePath"_s, u"/proc/self"_s},
                               u"missing product signature"_s},
                    MistakeRow{"nothingThere",
                               {u"-sourcePath"_s, u"/no/Demo.app"_s, u"-productCode"_s, u"DEMO"_s},
                               u"There is no product at /no/Demo.app."_s}),
    [](const auto &row) { return row.param.reason; });
