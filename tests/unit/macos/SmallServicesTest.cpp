// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/GestaltSystemVersion.h"
#include "Platform/macos/HidUserInput.h"
#include "Platform/macos/LaunchServicesRegistration.h"
#include "Platform/macos/PowerInterruptions.h"
#include "Platform/macos/SharedFileListLoginItems.h"
#include "Platform/macos/TextInputKeyboardLayout.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/macos/StandInTest.h"

using namespace Qt::StringLiterals;

class GestaltSystemVersionTest : public StandInTest {};

TEST_F(GestaltSystemVersionTest, eachNumberHasItsSelector) {
    standin::gestaltAnswers = {{gestaltSystemVersionMajor, 10},
                               {gestaltSystemVersionMinor, 14},
                               {gestaltSystemVersionBugFix, 6},
                               {gestaltSystemVersion, 0x1096}};
    const zt::GestaltSystemVersion version(1671.6);
    EXPECT_EQ(version.majorVersion(), 10);
    EXPECT_EQ(version.minorVersion(), 14);
    EXPECT_EQ(version.bugFixVersion(), 6);
    EXPECT_EQ(version.packedVersion(), 0x1096U);
    EXPECT_EQ(version.frameworkVersion(), 1671.6);
}

TEST_F(GestaltSystemVersionTest, whatIsNotToldHasNoValue) {
    const zt::GestaltSystemVersion version(0);
    EXPECT_EQ(version.majorVersion(), std::nullopt);
    EXPECT_EQ(version.packedVersion(), std::nullopt);
}

class HidUserInputTest : public StandInTest {
protected:
    zt::HidUserInput input;
};

TEST_F(HidUserInputTest, theFirstServiceAnswers) {
    standin::hid.services = {{{u"HIDIdleTime"_s, qlonglong(7)}},
                             {{u"HIDIdleTime"_s, qlonglong(8)}}};
    EXPECT_EQ(input.idleTime(), std::chrono::nanoseconds(7));
}

TEST_F(HidUserInputTest, everythingThatIsMissingLeavesNoAnswer) {
    EXPECT_EQ(input.idleTime(), std::nullopt) << "no service";
    standin::hid.services = {{{u"other"_s, 1}}};
    EXPECT_EQ(input.idleTime(), std::nullopt) << "no such property";
    standin::hid.services = {{{u"HIDIdleTime"_s, u"7"_s}}};
    EXPECT_EQ(input.idleTime(), std::nullopt) << "no number";
    standin::hid.hasProperties = false;
    EXPECT_EQ(input.idleTime(), std::nullopt) << "no properties";
}

class SharedFileListLoginItemsTest : public StandInTest {
protected:
    using Paths = std::vector<std::optional<QString>>;

    zt::SharedFileListLoginItems items;
};

TEST_F(SharedFileListLoginItemsTest, itemsKeepTheirOrderAndGapsStay) {
    const Paths paths = {u"/Applications/B.app"_s, std::nullopt, u"/Applications/A.app"_s};
    standin::loginItems = paths;
    EXPECT_EQ(items.resolvedPaths(), paths);
}

TEST_F(SharedFileListLoginItemsTest, anEmptyListIsAListAllTheSame) {
    standin::loginItems = Paths();
    EXPECT_EQ(items.resolvedPaths(), Paths());
    standin::loginItems.reset();
    EXPECT_EQ(items.resolvedPaths(), std::nullopt);
}

class TextInputKeyboardLayoutTest : public StandInTest {
protected:
    TextInputKeyboardLayoutTest() {
        standin::keyboard.layout = {{{0, 0}, u"a"_s},         {{0, 0x02}, u"A"_s},
                                    {{0, 0x08}, u"\u00E5"_s}, {{0, 0x1E}, u"all"_s},
                                    {{63, 0}, QString()},     {{64, 0}, u"12345"_s}};
    }

    zt::TextInputKeyboardLayout keyboard;
};

TEST_F(TextInputKeyboardLayoutTest, keysShowWhatTheLayoutPutsThere) {
    EXPECT_EQ(keyboard.textForKey(0, {}), u"a"_s);
    EXPECT_EQ(keyboard.textForKey(0, {.shift = true}), u"A"_s);
    EXPECT_EQ(keyboard.textForKey(0, {.option = true}), u"\u00E5"_s);
    EXPECT_EQ(
        keyboard.textForKey(0, {.shift = true, .capsLock = true, .option = true, .control = true}),
        u"all"_s);
    EXPECT_EQ(keyboard.textForKey(63, {}), QString());
    EXPECT_EQ(standin::keyboard.askedTypes, std::vector<UInt32>(5, 40));
}

TEST_F(TextInputKeyboardLayoutTest, whatTheLayoutDoesNotHaveHasNoValue) {
    EXPECT_EQ(keyboard.textForKey(99, {}), std::nullopt);
    EXPECT_EQ(keyboard.textForKey(64, {}), std::nullopt) << "longer than any key's text";
    standin::keyboard.hasLayout = false;
    EXPECT_EQ(keyboard.textForKey(0, {}), std::nullopt);
}

TEST_F(TextInputKeyboardLayoutTest, anInputMethodHasTheLayoutThatItWorksWith) {
    standin::keyboard.isInputMethod = true;
    EXPECT_EQ(keyboard.textForKey(0, {}), u"a"_s);
}

class LaunchServicesRegistrationTest : public StandInTest {};

TEST_F(LaunchServicesRegistrationTest, thePathIsTheAddressAndItIsAnUpdate) {
    EXPECT_EQ(zt::registerWithLaunchServices(u"/Applications/Sample.app"_s), noErr);
    EXPECT_EQ(standin::launchServices.registered,
              (std::vector<std::pair<QString, bool>>{{u"/Applications/Sample.app"_s, true}}));
}

TEST_F(LaunchServicesRegistrationTest, errorsAreAnswered) {
    standin::launchServices.answer = -10'811;
    EXPECT_EQ(zt::registerWithLaunchServices(u"/Applications/Sample.app"_s), -10'811);
    EXPECT_EQ(zt::registerWithLaunchServices(u"/Applications/Sample Notes.app"_s), paramErr);
    EXPECT_EQ(standin::launchServices.registered.size(), 1U);
}

class PowerInterruptionsTest : public StandInTest {
protected:
    FakeLog log;
    zt::PowerInterruptions interruptions{log};
};

TEST_F(PowerInterruptionsTest, sleepIsHeldOffAsLongAsTheHoldIsThere) {
    auto hold = interruptions.holdOff(u"copying"_s);
    ASSERT_EQ(standin::power.assertions.size(), 1U);
    EXPECT_EQ(standin::power.assertions.begin()->second,
              (std::pair{u"PreventUserIdleSystemSleep"_s, u"copying"_s}));
    hold.reset();
    EXPECT_TRUE(standin::power.assertions.empty());
}

TEST_F(PowerInterruptionsTest, whatCannotBeHeldOffIsTold) {
    standin::power.answer = -536870206;
    EXPECT_NE(interruptions.holdOff(u"copying"_s), nullptr);
    EXPECT_EQ(log.lines(), QStringList{u"sleep is not held off: error -536870206"_s});
}
