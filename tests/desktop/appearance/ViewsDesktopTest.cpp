// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Operations on views, with the X server's own mouse, keyboard and clock.

#include "ZTStuff/CocoaExtensions/ScrollAnimation.h"
#include "ZTStuff/CocoaExtensions/VisualEffectView.h"
#include "tests/Waiting.h"

#include "tests/desktop/appearance/ScreenFixture.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace ZTViewExtensions;

namespace {

class ViewsDesktopTest : public ScreenFixture {
protected:
    zt::NativePlatform native{QCoreApplication::arguments()};
    zt::ScopedPlatform current{native.services()};
};

} // namespace

TEST_F(ViewsDesktopTest, anAnimationIsSeenOnItsWayAndEndsExactly) {
    QScrollArea area;
    auto *contents = new QWidget;
    contents->resize(1000, 5000);
    area.setWidget(contents);
    area.resize(300, 200);
    show(area);
    area.horizontalScrollBar()->setValue(100);
    QList<int> places;
    QObject::connect(area.verticalScrollBar(), &QScrollBar::valueChanged, &area,
                     [&places](int place) { places.append(place); });
    const int seen = area.viewport()->height();
    ASSERT_TRUE(animatedVerticalScrollRectToVisible(*contents, {0, 3000, 10, 77}, PreferTop::No));
    EXPECT_TRUE(eventually([&area] { return area.findChild<ScrollAnimation *>() == nullptr; }));
    ASSERT_FALSE(places.isEmpty());
    EXPECT_EQ(places.constLast(), 3077 - seen);
    EXPECT_EQ(area.horizontalScrollBar()->value(), 0);
    EXPECT_TRUE(std::is_sorted(places.begin(), places.end())) << "never back";
}

TEST_F(ViewsDesktopTest, theMouseWheelTakesOver) {
    QScrollArea area;
    auto *contents = new QWidget;
    contents->resize(200, 50'000);
    area.setWidget(contents);
    area.resize(300, 200);
    show(area);
    const QPoint middle = area.mapToGlobal(area.rect().center());
    run(u"xdotool"_s, {u"mousemove"_s, QString::number(middle.x()), QString::number(middle.y())});
    bool hasUserScrolled = false;
    QObject::connect(area.verticalScrollBar(), &QScrollBar::actionTriggered, &area,
                     [&hasUserScrolled] { hasUserScrolled = true; });
    // Far enough for the wheel to come in time; if it does not, it is tried once more.
    EXPECT_TRUE(eventually([&] {
        area.verticalScrollBar()->setValue(0);
        hasUserScrolled = false;
        scrollPointAnimated(*contents, {0, 49'000});
        run(u"xdotool"_s, {u"click"_s, u"5"_s});
        return eventually([&] {
                   return area.findChild<ScrollAnimation *>() == nullptr && hasUserScrolled;
               }) &&
               area.verticalScrollBar()->value() < 49'000;
    }));
}

TEST_F(ViewsDesktopTest, aViewInFrontTakesTheClicksAndKeepsTheKeyboard) {
    QWidget window;
    window.resize(300, 200);
    auto *field = new QLineEdit(&window);
    auto *button = new QPushButton(u"Above"_s, &window);
    field->setGeometry(0, 0, 200, 100);
    button->setGeometry(100, 0, 200, 100);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, &window, [&clicks] { ++clicks; });
    button->setFocusPolicy(Qt::NoFocus);
    field->setFocus();
    show(window);
    const QPoint both = window.mapToGlobal(QPoint(150, 50));
    click(both);
    EXPECT_TRUE(eventually([&clicks] { return clicks == 1; }));
    bringToFrontInsideSuperView(*field);
    QApplication::processEvents();
    click(both);
    run(u"xdotool"_s, {u"key"_s, u"a"_s});
    EXPECT_TRUE(eventually([field] { return field->text() == u"a"; }));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(field->geometry(), QRect(0, 0, 200, 100));
}

TEST_F(ViewsDesktopTest, aWrappedFieldGoesOnTakingTheKeyboard) {
    QWidget window;
    window.resize(300, 200);
    auto *field = new QLineEdit(&window);
    field->setGeometry(20, 20, 200, 40);
    field->setFocus();
    show(window);
    wrapInVisualEffectView(*field);
    QApplication::processEvents();
    run(u"xdotool"_s, {u"key"_s, u"b"_s});
    EXPECT_TRUE(eventually([field] { return field->text() == u"b"; }));
}

TEST_F(ViewsDesktopTest, theCompositorIsToldWhatToBlur) {
    const QString hint = u"_KDE_NET_WM_BLUR_BEHIND_REGION"_s;
    const auto hintOf = [&hint](const QWidget &window) {
        return run(u"xprop"_s, {u"-id"_s, QString::number(window.winId()), u"-notype"_s, hint});
    };
    QWidget window;
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.resize(300, 200);
    auto *effectView = new VisualEffectView(&window);
    effectView->setGeometry(10, 20, 100, 50);
    show(window);
    window.repaint();
    EXPECT_TRUE(hintOf(window).contains("not found")) << "no compositor offers it";
    // As a compositor says that it does.
    run(u"xprop"_s, {u"-root"_s, u"-format"_s, hint, u"32c"_s, u"-set"_s, hint, u"0"_s});
    effectView->resize(100, 60);
    EXPECT_TRUE(eventually([&] { return hintOf(window).contains("= 10, 20, 100, 60\n"); }));
    effectView->hide();
    EXPECT_TRUE(eventually([&] { return hintOf(window).contains("not found"); }));
}

TEST_F(ViewsDesktopTest, aScaledViewIsDrawnLarger) {
    QGraphicsScene scene(-100, -100, 200, 200);
    scene.addRect(-10, -10, 20, 20, QPen(Qt::NoPen), Qt::red);
    QGraphicsView view(&scene);
    view.resize(300, 300);
    setScale(view, 4);
    show(view);
    const auto colorAt = [&view](int distance) {
        const QPoint place = view.viewport()->rect().center() + QPoint(distance, 0);
        return view.viewport()->grab().toImage().pixelColor(place);
    };
    EXPECT_EQ(colorAt(30), QColor(Qt::red)) << "4 times as far as it is in the scene";
    setScale(view, 2);
    EXPECT_NE(colorAt(30), QColor(Qt::red));
    EXPECT_EQ(colorAt(15), QColor(Qt::red));
}
