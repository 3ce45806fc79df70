// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ScrollAnimation.h"
#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include "tests/unit/appearance/AppearanceFixture.h"

#include <QScrollArea>
#include <QScrollBar>

#include <cmath>
#include <limits>
#include <memory>

using namespace std::chrono_literals;
using namespace ZTViewExtensions;

namespace {

constexpr auto whole = ScrollAnimation::duration;
constexpr int start = 300;

// Contents of 1000 x 2000 in a clip view of 200 x 100, scrolled to (40, 300).
class ViewExtensionsScrollingTest : public AppearanceTest {
protected:
    ViewExtensionsScrollingTest() {
        contents->resize(1000, 2000);
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setWidget(contents);
        area->resize(200, 100);
        area->show();
        QCoreApplication::processEvents();
        scrollTo(40, start);
    }

    void scrollTo(int x, int y) {
        area->horizontalScrollBar()->setValue(x);
        area->verticalScrollBar()->setValue(y);
        ASSERT_EQ(position(), QPoint(x, y));
    }

    QPoint position() const {
        return {area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()};
    }

    // The end of an animation, if there is one.
    QPoint endOf(bool scrolls) {
        EXPECT_TRUE(scrolls);
        platform.clock.advance(whole);
        return position();
    }

    std::unique_ptr<QScrollArea> area = std::make_unique<QScrollArea>();
    QWidget *contents = new QWidget;
};

struct ScrollRow {
    const char *reason;
    QRectF rect;
    PreferTop preferTop;
    std::optional<int> end; // no value: it does not scroll
};

// What is seen is from 300 to 400.
const ScrollRow rows[] = {
    {"wholly inside", {0, 310, 10, 20}, PreferTop::No, std::nullopt},
    {"wholly inside, with the top preferred", {0, 310, 10, 20}, PreferTop::Yes, std::nullopt},
    {"from the near edge on", {0, 300, 10, 99}, PreferTop::No, std::nullopt},
    {"its far edge is the visible one", {0, 350, 10, 50}, PreferTop::No, 300},
    {"just what is visible", {0, 300, 10, 100}, PreferTop::No, 300},
    {"beyond the far edge", {0, 390, 10, 30}, PreferTop::No, 320},
    {"far beyond", {0, 1000, 10, 30}, PreferTop::No, 930},
    {"before the near edge", {0, 290, 10, 20}, PreferTop::No, 290},
    {"far before", {0, 10, 10, 20}, PreferTop::No, 10},
    {"taller, at its largest y", {0, 350, 10, 400}, PreferTop::Yes, 650},
    {"taller, at its smallest y", {0, 350, 10, 400}, PreferTop::No, 350},
    {"taller and around, at its largest y", {0, 200, 10, 300}, PreferTop::Yes, 400},
    {"taller and around, at its smallest y", {0, 200, 10, 300}, PreferTop::No, 200},
    {"taller and before, at its largest y", {0, 100, 10, 150}, PreferTop::Yes, 150},
    {"just as tall is not taller", {0, 350, 10, 100}, PreferTop::Yes, 350},
    {"a width plays no part", {900, 390, 5000, 30}, PreferTop::No, 320},
    {"parts of pixels", {0, 390, 10, 30.6}, PreferTop::No, 321},
    {"without height, at the far edge", {0, 400, 10, 0}, PreferTop::No, 300},
    {"beyond the contents", {0, 5000, 10, 20}, PreferTop::No, 1900},
    {"before the contents", {0, -50, 10, 20}, PreferTop::No, 0},
};

} // namespace

TEST_F(ViewExtensionsScrollingTest, theRectangleComesIntoView) {
    for (const ScrollRow &row : rows) {
        SCOPED_TRACE(row.reason);
        scrollTo(40, start);
        const bool scrolls =
            animatedVerticalScrollRectToVisible(*contents, row.rect, row.preferTop);
        EXPECT_EQ(scrolls, row.end.has_value());
        platform.clock.advance(whole);
        EXPECT_EQ(position(), row.end ? QPoint(0, *row.end) : QPoint(40, start))
            << "always to the left edge, if at all";
    }
}

