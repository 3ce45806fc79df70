// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every pasteboard does, shown by that of the X server and by the fake.

#include "Platform/linux/X11Pasteboard.h"

#include "tests/desktop/environment/SelectionOwner.h"
#include "tests/fakes/FakePasteboard.h"

#include <gtest/gtest.h>

namespace {

// An implementation, and a way to copy something.
struct X11Case {
    void copy() { program.own("CLIPBOARD"); }

    SelectionOwner program;
    zt::X11Pasteboard pasteboard;
};

struct FakeCase {
    void copy() { pasteboard.change(); }

    FakePasteboard pasteboard;
};

} // namespace

template <typename Case>
class PasteboardContractTest : public testing::Test {
protected:
    Case implementation;
};

using Pasteboards = testing::Types<X11Case, FakeCase>;
TYPED_TEST_SUITE(PasteboardContractTest, Pasteboards);

TYPED_TEST(PasteboardContractTest, theCountStaysWhileNothingHappens) {
    const auto count = this->implementation.pasteboard.changeCount();
    ASSERT_TRUE(count);
    EXPECT_EQ(this->implementation.pasteboard.changeCount(), count);
}

TYPED_TEST(PasteboardContractTest, everyCopyingIsAnotherCount) {
    auto last = this->implementation.pasteboard.changeCount();
    for (int copies = 0; copies < 3; ++copies) {
        this->implementation.copy();
        const auto next = this->implementation.pasteboard.changeCount();
        ASSERT_TRUE(next);
        EXPECT_NE(next, last) << copies;
        last = next;
    }
}
