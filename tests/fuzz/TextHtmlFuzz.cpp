// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsHtml.h"

#include "tests/fuzz/FuzzText.h"

using namespace StringExtensions;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString text = stringByExpandingHTMLEntities(fuzzText(data, size));
    require(!text.startsWith(u'\n') && !text.endsWith(u'\n') && !text.contains(QChar(u'\0')));
    // A plain text that is written as HTML shows as it is, but for the white space.
    const QString plain = text.simplified();
    require(stringByExpandingHTMLEntities(plain.toHtmlEscaped()).simplified() == plain);
    return 0;
}
