// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ProgressLines.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ProgressLinesTest : public testing::Test {
protected:
    ProgressLines linesFor(ProgressLines::Target target) {
        return {u"Demo"_s, target, [this](const QByteArray &bytes) { m_written += bytes; }};
    }

    QByteArray m_written;
};

TEST_F(ProgressLinesTest, aRecordHasALineForEachTenth) {
    ProgressLines lines = linesFor(ProgressLines::Target::Record);
    lines.show(0, 200);
    lines.show(19, 200);
    lines.show(20, 200);
    lines.show(39, 200);
    lines.show(80, 200);
    lines.end();
    EXPECT_EQ(m_written, "Copying Demo: 10 %\nCopying Demo: 20 %\nCopying Demo: 30 %\n"
                         "Copying Demo: 40 %\n");
}

TEST_F(ProgressLinesTest, aTerminalHasOneLineThatIsWrittenAnew) {
    ProgressLines lines = linesFor(ProgressLines::Target::Terminal);
    lines.show(1, 200);
    lines.show(3, 200);
    lines.show(3, 200);
    lines.show(200, 200);
    lines.end();
    EXPECT_EQ(m_written, "\rCopying Demo: 0 %\rCopying Demo: 1 %\rCopying Demo: 100 %\n");
}

TEST_F(ProgressLinesTest, filesThatGrewDoNotLeadPastTheEnd) {
    ProgressLines lines = linesFor(ProgressLines::Target::Terminal);
    lines.show(300, 200);
    EXPECT_EQ(m_written, "\rCopying Demo: 100 %");
}

TEST_F(ProgressLinesTest, whereNothingIsCopiedNothingIsWritten) {
    ProgressLines lines = linesFor(ProgressLines::Target::Terminal);
    lines.show(0, 0);
    lines.end();
    EXPECT_EQ(m_written, "");
}
