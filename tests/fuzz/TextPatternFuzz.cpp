// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/fuzz/FuzzText.h"

using namespace StringExtensions;

// The first line is the pattern, the second the template, the rest the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static FakePlatform platform;
    platform.log.clear();
    const QStringList parts = fuzzParts(fuzzText(data, size), 3);
    const QString replaced =
        stringByReplacingOccurrencesOfRegexPattern(parts[2], parts[0], parts[1]);
    // A failure leaves the text as it was.
    require(platform.log.lines().isEmpty() || replaced == parts[2]);
    return 0;
}
