// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/CocoaExtensions/VisualEffectView.h"

#include "tests/unit/appearance/AppearanceFixture.h"

#include <QGraphicsView>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <cmath>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace ZTViewExtensions;

namespace {

class ViewExtensionsTest : public AppearanceTest {
protected:
    void showWindow() {
        window.resize(300, 200);
        window.show();
        QCoreApplication::processEvents();
    }

    QWidget window;
};

// Fills itself with the red of warnings, as its own context has it.
class WarningView final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        const DrawingContext context = drawingContext(*this, &painter);
        ZTDynamicColor::redWarningTextColor().setFill();
        painter.fillRect(rect(), painter.brush());
    }
};

} // namespace

TEST_F(ViewExtensionsTest, oneWindowPaintsTheSameColorInBothAppearances) {
    setApplicationScheme(Scheme::Dark);
    WarningView left(&window);
    WarningView right(&window);
    left.setGeometry(0, 0, 100, 200);
    right.setGeometry(100, 0, 100, 200);
    showWindow();
    useLightAquaAppearance(right, LightAppearance::Forced);
    QImage picture = window.grab().toImage();
    EXPECT_EQ(picture.pixel(50, 100), qRgb(255, 51, 0));
    EXPECT_EQ(picture.pixel(150, 100), qRgb(191, 0, 0));
    useLightAquaAppearance(right, LightAppearance::Inherited);
    picture = window.grab().toImage();
    EXPECT_EQ(picture.pixel(150, 100), qRgb(255, 51, 0));
}

TEST_F(ViewExtensionsTest, theLightAppearanceIsThatOfAWholeTree) {
    setApplicationScheme(Scheme::Dark);
    QWidget middle(&window);
    QWidget inner(&middle);
    QWidget beside(&window);
    useLightAquaAppearance(middle, LightAppearance::Forced);
    EXPECT_EQ(schemeOf(middle), Scheme::Light);
    EXPECT_EQ(schemeOf(inner), Scheme::Light);
    EXPECT_EQ(schemeOf(beside), Scheme::Dark);
    EXPECT_EQ(schemeOf(window), Scheme::Dark);
    setApplicationScheme(Scheme::Light);
    setApplicationScheme(Scheme::Dark);
    EXPECT_EQ(schemeOf(inner), Scheme::Light) << "whatever the application does";
    useLightAquaAppearance(middle, LightAppearance::Inherited);
    EXPECT_EQ(schemeOf(inner), Scheme::Dark);
}

TEST_F(ViewExtensionsTest, systemsWithoutAppearancesHaveNoneOfThese) {
    platform.systemVersion.framework = highSierra;
    setApplicationScheme(Scheme::Dark);
    QWidget view(&window);
    useLightAquaAppearance(view, LightAppearance::Forced);
    EXPECT_EQ(schemeOf(view), Scheme::Dark);
    EXPECT_EQ(wrapInVisualEffectView(view), nullptr);
    EXPECT_EQ(view.parentWidget(), &window);
    VisualEffectView effectView(&window);
    view.setParent(&effectView);
    EXPECT_EQ(enclosingVisualEffectView(view), nullptr);
    view.setParent(nullptr);
}

TEST_F(ViewExtensionsTest, theViewComesAboveItsSiblings) {
    auto *bottom = new QLineEdit(&window);
    auto *top = new QWidget(&window);
    bottom->setGeometry(0, 0, 100, 50);
    top->setGeometry(50, 0, 100, 50);
    showWindow();
    window.activateWindow();
    bottom->setFocus();
    ASSERT_EQ(window.childAt(75, 25), top);
    bringToFrontInsideSuperView(*bottom);
    EXPECT_EQ(window.childAt(75, 25), bottom);
    EXPECT_EQ(bottom->geometry(), QRect(0, 0, 100, 50));
    EXPECT_EQ(bottom->parentWidget(), &window);
    EXPECT_EQ(window.focusWidget(), bottom);
    EXPECT_TRUE(bottom->isVisible());
    bringToFrontInsideSuperView(window);
}

TEST_F(ViewExtensionsTest, aViewIsWrappedInItsPlace) {
    QWidget other(&window);
    QLineEdit view(&window);
    view.setGeometry(10, 20, 120, 30);
    other.setGeometry(10, 20, 120, 30);
    showWindow();
    window.activateWindow();
    view.setFocus();
    EXPECT_EQ(enclosingVisualEffectView(view), nullptr);
    VisualEffectView *effectView = wrapInVisualEffectView(view);
    ASSERT_NE(effectView, nullptr);
    EXPECT_EQ(view.parentWidget(), effectView);
    EXPECT_EQ(effectView->parentWidget(), &window);
    EXPECT_EQ(effectView->geometry(), QRect(10, 20, 120, 30));
    EXPECT_EQ(view.geometry(), QRect(0, 0, 120, 30));
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(window.focusWidget(), &view);
    EXPECT_EQ(window.childAt(30, 30), &view) << "on top";
    EXPECT_EQ(enclosingVisualEffectView(view), effectView);
    EXPECT_EQ(wrapInVisualEffectView(view), effectView) << "it does not nest";
    view.setParent(nullptr);
}

TEST_F(ViewExtensionsTest, aHiddenViewStaysHiddenWhenItIsWrapped) {
    QWidget view(&window);
    view.hide();
    showWindow();
    VisualEffectView *effectView = wrapInVisualEffectView(view);
    EXPECT_TRUE(view.isHidden());
    EXPECT_FALSE(effectView->isVisible());
    view.setParent(nullptr);
}

