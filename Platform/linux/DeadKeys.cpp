// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/DeadKeys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace zt {

char16_t accentOfDeadKey(std::uint32_t symbol) {
    // Where an accent has no character of its own, the one that combines with a letter.
    switch (symbol) {
    case XKB_KEY_dead_grave:
        return u'`';
    case XKB_KEY_dead_acute:
        return u'\u00B4';
    case XKB_KEY_dead_circumflex:
        return u'^';
    case XKB_KEY_dead_tilde:
        return u'~';
    case XKB_KEY_dead_macron:
        return u'\u00AF';
    case XKB_KEY_dead_breve:
        return u'\u02D8';
    case XKB_KEY_dead_abovedot:
        return u'\u02D9';
    case XKB_KEY_dead_diaeresis:
        return u'\u00A8';
    case XKB_KEY_dead_abovering:
        return u'\u02DA';
    case XKB_KEY_dead_doubleacute:
        return u'\u02DD';
    case XKB_KEY_dead_caron:
        return u'\u02C7';
    case XKB_KEY_dead_cedilla:
        return u'\u00B8';
    case XKB_KEY_dead_ogonek:
        return u'\u02DB';
    case XKB_KEY_dead_iota:
        return u'\u037A';
    case XKB_KEY_dead_voiced_sound:
        return u'\u309B';
    case XKB_KEY_dead_semivoiced_sound:
        return u'\u309C';
    case XKB_KEY_dead_belowdot:
        return u'\u0323';
    case XKB_KEY_dead_hook:
        return u'\u0309';
    case XKB_KEY_dead_horn:
        return u'\u031B';
    case XKB_KEY_dead_stroke:
        return u'/';
    case XKB_KEY_dead_abovecomma:
        return u'\u1FBF';
    case XKB_KEY_dead_abovereversedcomma:
        return u'\u1FFE';
    case XKB_KEY_dead_doublegrave:
        return u'\u02F5';
    case XKB_KEY_dead_belowring:
        return u'\u02F3';
    case XKB_KEY_dead_belowmacron:
        return u'\u02CD';
    case XKB_KEY_dead_belowcircumflex:
        return u'\uA788';
    case XKB_KEY_dead_belowtilde:
        return u'\u02F7';
    case XKB_KEY_dead_belowbreve:
        return u'\u032E';
    case XKB_KEY_dead_belowdiaeresis:
        return u'\u0324';
    case XKB_KEY_dead_invertedbreve:
        return u'\u0311';
    case XKB_KEY_dead_belowcomma:
        return u',';
    case XKB_KEY_dead_currency:
        return u'\u00A4';
    case XKB_KEY_dead_greek:
        return u'\u00B5';
    default:
        return 0;
    }
}

} // namespace zt
