// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Keys in the layouts of a real X server.

#include "Platform/linux/X11KeyboardLayout.h"

#include "tests/programs/RunningProgram.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <xcb/xcb.h>
// The header uses a word of C++ as a name.
#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitActions
#include <xcb/xkb.h>
#undef explicit

using namespace Qt::StringLiterals;

namespace {

using Modifiers = zt::KeyboardLayout::Modifiers;

constexpr Modifiers none = {};
constexpr Modifiers shift = {.shift = true};
constexpr Modifiers capsLock = {.capsLock = true};
constexpr Modifiers option = {.option = true};
constexpr Modifiers control = {.control = true};

// The keys by what they are on an American keyboard.
enum Key : std::uint16_t {
    keyA = 0x00,
    keyZ = 0x06,
    keySection = 0x0A,
    keyQ = 0x0C,
    keyE = 0x0E,
    keyY = 0x10,
    key1 = 0x12,
    key2 = 0x13,
    keyEquals = 0x18,
    keyBracket = 0x21,
    keyReturn = 0x24,
    keySemicolon = 0x29,
    keySpace = 0x31,
    keyGrave = 0x32,
    keyKeypadMark = 0x41,
    keyKeypad7 = 0x59
};

struct Row {
    const char *reason;
    std::uint16_t key;
    Modifiers modifiers;
    std::optional<QString> text;
};

class X11KeyboardLayoutTest : public testing::Test {
protected:
    static void useLayout(const std::string &name) {
        RunningProgram program({"setxkbmap", name});
        ASSERT_EQ(program.waitForEnd(), 0) << name;
    }

    void expect(std::initializer_list<Row> rows) {
        for (const Row &row : rows)
            EXPECT_EQ(layout.textForKey(row.key, row.modifiers), row.text) << row.reason;
    }

    zt::X11KeyboardLayout layout;
};

} // namespace

TEST_F(X11KeyboardLayoutTest, americanKeysTypeWhatIsOnThem) {
    useLayout("us");
    expect({
        {"a letter", keyA, none, u"a"_s},
        {"with shift", keyA, shift, u"A"_s},
        {"with caps lock", keyA, capsLock, u"A"_s},
        {"with both", keyA, {.shift = true, .capsLock = true}, u"a"_s},
        {"with option, where the layout has no more", keyA, option, u"a"_s},
        {"with control", keyA, control, u"\u0001"_s},
        {"a digit", key1, none, u"1"_s},
        {"above it", key1, shift, u"!"_s},
        {"caps lock leaves digits alone", key1, capsLock, u"1"_s},
        {"a sign", keySemicolon, none, u";"_s},
        {"the space bar", keySpace, none, u" "_s},
        {"the keypad has digits", keyKeypad7, none, u"7"_s},
        {"and a decimal mark", keyKeypadMark, none, u"."_s},
    });
}

TEST_F(X11KeyboardLayoutTest, germanKeysAreElsewhere) {
    useLayout("de");
    expect({
        {"y and z change places", keyY, none, u"z"_s},
        {"the other one", keyZ, shift, u"Y"_s},
        {"a letter of its own", keySemicolon, none, u"\u00F6"_s},
        {"above a digit", key2, shift, u"\""_s},
        {"with option", keyQ, option, u"@"_s},
        {"the Euro", keyE, option, u"\u20AC"_s},
        {"the key beside shift", keySection, none, u"<"_s},
        {"a dead key shows its accent", keyEquals, none, u"\u00B4"_s},
        {"another, with shift", keyEquals, shift, u"`"_s},
        {"the left-most one", keyGrave, none, u"^"_s},
        {"the keypad's decimal mark", keyKeypadMark, none, u","_s},
    });
}

TEST_F(X11KeyboardLayoutTest, frenchDigitsNeedShift) {
    useLayout("fr");
    expect({
        {"q and a change places", keyQ, none, u"a"_s},
        {"the other one", keyA, none, u"q"_s},
        {"a sign", key1, none, u"&"_s},
        {"the digit above it", key1, shift, u"1"_s},
        {"a letter in a digit's place", key2, none, u"\u00E9"_s},
        {"a dead key", keyBracket, none, u"^"_s},
        {"with shift", keyBracket, shift, u"\u00A8"_s},
    });
}