TEST_F(ViewExtensionsTest, aLayoutPlacesTheEffectViewInstead) {
    auto *layout = new QHBoxLayout(&window);
    auto *first = new QLabel(u"first"_s);
    auto *second = new QLabel(u"second"_s);
    layout->addWidget(first, 1);
    layout->addWidget(second, 3);
    showWindow();
    const QRect before = first->geometry();
    VisualEffectView *effectView = wrapInVisualEffectView(*first);
    QCoreApplication::processEvents();
    EXPECT_EQ(layout->indexOf(effectView), 0);
    EXPECT_EQ(layout->indexOf(first), -1);
    EXPECT_EQ(effectView->geometry(), before);
    EXPECT_EQ(first->geometry(), QRect(QPoint(), before.size()));
    window.resize(500, 300);
    QCoreApplication::processEvents();
    EXPECT_GT(effectView->width(), before.width());
    EXPECT_EQ(first->size(), effectView->size()) << "it fills it";
}

TEST_F(ViewExtensionsTest, aLayoutWithinALayoutHandsThePlaceOverToo) {
    auto *outer = new QHBoxLayout(&window);
    auto *inner = new QHBoxLayout;
    auto *label = new QLabel(u"inner"_s);
    outer->addLayout(inner);
    inner->addWidget(label);
    showWindow();
    const VisualEffectView *effectView = wrapInVisualEffectView(*label);
    EXPECT_EQ(inner->indexOf(effectView), 0);
    window.resize(500, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(label->size(), effectView->size());
}

TEST_F(ViewExtensionsTest, aViewWithoutASuperviewGetsAWindowAroundIt) {
    QWidget view;
    view.setGeometry(30, 40, 50, 60);
    const std::unique_ptr<VisualEffectView> effectView(wrapInVisualEffectView(view));
    ASSERT_NE(effectView, nullptr);
    EXPECT_EQ(effectView->parentWidget(), nullptr);
    EXPECT_EQ(effectView->geometry(), QRect(30, 40, 50, 60));
    EXPECT_EQ(view.geometry(), QRect(0, 0, 50, 60));
    view.setParent(nullptr);
}

TEST_F(ViewExtensionsTest, theMaterialLetsItsSurroundingsShow) {
    QPalette green = window.palette();
    green.setColor(QPalette::Window, Qt::green);
    window.setPalette(green);
    VisualEffectView effectView(&window);
    effectView.setGeometry(0, 0, 100, 100);
    showWindow();
    const QColor shown = window.grab().toImage().pixelColor(50, 50);
    EXPECT_GT(shown.green(), shown.red());
    EXPECT_GT(shown.red(), 150) << "a light material";
    EXPECT_TRUE(platform.windowSystem.blurred.empty()) << "nothing is behind an opaque window";
}

TEST_F(ViewExtensionsTest, whatIsBehindATranslucentWindowIsToBeBlurredBelowTheMaterial) {
    auto translucent = std::make_unique<QWidget>();
    translucent->setAttribute(Qt::WA_TranslucentBackground);
    translucent->resize(300, 200);
    auto *effectView = new VisualEffectView(translucent.get());
    effectView->setGeometry(10, 20, 100, 50);
    auto *other = new VisualEffectView(translucent.get());
    other->setGeometry(200, 20, 10, 10);
    translucent->show();
    const auto blurred = [&] {
        QCoreApplication::processEvents();
        translucent->grab();
        return platform.windowSystem.blurred[translucent->winId()];
    };
    EXPECT_EQ(blurred(), (QList<QRect>{{10, 20, 100, 50}, {200, 20, 10, 10}}));
    effectView->move(0, 0);
    EXPECT_EQ(blurred(), (QList<QRect>{{0, 0, 100, 50}, {200, 20, 10, 10}}));
    other->hide();
    EXPECT_EQ(blurred(), (QList<QRect>{{0, 0, 100, 50}}));
    delete effectView;
    EXPECT_TRUE(blurred().isEmpty());
    const QImage picture = translucent->grab().toImage();
    EXPECT_EQ(picture.pixelColor(50, 20).alpha(), 0);
}

TEST_F(ViewExtensionsTest, aScaledViewSaysSo) {
    QGraphicsView view;
    EXPECT_EQ(scale(view), 1);
    setScale(view, 2);
    EXPECT_DOUBLE_EQ(scale(view), 2);
    setScale(view, 0.5);
    EXPECT_DOUBLE_EQ(scale(view), 0.5) << "not on top of what it was";
    view.scale(3, 7);
    EXPECT_DOUBLE_EQ(scale(view), 1.5) << "by the width";
    resetScaling(view);
    EXPECT_TRUE(view.transform().isIdentity());
}

TEST_F(ViewExtensionsTest, aScaleThatNobodyCanDrawInIsPassedOver) {
    QGraphicsView view;
    setScale(view, 2);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double impossible : {0.0, infinity, -infinity, std::nan("")})
        setScale(view, impossible);
    EXPECT_DOUBLE_EQ(scale(view), 2);
    view.setTransform(QTransform::fromScale(0, 0));
    resetScaling(view);
    EXPECT_TRUE(view.transform().isIdentity()) << "what cannot be undone is taken away";
}

TEST_F(ViewExtensionsTest, aQuarterTurnIsNoScale) {
    QGraphicsView view;
    view.rotate(90);
    EXPECT_NEAR(scale(view), 1, 1e-9);
    setScale(view, 2);
    EXPECT_NEAR(scale(view), 2, 1e-9);
}

TEST_F(ViewExtensionsTest, viewsWithoutATransformAreDrawnInTheWindowsScale) {
    setScale(window, 2);
    resetScaling(window);
    EXPECT_EQ(scale(window), 1);
}
