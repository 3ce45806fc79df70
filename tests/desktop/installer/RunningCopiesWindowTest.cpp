// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Installing a product while copies of it run that behave in all kinds of ways.

#include "tests/Waiting.h"
#include "tests/desktop/installer/InstallerWindowFixture.h"
#include "tests/programs/RunningProgram.h"

#include <functional>
#include <optional>

class RunningCopiesWindowTest : public InstallerWindowFixture {
protected:
    // A bundle with the sample's signature whose program is one of the tests' own.
    QString bundleOf(const char *program, const QString &relative) const {
        const QString bundle = path(relative);
        QDir().mkpath(bundle + u"/Contents/Linux"_s);
        QFile::copy(sample() + u"/Contents/Info.plist"_s, bundle + u"/Contents/Info.plist"_s);
        QFile::copy(QString::fromUtf8(program), bundle + u"/Contents/Linux/SampleNotes"_s);
        return bundle;
    }

    static std::string programOf(const QString &bundle) {
        return (bundle + u"/Contents/Linux/SampleNotes"_s).toStdString();
    }

    // Whether an installation beside what runs ends well.
    bool installs() {
        startSample();
        click(button("installButton"));
        return eventually([this] { return button("installButton")->text() == u"OK"_s; });
    }
};

namespace {

// Starts a program; it ends with the test at the latest.
std::unique_ptr<QProcess> started(const QString &program) {
    auto process = std::make_unique<QProcess>();
    process->start(program, QStringList());
    EXPECT_TRUE(process->waitForStarted());
    return process;
}

} // namespace

TEST_F(RunningCopiesWindowTest, runningCopiesOfTheProductAreQuitFirst) {
    ASSERT_EQ(QProcess::execute(u"cp"_s, {u"-a"_s, sample(), destination()}), 0);
    const QString program = destination() + u"/Contents/Linux/SampleNotes"_s;
    const auto first = started(program);
    const auto second = started(program);
    startSample();
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_TRUE(eventually([&] {
        return first->state() == QProcess::NotRunning && second->state() == QProcess::NotRunning;
    }));
    EXPECT_TRUE(QFileInfo::exists(program));
}

TEST_F(RunningCopiesWindowTest, aProductThatComesBackEachTimeStopsTheInstallationUntilItStaysAway) {
    const QString product = path(u"Disk/Clingy.app"_s);
    const QString program = product + u"/Contents/Linux/Clingy"_s;
    write(product + u"/Contents/Info.plist"_s,
          "<plist version=\"1.0\"><dict><key>CFBundleExecutable</key><string>Clingy</string>"
          "<key>CFBundleName</key><string>Clingy</string>"
          "<key>CFBundleSignature</key><string>Clng</string></dict></plist>");
    write(program, "#!/bin/sh\nwhile :; do sleep 0.05; done\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    auto clingy = started(program);
    int comebacks = 0;
    QObject::connect(clingy.get(), &QProcess::finished, clingy.get(),
                     [&clingy, &comebacks, program] {
                         ++comebacks;
                         clingy->start(program, QStringList());
                     });
    start({u"-sourcePath"_s, product, u"-destinationPath"_s, path(u"Applications/Clingy.app"_s)});
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return field<QLabel>("messageField")->isVisible(); }));
    EXPECT_EQ(text("messageField"), u"Clingy cannot be running during the installation.\rQuit "
                                    "Clingy, then click \"Install\" again."_s);
    EXPECT_EQ(comebacks, 4);
    EXPECT_FALSE(QFileInfo::exists(path(u"Applications/Clingy.app"_s)));

    QObject::disconnect(clingy.get(), &QProcess::finished, nullptr, nullptr);
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_TRUE(QFileInfo::exists(path(u"Applications/Clingy.app"_s)));
}

namespace {

struct Behaviour {
    const char *reason;
    const char *program;
    std::vector<std::string> words;
};

void PrintTo(const Behaviour &behaviour, std::ostream *out) {
    *out << behaviour.reason;
}

} // namespace

