// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"
#include "tests/Waiting.h"

#include "tests/unit/installer/InstallerFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class CompletionTest : public InstallerFixture {
protected:
    void finish(const std::optional<QString> &message = std::nullopt) {
        controller().installationFinished(message);
    }
};

TEST_F(CompletionTest, successShowsOneMessageTheCheckMarkAndOneButton) {
    start();
    finish();
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
    EXPECT_TRUE(shown("checkmarkField"));
    EXPECT_EQ(title("installButton"), u"OK"_s);
    for (const char *name : {"cancelButton", "pathField", "explanationField", "messageField",
                             "helpButton", "progressIndicator"})
        EXPECT_FALSE(shown(name)) << name;
    EXPECT_FALSE(field<QPushButton>("cancelButton")->isEnabled());
}

TEST_F(CompletionTest, aFailureShowsItsMessageAndLeavesTheButtonsUsable) {
    start();
    finish(u"It failed.\rTry again."_s);
    EXPECT_EQ(text("messageField"), u"It failed.\rTry again."_s);
    EXPECT_TRUE(shown("messageField"));
    EXPECT_FALSE(shown("checkmarkField"));
    EXPECT_TRUE(field<QPushButton>("installButton")->isEnabled());
    EXPECT_TRUE(field<QPushButton>("cancelButton")->isEnabled());
}

TEST_F(CompletionTest, aMessageIsInTheRedOfWarningsAlsoWhenTheAppearanceChanges) {
    start();
    finish(u"It failed."_s);
    const auto color = [this] {
        QCoreApplication::processEvents();
        return field<QLabel>("messageField")->palette().color(QPalette::WindowText);
    };
    const ZTDynamicColor &red = ZTDynamicColor::redWarningTextColor();
    platform.appearance.setScheme(zt::Appearance::Scheme::Dark);
    EXPECT_EQ(color(), red.darkAquaColor());
    platform.appearance.setScheme(zt::Appearance::Scheme::Light);
    EXPECT_EQ(color(), red.aquaColor());
}

TEST_F(CompletionTest, anEmptyMessageClearsTheField) {
    start({u"-completionSound"_s, u"YES"_s});
    finish(u"It failed."_s);
    finish(u""_s);
    EXPECT_EQ(text("messageField"), u""_s);
    EXPECT_TRUE(field<QPushButton>("installButton")->isEnabled());
    EXPECT_TRUE(platform.sounds.plays().empty());
}

struct SoundRow {
    const char *reason;
    QStringList arguments;
    QVariantMap defaults;
    int sounds;
};

TEST_F(CompletionTest, theSoundIsPlayedOnlyWhenItIsAskedForExactly) {
    const SoundRow rows[] = {
        {"asked for", {u"-completionSound"_s, u"YES"_s}, {}, 1},
        {"not asked for", {}, {}, 0},
        {"lower case", {u"-completionSound"_s, u"yes"_s}, {}, 0},
        {"switched off", {u"-completionSound"_s, u"YES"_s}, {{u"nosound"_s, true}}, 0},
        {"switched off by text", {u"-completionSound"_s, u"YES"_s}, {{u"nosound"_s, u"YES"_s}}, 0},
        {"not switched off", {u"-completionSound"_s, u"YES"_s}, {{u"nosound"_s, u"NO"_s}}, 1},
    };
    for (const SoundRow &row : rows) {
        FakePlatform services;
        addDoneSound(services, product + u"/Contents/Resources/VelmoraInstaller.app"_s);
        services.bundles.add(product, {{u"CFBundleSignature"_s, u"DEMO"_s}});
        services.workspace.localApplications = {path(u"Applications"_s)};
        services.userDefaults.values = row.defaults;
        InstallerWinController controller({.platform = services.services,
                                           .argumentVector = QStringList{u"x"_s} + row.arguments,
                                           .redirectStandardStreams = [](const QString &) {}});
        controller.awakeFromNib();
        controller.installationFinished(std::nullopt);
        EXPECT_EQ(services.sounds.plays().size(), std::size_t(row.sounds)) << row.reason;
        EXPECT_EQ(services.workspace.beeps, 0) << row.reason;
    }
}