TEST_F(ViewExtensionsScrollingTest, aViewWithinTheContentsHasItsOwnCoordinates) {
    QWidget inner(contents);
    inner.setGeometry(20, 350, 100, 600); // 50 of it are seen
    inner.show();
    EXPECT_FALSE(animatedVerticalScrollRectToVisible(inner, {0, 0, 10, 30}, PreferTop::No));
    EXPECT_EQ(endOf(animatedVerticalScrollRectToVisible(inner, {0, 100, 10, 30}, PreferTop::No)),
              QPoint(0, 380));
}

TEST_F(ViewExtensionsScrollingTest, aViewThatIsNotSeenScrollsByItsOwnEdges) {
    QWidget inner(contents);
    inner.setGeometry(20, 1000, 100, 50);
    inner.show();
    // Nothing of it is seen: every rectangle is taller than that.
    EXPECT_TRUE(animatedVerticalScrollRectToVisible(inner, {0, 0, 10, 10}, PreferTop::No));
}

TEST_F(ViewExtensionsScrollingTest, outsideOfAScrollAreaTheAnswerIsTheSame) {
    QWidget alone;
    alone.resize(100, 100);
    EXPECT_FALSE(animatedVerticalScrollRectToVisible(alone, {0, 10, 10, 10}, PreferTop::No));
    EXPECT_TRUE(animatedVerticalScrollRectToVisible(alone, {0, 90, 10, 10}, PreferTop::No));
    EXPECT_TRUE(animatedVerticalScrollRectToVisible(alone, {0, -5, 10, 10}, PreferTop::No));
    EXPECT_FALSE(scrollRectToVisible(alone, {0, 500, 10, 10}, Animated::No));
    scrollPointAnimated(alone, {0, 50});
    platform.clock.advance(whole);
}

TEST_F(ViewExtensionsScrollingTest, theAnimationIsDrivenByTheClockAndEndsExactly) {
    ASSERT_TRUE(animatedVerticalScrollRectToVisible(*contents, {0, 1000, 10, 33}, PreferTop::No));
    EXPECT_EQ(position(), QPoint(40, start)) << "nothing moves at once";
    QPoint before = position();
    for (auto elapsed = 25ms; elapsed < whole; elapsed += 25ms) {
        platform.clock.advance(25ms);
        EXPECT_GT(position().y(), before.y()) << elapsed.count();
        EXPECT_LT(position().y(), 933) << elapsed.count();
        EXPECT_LE(position().x(), before.x()) << elapsed.count();
        before = position();
    }
    platform.clock.advance(25ms);
    EXPECT_EQ(position(), QPoint(0, 933));
    area->verticalScrollBar()->setValue(500);
    platform.clock.advance(1s);
    EXPECT_EQ(position().y(), 500) << "it is over";
    EXPECT_EQ(area->findChild<ScrollAnimation *>(), nullptr);
}

TEST_F(ViewExtensionsScrollingTest, halfOfTheTimeIsHalfOfTheWay) {
    scrollPointAnimated(*contents, {0, 700});
    platform.clock.advance(whole / 2);
    EXPECT_EQ(position(), QPoint(20, 500));
}

TEST_F(ViewExtensionsScrollingTest, aClockThatJumpsEndsItToo) {
    scrollPointAnimated(*contents, {0, 700});
    platform.clock.advance(1h);
    EXPECT_EQ(position(), QPoint(0, 700));
}

TEST_F(ViewExtensionsScrollingTest, anotherAnimationTakesOverFromWhereItIs) {
    scrollPointAnimated(*contents, {40, 1300});
    platform.clock.advance(whole / 2);
    ASSERT_EQ(position(), QPoint(40, 800));
    scrollPointAnimated(*contents, {40, 0});
    platform.clock.advance(whole / 2);
    EXPECT_EQ(position(), QPoint(40, 400));
    platform.clock.advance(whole / 2);
    EXPECT_EQ(position(), QPoint(40, 0));
}

TEST_F(ViewExtensionsScrollingTest, theUserTakesOver) {
    scrollPointAnimated(*contents, {0, 1300});
    platform.clock.advance(whole / 2);
    area->verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    const QPoint chosen = position();
    platform.clock.advance(whole);
    EXPECT_EQ(position(), chosen);
}