TEST_F(X11KeyboardLayoutTest, otherScriptsAreTyped) {
    useLayout("ru");
    expect(
        {{"Cyrillic", keyA, none, u"\u0444"_s}, {"with caps lock", keyA, capsLock, u"\u0424"_s}});
    useLayout("gr");
    expect({{"Greek", keyA, none, u"\u03B1"_s}, {"with shift", keyA, shift, u"\u0391"_s}});
}

TEST_F(X11KeyboardLayoutTest, aNewLayoutCountsAtOnce) {
    useLayout("us");
    EXPECT_EQ(layout.textForKey(keyQ, none), u"q"_s);
    useLayout("fr");
    EXPECT_EQ(layout.textForKey(keyQ, none), u"a"_s);
    useLayout("us");
    EXPECT_EQ(layout.textForKey(keyQ, none), u"q"_s);
}

TEST_F(X11KeyboardLayoutTest, theOneOfSeveralLayoutsThatIsChosenCounts) {
    useLayout("us,ru");
    EXPECT_EQ(layout.textForKey(keyA, none), u"a"_s);
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    std::free(xcb_xkb_use_extension_reply(connection.get(),
                                          xcb_xkb_use_extension(connection.get(), 1, 0), nullptr));
    const auto chooseLayout = [&](std::uint8_t number) {
        const xcb_void_cookie_t request = xcb_xkb_latch_lock_state_checked(
            connection.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, number, 0, 0, 0);
        ASSERT_EQ(xcb_request_check(connection.get(), request), nullptr);
    };
    chooseLayout(1);
    EXPECT_EQ(layout.textForKey(keyA, none), u"\u0444"_s);
    chooseLayout(0);
    EXPECT_EQ(layout.textForKey(keyA, none), u"a"_s);
}

TEST_F(X11KeyboardLayoutTest, keysThatAreTheSameEverywhereHaveTheirControlCharacters) {
    useLayout("de");
    expect({
        {"return", keyReturn, none, u"\r"_s},
        {"tab", 0x30, shift, u"\t"_s},
        {"delete", 0x33, none, u"\b"_s},
        {"escape", 0x35, none, u"\u001B"_s},
        {"keypad enter", 0x4C, none, u"\u0003"_s},
        {"home", 0x73, none, u"\u0001"_s},
        {"left", 0x7B, none, u"\u001C"_s},
        {"up", 0x7E, none, u"\u001E"_s},
        {"F1", 0x7A, none, u"\u0010"_s},
        {"F20", 0x5A, none, u"\u0010"_s},
        {"shift types nothing", 0x38, none, u""_s},
        {"there is no such key", 0x34, none, std::nullopt},
        {"there is no such number", 0xFFFF, none, std::nullopt},
    });
}

TEST_F(X11KeyboardLayoutTest, everyKeyOfALayoutIsAPlaceOfTheKeyboard) {
    useLayout("de");
    // The keys of letters, digits and signs, which are the first fifty but for a few.
    for (std::uint16_t key = 0; key <= 0x32; ++key) {
        if (key == 0x34)
            continue;
        const std::optional<QString> text = layout.textForKey(key, none);
        ASSERT_TRUE(text) << key;
        EXPECT_EQ(text->size(), 1) << key;
    }
}

TEST_F(X11KeyboardLayoutTest, withoutAServerNoLayoutIsKnown) {
    const std::string display = std::getenv("DISPLAY");
    ::unsetenv("DISPLAY");
    EXPECT_EQ(layout.textForKey(keyA, none), std::nullopt);
    EXPECT_EQ(layout.textForKey(keyReturn, none), std::nullopt);
    ::setenv("DISPLAY", display.c_str(), 1);
    EXPECT_NE(layout.textForKey(keyA, none), std::nullopt) << "a server that has come";
}

TEST_F(X11KeyboardLayoutTest, threadsMayAskAtTheSameTime) {
    useLayout("de");
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    constexpr int threadCount = 4;
    constexpr int rounds = 20;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([&] {
            for (int round = 0; round < rounds; ++round)
                right += layout.textForKey(keyY, none) == u"z" ? 1 : 0;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, threadCount * rounds);
}