TEST_F(CompletionTest, theSoundIsAsLoudAsAlertsAndWhereTheyAreHeard) {
    addDoneSound(platform, product + u"/Contents/Resources/VelmoraInstaller.app"_s);
    platform.sounds.chosenDevice = u"headset"_s;
    platform.sounds.chosenVolume = 0.25F;
    start({u"-completionSound"_s, u"YES"_s});
    finish();
    EXPECT_EQ(platform.sounds.plays(),
              std::vector<FakeSounds::Play>({{u"Done"_s, 0.25F, u"headset"_s, 300}}));
}

TEST_F(CompletionTest, aMissingSoundIsNoMatter) {
    start({u"-completionSound"_s, u"YES"_s});
    const QStringList before = platform.log.lines();
    finish();
    EXPECT_TRUE(platform.sounds.plays().empty());
    EXPECT_EQ(platform.log.lines(), before);
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
}

TEST_F(CompletionTest, soundIsThoughtOfOnlyOnceTheInstallationBegins) {
    start({u"-completionSound"_s, u"YES"_s});
    EXPECT_EQ(platform.sounds.readyRequests, 0);
    field<QPushButton>("installButton")->click();
    ASSERT_TRUE(eventually([this] { return shown("checkmarkField"); }));
    EXPECT_EQ(platform.sounds.readyRequests, 1);
}

TEST_F(CompletionTest, withoutASoundToPlayNoneIsThoughtOf) {
    start();
    field<QPushButton>("installButton")->click();
    ASSERT_TRUE(eventually([this] { return shown("checkmarkField"); }));
    EXPECT_EQ(platform.sounds.readyRequests, 0);
}

TEST_F(CompletionTest, aTimedQuitComesAfterItsDelay) {
    start({u"-completionQuit"_s, u"2.5"_s});
    finish();
    EXPECT_TRUE(platform.log.lines().contains(u"quit delay: 2.5"_s));
    EXPECT_FALSE(quits([this] { platform.clock.advance(2499ms); }));
    EXPECT_TRUE(quits([this] { platform.clock.advance(1ms); }));
}

TEST_F(CompletionTest, aTimedQuitComesAfterAFailureToo) {
    start({u"-completionQuit"_s, u"1"_s});
    finish(u"It failed."_s);
    EXPECT_TRUE(quits([this] { platform.clock.advance(1s); }));
}

TEST_F(CompletionTest, withoutAPositiveDelayTheInstallerStays) {
    start({u"-completionQuit"_s, u"0"_s});
    finish();
    EXPECT_TRUE(platform.log.lines().contains(u"quit delay: 0.0"_s));
    EXPECT_FALSE(quits([this] { platform.clock.advance(24h); }));
}

TEST_F(CompletionTest, anUnreadableDelayIsZero) {
    start({u"-completionQuit"_s, u"soon"_s});
    finish();
    EXPECT_TRUE(platform.log.lines().contains(u"quit delay: 0.0"_s));
    EXPECT_FALSE(quits([this] { platform.clock.advance(24h); }));
}

TEST_F(CompletionTest, anEndlessDelayDoesNotWrapAround) {
    start({u"-completionQuit"_s, u"1e99"_s});
    finish();
    EXPECT_FALSE(quits([this] { platform.clock.advance(24h); }));
}

TEST_F(CompletionTest, withoutTheArgumentThereIsNoDelay) {
    start();
    finish();
    EXPECT_FALSE(platform.log.lines().join(u'\n').contains(u"quit delay"_s));
}

TEST_F(CompletionTest, theHelpButtonOpensTheDocumentation) {
    makeFile(u"Guide.html"_s, "<p>Guide</p>");
    start({u"-documentationPath"_s, path(u"Guide.html"_s)});
    field<QPushButton>("helpButton")->click();
    EXPECT_EQ(platform.workspace.openedFiles, QStringList{path(u"Guide.html"_s)});
    EXPECT_EQ(platform.workspace.beeps, 0);
}

TEST_F(CompletionTest, withoutDocumentationThereIsABeep) {
    start();
    controller().openDocumentation();
    EXPECT_EQ(platform.workspace.beeps, 1);
    EXPECT_TRUE(platform.log.lines().contains(u"documentation path missing"_s));
    EXPECT_TRUE(platform.workspace.openedFiles.isEmpty());
}
