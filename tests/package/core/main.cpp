// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <ZTStuff/ZTClasses/ZTUtilities.h>

int main() {
    using namespace Qt::StringLiterals;
    return ZTUtilities::compareVersion(u"2.1b10"_s, u"2.1f1"_s) == Ordering::Ascending ? 0 : 1;
}
