// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/RunMode.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ChoiceRow {
    const char *reason;
    QStringList arguments; // element 0 left out
    RunMode mode;
};

void PrintTo(const ChoiceRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class RunModeTest : public testing::TestWithParam<ChoiceRow> {};

} // namespace

TEST_P(RunModeTest, theCommandLineChooses) {
    const RunChoice choice = runChoice(QStringList{u"installer"_s} + GetParam().arguments);
    EXPECT_EQ(choice.mode, GetParam().mode);
    EXPECT_EQ(choice.mistake.isEmpty(), choice.mode != RunMode::Mistake);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, RunModeTest,
    testing::Values(
        ChoiceRow{"nothing", {}, RunMode::Window},
        ChoiceRow{"otherArguments", {u"-version"_s, u"1.0"_s}, RunMode::Window},
        ChoiceRow{"unattended", {u"-unattended"_s, u"YES"_s}, RunMode::Unattended},
        ChoiceRow{"attended", {u"-unattended"_s, u"NO"_s}, RunMode::Window},
        ChoiceRow{"lowerCase", {u"-unattended"_s, u"yes"_s}, RunMode::Mistake},
        ChoiceRow{"emptyValue", {u"-unattended"_s, u""_s}, RunMode::Mistake},
        ChoiceRow{"noValueAtTheEnd", {u"-unattended"_s}, RunMode::Mistake},
        ChoiceRow{"noValueBeforeAKey", {u"-unattended"_s, u"-check"_s, u"YES"_s}, RunMode::Mistake},
        ChoiceRow{"theLastValueCounts",
                  {u"-unattended"_s, u"NO"_s, u"-unattended"_s, u"YES"_s},
                  RunMode::Unattended},
        ChoiceRow{"theLastValueIsWrong",
                  {u"-unattended"_s, u"YES"_s, u"-unattended"_s, u"1"_s},
                  RunMode::Mistake},
        ChoiceRow{"check", {u"-check"_s, u"YES"_s}, RunMode::Check},
        ChoiceRow{"checkForPrograms", {u"-check"_s, u"JSON"_s}, RunMode::CheckJson},
        ChoiceRow{"noCheck", {u"-check"_s, u"NO"_s}, RunMode::Window},
        ChoiceRow{"checkInAnotherForm", {u"-check"_s, u"XML"_s}, RunMode::Mistake},
        ChoiceRow{"aCheckGoesFirst",
                  {u"-unattended"_s, u"YES"_s, u"-check"_s, u"JSON"_s},
                  RunMode::CheckJson},
        ChoiceRow{"noCheckButUnattended",
                  {u"-check"_s, u"NO"_s, u"-unattended"_s, u"YES"_s},
                  RunMode::Unattended},
        ChoiceRow{"aMistakeGoesBeforeACheck",
                  {u"-check"_s, u"YES"_s, u"-unattended"_s, u"PERHAPS"_s},
                  RunMode::Mistake},
        ChoiceRow{"aWrongCheckBesideUnattended",
                  {u"-check"_s, u"PERHAPS"_s, u"-unattended"_s, u"YES"_s},
                  RunMode::Mistake},
        ChoiceRow{"help", {u"--help"_s}, RunMode::Help},
        ChoiceRow{"helpAmongOthers", {u"-unattended"_s, u"YES"_s, u"--help"_s}, RunMode::Help},
        ChoiceRow{"version", {u"--version"_s}, RunMode::Version},
        ChoiceRow{"aKeyThatOnlyEndsLikeIt", {u"-help"_s, u"x"_s}, RunMode::Window}),
    [](const auto &row) { return row.param.reason; });

TEST(RunModeMistakeTest, itNamesTheKeyTheValueAndWhatWouldDo) {
    EXPECT_EQ(runChoice({u"installer"_s, u"-unattended"_s, u"maybe"_s}).mistake,
              u"The value of -unattended must be one of YES, NO, not \"maybe\"."_s);
    EXPECT_EQ(runChoice({u"installer"_s, u"-check"_s}).mistake,
              u"The value of -check must be one of YES, JSON, NO, not \"\"."_s);
}
