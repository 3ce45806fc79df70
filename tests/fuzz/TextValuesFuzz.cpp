// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEncodings.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"

#include "tests/fuzz/FuzzText.h"
#include "tests/unit/text/TextModels.h"

#include <cmath>

using namespace StringExtensions;

// The first line is compared with the rest, and is the pattern that it may match.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QStringList parts = fuzzParts(fuzzText(data, size), 2);
    const QString &first = parts[0];
    const QString &rest = parts[1];

    require(numericValue(rest) == models::numericValue(rest));
    require(!std::isnan(smartFloatValue(rest)));
    require(booleanValue(rest) || !isIntegerNumber(rest) || numericValue(rest) == 0);
    require(MD5String(rest).size() == 32);
    require(static_cast<int>(numericCompare(first, rest)) == models::numericCompare(first, rest));
    require(static_cast<int>(caseInsensitiveNumericCompare(first, rest)) ==
            models::numericCompare(models::caseFolded(first), models::caseFolded(rest)));
    // The model's time doubles with each star.
    if (first.count(u'*') <= 4 && rest.size() <= 60)
        require(matchesWildcardPattern(rest, first) == models::matchesWildcardPattern(rest, first));
    else
        matchesWildcardPattern(rest, first);
    xmlElementForKey(rest, first);
    return 0;
}
