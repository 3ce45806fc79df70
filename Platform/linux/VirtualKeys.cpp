// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/VirtualKeys.h"

#include <algorithm>
#include <iterator>

namespace zt {

namespace {

struct Row {
    std::uint16_t keyCode;
    VirtualKey key;
};

// By key code. What the keys are on an American keyboard stands behind them.
constexpr Row rows[] = {
    {0x00, {"AC01"}},                                   // A
    {0x01, {"AC02"}},                                   // S
    {0x02, {"AC03"}},                                   // D
    {0x03, {"AC04"}},                                   // F
    {0x04, {"AC06"}},                                   // H
    {0x05, {"AC05"}},                                   // G
    {0x06, {"AB01"}},                                   // Z
    {0x07, {"AB02"}},                                   // X
    {0x08, {"AB03"}},                                   // C
    {0x09, {"AB04"}},                                   // V
    {0x0A, {"LSGT"}},                                   // section
    {0x0B, {"AB05"}},                                   // B
    {0x0C, {"AD01"}},                                   // Q
    {0x0D, {"AD02"}},                                   // W
    {0x0E, {"AD03"}},                                   // E
    {0x0F, {"AD04"}},                                   // R
    {0x10, {"AD06"}},                                   // Y
    {0x11, {"AD05"}},                                   // T
    {0x12, {"AE01"}},                                   // 1
    {0x13, {"AE02"}},                                   // 2
    {0x14, {"AE03"}},                                   // 3
    {0x15, {"AE04"}},                                   // 4
    {0x16, {"AE06"}},                                   // 6
    {0x17, {"AE05"}},                                   // 5
    {0x18, {"AE12"}},                                   // =
    {0x19, {"AE09"}},                                   // 9
    {0x1A, {"AE07"}},                                   // 7
    {0x1B, {"AE11"}},                                   // -
    {0x1C, {"AE08"}},                                   // 8
    {0x1D, {"AE10"}},                                   // 0
    {0x1E, {"AD12"}},                                   // ]
    {0x1F, {"AD09"}},                                   // O
    {0x20, {"AD07"}},                                   // U
    {0x21, {"AD11"}},                                   // [
    {0x22, {"AD08"}},                                   // I
    {0x23, {"AD10"}},                                   // P
    {0x24, {.fixedUnit = 0x0D}},                        // return
    {0x25, {"AC09"}},                                   // L
    {0x26, {"AC07"}},                                   // J
    {0x27, {"AC11"}},                                   // '
    {0x28, {"AC08"}},                                   // K
    {0x29, {"AC10"}},                                   // ;
    {0x2A, {"BKSL"}},                                   // backslash
    {0x2B, {"AB08"}},                                   // ,
    {0x2C, {"AB10"}},                                   // /
    {0x2D, {"AB06"}},                                   // N
    {0x2E, {"AB07"}},                                   // M
    {0x2F, {"AB09"}},                                   // .
    {0x30, {.fixedUnit = 0x09}},                        // tab
    {0x31, {"SPCE"}},                                   // space
    {0x32, {"TLDE"}},                                   // `
    {0x33, {.fixedUnit = 0x08}},                        // delete
    {0x35, {.fixedUnit = 0x1B}},                        // escape
    {0x36, {}},                                         // right command
    {0x37, {}},                                         // command
    {0x38, {}},                                         // shift
    {0x39, {}},                                         // caps lock
    {0x3A, {}},                                         // option
    {0x3B, {}},                                         // control
    {0x3C, {}},                                         // right shift
    {0x3D, {}},                                         // right option
    {0x3E, {}},                                         // right control
    {0x3F, {}},                                         // function
    {0x40, {.fixedUnit = 0x10}},                        // F17
    {0x41, {.layoutName = "KPDL", .isOnKeypad = true}}, // keypad decimal mark
    {0x43, {.layoutName = "KPMU", .isOnKeypad = true}}, // keypad *
    {0x45, {.layoutName = "KPAD", .isOnKeypad = true}}, // keypad +
    {0x47, {.fixedUnit = 0x1B}},                        // keypad clear
    {0x48, {}},                                         // louder
    {0x49, {}},                                         // softer
    {0x4A, {}},                                         // mute
    {0x4B, {.layoutName = "KPDV", .isOnKeypad = true}}, // keypad /
    {0x4C, {.fixedUnit = 0x03}},                        // keypad enter
    {0x4E, {.layoutName = "KPSU", .isOnKeypad = true}}, // keypad -
    {0x4F, {.fixedUnit = 0x10}},                        // F18
    {0x50, {.fixedUnit = 0x10}},                        // F19
    {0x51, {.layoutName = "KPEQ", .isOnKeypad = true}}, // keypad =
    {0x52, {.layoutName = "KP0", .isOnKeypad = true}},  // keypad 0
    {0x53, {.layoutName = "KP1", .isOnKeypad = true}},  // keypad 1
    {0x54, {.layoutName = "KP2", .isOnKeypad = true}},  // keypad 2
    {0x55, {.layoutName = "KP3", .isOnKeypad = true}},  // keypad 3
    {0x56, {.layoutName = "KP4", .isOnKeypad = true}},  // keypad 4
    {0x57, {.layoutName = "KP5", .isOnKeypad = true}},  // keypad 5
    {0x58, {.layoutName = "KP6", .isOnKeypad = true}},  // keypad 6
    {0x59, {.layoutName = "KP7", .isOnKeypad = true}},  // keypad 7
    {0x5A, {.fixedUnit = 0x10}},                        // F20
    {0x5B, {.layoutName = "KP8", .isOnKeypad = true}},  // keypad 8
    {0x5C, {.layoutName = "KP9", .isOnKeypad = true}},  // keypad 9
    {0x5D, {"AE13"}},                                   // yen (Japanese)
    {0x5E, {"AB11"}},                                   // underscore (Japanese)
    {0x5F, {.fixedUnit = 0x2C}},                        // keypad comma (Japanese)
    {0x60, {.fixedUnit = 0x10}},                        // F5
    {0x61, {.fixedUnit = 0x10}},                        // F6
    {0x62, {.fixedUnit = 0x10}},                        // F7
    {0x63, {.fixedUnit = 0x10}},                        // F3
    {0x64, {.fixedUnit = 0x10}},                        // F8
    {0x65, {.fixedUnit = 0x10}},                        // F9
    {0x66, {}},                                         // eisu (Japanese)
    {0x67, {.fixedUnit = 0x10}},                        // F11
    {0x68, {}},                                         // kana (Japanese)
    {0x69, {.fixedUnit = 0x10}},                        // F13
    {0x6A, {.fixedUnit = 0x10}},                        // F16
    {0x6B, {.fixedUnit = 0x10}},                        // F14
    {0x6D, {.fixedUnit = 0x10}},                        // F10
    {0x6F, {.fixedUnit = 0x10}},                        // F12
    {0x71, {.fixedUnit = 0x10}},                        // F15
    {0x72, {.fixedUnit = 0x05}},                        // help
    {0x73, {.fixedUnit = 0x01}},                        // home
    {0x74, {.fixedUnit = 0x0B}},                        // page up
    {0x75, {.fixedUnit = 0x7F}},                        // forward delete
    {0x76, {.fixedUnit = 0x10}},                        // F4
    {0x77, {.fixedUnit = 0x04}},                        // end
    {0x78, {.fixedUnit = 0x10}},                        // F2
    {0x79, {.fixedUnit = 0x0C}},                        // page down
    {0x7A, {.fixedUnit = 0x10}},                        // F1
    {0x7B, {.fixedUnit = 0x1C}},                        // left
    {0x7C, {.fixedUnit = 0x1D}},                        // right
    {0x7D, {.fixedUnit = 0x1F}},                        // down
    {0x7E, {.fixedUnit = 0x1E}},                        // up
};

} // namespace

std::optional<VirtualKey> virtualKey(std::uint16_t keyCode) {
    const auto *const found = std::ranges::lower_bound(rows, keyCode, {}, &Row::keyCode);
    if (found == std::end(rows) || found->keyCode != keyCode)
        return std::nullopt;
    return found->key;
}

} // namespace zt