TEST_F(ViewExtensionsScrollingTest, aScrollAreaMayGoWhileItMoves) {
    scrollPointAnimated(*contents, {0, 1300});
    platform.clock.advance(whole / 2);
    area.reset();
    platform.clock.advance(whole);
}

TEST_F(ViewExtensionsScrollingTest, aListenerMayTakeTheScrollAreaAway) {
    scrollPointAnimated(*contents, {0, 1300});
    QObject::connect(area->horizontalScrollBar(), &QScrollBar::valueChanged, area.get(),
                     [this] { area.reset(); });
    platform.clock.advance(whole);
    EXPECT_EQ(area, nullptr);
}

TEST_F(ViewExtensionsScrollingTest, aPointIsKeptWithinTheContents) {
    const std::pair<QPointF, QPoint> points[] = {
        {{100, 200}, {100, 200}}, {{-5, -5}, {0, 0}},   {{5000, 5000}, {800, 1900}},
        {{0, 1e300}, {0, 1900}},  {{0.4, 0.6}, {0, 1}},
    };
    for (const auto &[point, end] : points) {
        scrollPointAnimated(*contents, point);
        platform.clock.advance(whole);
        EXPECT_EQ(position(), end);
    }
}

TEST_F(ViewExtensionsScrollingTest, withoutAnimationAsLittleAsPossibleIsScrolledAtOnce) {
    // What is seen is (40, 300) to (240, 400).
    const struct {
        const char *reason;
        QRectF rect;
        QPoint end;
    } cases[] = {
        {"seen already", {50, 310, 10, 10}, {40, 300}},
        {"to the right and down", {230, 390, 20, 30}, {50, 320}},
        {"to the left and up", {30, 290, 20, 20}, {30, 290}},
        {"larger than what can be seen, around it", {0, 0, 1000, 2000}, {40, 300}},
        {"larger, and beyond", {100, 350, 900, 900}, {100, 350}},
        {"larger, and before", {0, 0, 230, 350}, {30, 250}},
        {"parts of pixels", {50, 390, 10, 10.2}, {40, 301}},
    };
    for (const auto &row : cases) {
        scrollTo(40, start);
        for (const Animated animated : {Animated::Yes, Animated::No}) {
            const bool moves = position() != row.end;
            EXPECT_EQ(scrollRectToVisible(*contents, row.rect, animated), moves) << row.reason;
            EXPECT_EQ(position(), row.end) << row.reason;
        }
    }
}

TEST_F(ViewExtensionsScrollingTest, scrollingAtOnceEndsAnAnimation) {
    scrollPointAnimated(*contents, {0, 1300});
    EXPECT_TRUE(scrollRectToVisible(*contents, {40, 0, 10, 10}, Animated::Yes));
    platform.clock.advance(whole);
    EXPECT_EQ(position().y(), 0);
}

TEST_F(ViewExtensionsScrollingTest, rectanglesWithoutMeasureLeadToTheEnds) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(scrollRectToVisible(*contents, {infinity, infinity, 1, 1}, Animated::No));
    EXPECT_EQ(position(), QPoint(800, 1900));
    EXPECT_FALSE(scrollRectToVisible(*contents, {std::nan(""), std::nan(""), 1, 1}, Animated::No));
    EXPECT_EQ(
        endOf(animatedVerticalScrollRectToVisible(*contents, {0, -infinity, 1, 1}, PreferTop::No)),
        QPoint(0, 0));
    EXPECT_FALSE(
        animatedVerticalScrollRectToVisible(*contents, {0, std::nan(""), 1, 1}, PreferTop::No));
}

TEST_F(ViewExtensionsScrollingTest, whereLinesRunFromTheRightTheScrollBarDoesToo) {
    area->setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    area->horizontalScrollBar()->setValue(0);
    // What is seen begins at 800, the last 200 of the contents.
    EXPECT_FALSE(scrollRectToVisible(*contents, {810, 310, 10, 10}, Animated::No));
    EXPECT_TRUE(scrollRectToVisible(*contents, {700, 310, 10, 10}, Animated::No));
    EXPECT_EQ(contents->x(), -700);
}
