// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <ZTStuff/CocoaExtensions/StringExtensions.h>
#include <ZTStuff/ZTClasses/ZTUtilities.h>

int main() {
    using namespace Qt::StringLiterals;
    const bool isOlder =
        ZTUtilities::compareVersion(u"2.1b10"_s, u"2.1f1"_s) == Ordering::Ascending;
    const bool isExpanded =
        StringExtensions::stringByExpandingHTMLEntities(u"<b>a</b> &amp; b"_s) == u"a & b";
    return isOlder && isExpanded ? 0 : 1;
}
