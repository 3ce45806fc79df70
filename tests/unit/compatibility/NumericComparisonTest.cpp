// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NumericComparison.h"

#include <QString>

#include <gtest/gtest.h>

struct ComparisonRow {
    const char *reason;
    QStringView a;
    QStringView b;
    Ordering ordering;
};

TEST(NumericComparisonTest, numbersCountByTheirValue) {
    const ComparisonRow rows[] = {
        {"equal", u"2.1", u"2.1", Ordering::Same},
        {"both empty", u"", u"", Ordering::Same},
        {"by value", u"10.9", u"10.10", Ordering::Ascending},
        {"a proper beginning is smaller", u"10.13", u"10.13.0", Ordering::Ascending},
        {"leading zeros", u"1.02", u"1.2", Ordering::Same},
        {"zeros alone", u"000", u"0", Ordering::Same},
        {"beyond any machine number", u"99999999999999999999999998", u"99999999999999999999999999",
         Ordering::Ascending},
        {"other characters one by one", u"1-2", u"1.2", Ordering::Ascending},
        {"a digit against another character", u"1a", u"1.", Ordering::Descending},
        {"case counts", u"A", u"a", Ordering::Ascending},
    };
    for (const ComparisonRow &row : rows) {
        EXPECT_EQ(numericCompare(row.a, row.b), row.ordering) << row.reason;
        const auto reversed = static_cast<Ordering>(-static_cast<int>(row.ordering));
        EXPECT_EQ(numericCompare(row.b, row.a), reversed) << row.reason << ", reversed";
    }
}
