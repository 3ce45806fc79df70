// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AccessibilityEventNames.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char *reason;
    const char *notification;
    std::optional<zt::AccessibilityEvent> expected;
};

const Case cases[] = {
    {"the focus counts where it arrives",
     "AXFocusedUIElementChanged",
     {{"object:state-changed:focused", 1}}},
    {"a window comes", "AXWindowCreated", {{"window:create", {}}}},
    {"another window", "AXFocusedWindowChanged", {{"window:activate", {}}}},
    {"a title is the name of a window",
     "AXTitleChanged",
     {{"object:property-change:accessible-name", {}}}},
    {"a value", "AXValueChanged", {{"object:property-change:accessible-value", {}}}},
    {"an element goes when it becomes defunct",
     "AXUIElementDestroyed",
     {{"object:state-changed:defunct", 1}}},
    {"the bus's own name stays as it is", "window:activate", {{"window:activate", {}}}},
    {"with every detail", "object:state-changed:focused", {{"object:state-changed:focused", {}}}},
    {"a whole class", "object:", {{"object:", {}}}},
    {"a class is a word", "window", {{"window", {}}}},
    {"an unknown common name", "AXNonsense", {}},
    {"letters are not exchanged", "axvaluechanged", {}},
    {"devices are no programs", "mouse:button:1p", {}},
    {"more parts than there are", "object:a:b:c", {}},
    {"no class", ":focused", {}},
    {"what could end a message", "object:state-changed:focused'", {}},
    {"a line's end is no part of a name", "window:activate\n", {}},
    {"nothing", "", {}},
};

class AccessibilityEventNamesTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(AccessibilityEventNamesTest, aNameHasItsEvent) {
    EXPECT_EQ(zt::accessibilityEventFor(QString::fromUtf8(GetParam().notification)),
              GetParam().expected)
        << GetParam().reason;
}

INSTANTIATE_TEST_SUITE_P(Names, AccessibilityEventNamesTest, testing::ValuesIn(cases));
