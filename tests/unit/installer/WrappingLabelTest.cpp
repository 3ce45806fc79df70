// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/WrappingLabel.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class WrappingLabelTest : public testing::Test {
protected:
    int lines(int width) const {
        return label.heightForWidth(width) / label.fontMetrics().height();
    }

    // The lowest row of pixels that is not background, of the label at the width.
    int lowestInk(int width) {
        label.resize(width, label.heightForWidth(width));
        QImage image(label.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::black);
        label.setPalette(palette);
        label.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        for (int y = image.height() - 1; y >= 0; --y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 128)
                    return y;
            }
        }
        return -1;
    }

    WrappingLabel label;
};

TEST_F(WrappingLabelTest, aNarrowLabelBreaksBetweenWords) {
    label.setText(u"some words that need several lines"_s);
    EXPECT_EQ(lines(10'000), 1);
    EXPECT_GT(lines(80), 2);
}

TEST_F(WrappingLabelTest, aWordWiderThanTheLabelIsBrokenToo) {
    label.setText(QString(200, u'm'));
    EXPECT_GT(lines(100), 10);
    EXPECT_LE(label.minimumSizeHint().width(), 100);
}

TEST_F(WrappingLabelTest, carriageReturnsSeparateLines) {
    label.setText(u"one\rtwo\nthree\r\nfour"_s);
    EXPECT_EQ(lines(10'000), 4);
}

TEST_F(WrappingLabelTest, theWholeTextIsPaintedInsideTheLabel) {
    label.setText(QString(300, u'M'));
    for (const int width : {60, 150, 400}) {
        const int lowest = lowestInk(width);
        EXPECT_GT(lowest, label.heightForWidth(width) - label.fontMetrics().height()) << width;
        EXPECT_LT(lowest, label.heightForWidth(width)) << width;
    }
}

TEST_F(WrappingLabelTest, markupIsShownAsItIs) {
    label.setText(u"<b>x</b>"_s);
    EXPECT_EQ(label.text(), u"<b>x</b>"_s);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}