class CopyBehaviourTest : public RunningCopiesWindowTest,
                          public testing::WithParamInterface<Behaviour> {};

TEST_P(CopyBehaviourTest, endsInGoodTime) {
    const Behaviour &behaviour = GetParam();
    std::vector<std::string> command = {
        programOf(bundleOf(behaviour.program, u"Elsewhere/Sample Notes.app"_s))};
    command.insert(command.end(), behaviour.words.begin(), behaviour.words.end());
    RunningProgram copy(command);
    ASSERT_TRUE(copy.waitForLine("ready"));
    EXPECT_TRUE(installs());
    EXPECT_TRUE(copy.hasEnded());
    EXPECT_TRUE(QFileInfo::exists(destination()));
}

INSTANTIATE_TEST_SUITE_P(
    ACopy, CopyBehaviourTest,
    testing::Values(Behaviour{"thatQuitsAtOnce", PLAIN_PROGRAM, {"quits"}},
                    Behaviour{"thatClosesItsWindow", WINDOWED_PROGRAM, {"closes"}},
                    Behaviour{"thatAsksFirst", WINDOWED_PROGRAM, {"asks", "500"}},
                    Behaviour{"thatIgnoresTheSignal", PLAIN_PROGRAM, {"ignores-termination"}},
                    Behaviour{
                        "thatIgnoresEverythingForAWhile", PLAIN_PROGRAM, {"ends-after", "900"}},
                    Behaviour{"thatRefusesEverything", WINDOWED_PROGRAM, {"refuses-all"}},
                    Behaviour{"withHelpers", PLAIN_PROGRAM, {"forks-helpers", "3"}},
                    Behaviour{"thatStartsItselfAnew", PLAIN_PROGRAM, {"re-executes", "3"}},
                    Behaviour{"thatEndsDuringTheSweep", PLAIN_PROGRAM, {"ends-after", "150"}}),
    [](const auto &row) { return row.param.reason; });

TEST_F(RunningCopiesWindowTest, aCopyThatComesBackOnceGivesWayAtTheSecondSweep) {
    const QString bundle = bundleOf(PLAIN_PROGRAM, u"Elsewhere/Sample Notes.app"_s);
    RunningProgram supervisor({PLAIN_PROGRAM, "supervises", "1", programOf(bundle), "quits"});
    ASSERT_TRUE(supervisor.waitForLine("ready"));
    EXPECT_TRUE(installs());
    EXPECT_EQ(supervisor.waitForEnd(), 0); // both runs of the program are over
}

TEST_F(RunningCopiesWindowTest, aCopyThatRunsFromTheTrashIsQuitAsWell) {
    const QString bundle = bundleOf(PLAIN_PROGRAM, u"Elsewhere/Sample Notes.app"_s);
    RunningProgram copy({programOf(bundle), "quits"});
    ASSERT_TRUE(copy.waitForLine("ready"));
    const QString trash = QDir::homePath() + u"/.local/share/Trash/files"_s;
    QDir().mkpath(trash);
    ASSERT_TRUE(QDir().rename(bundle, trash + u"/Sample Notes.app"_s));
    EXPECT_TRUE(installs());
    EXPECT_TRUE(copy.hasEnded());
}

TEST_F(RunningCopiesWindowTest, aProgramOfAnotherSignatureGoesOn) {
    const QString bundle = bundleOf(PLAIN_PROGRAM, u"Elsewhere/Other.app"_s);
    QFile information(bundle + u"/Contents/Info.plist"_s);
    ASSERT_TRUE(information.open(QIODevice::ReadWrite));
    const QByteArray changed = information.readAll().replace("SmPN", "OTHR");
    information.resize(0);
    information.write(changed);
    information.close();
    RunningProgram other({programOf(bundle), "quits"});
    ASSERT_TRUE(other.waitForLine("ready"));
    EXPECT_TRUE(installs());
    EXPECT_FALSE(other.hasEnded());
}
