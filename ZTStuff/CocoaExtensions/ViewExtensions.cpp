// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/CocoaExtensions/VisualEffectView.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include <QApplication>
#include <QGraphicsView>
#include <QLayout>
#include <QPointer>
#include <QWidget>

#include <cmath>
#include <memory>

namespace {

// The focus within the view, if it is there.
QPointer<QWidget> focusWithin(const QWidget &view) {
    QWidget *focus = QApplication::focusWidget();
    return focus == &view || view.isAncestorOf(focus) ? focus : nullptr;
}

// What a step of 1 to the right and 1 down becomes. Turning it round does not make it negative.
QSizeF mappedUnit(const QTransform &transform) {
    const QPointF unit = transform.map(QPointF(1, 1)) - transform.map(QPointF(0, 0));
    return {std::abs(unit.x()), std::abs(unit.y())};
}

} // namespace

namespace ZTViewExtensions {

void bringToFrontInsideSuperView(QWidget &receiver) {
    if (!receiver.isWindow())
        receiver.raise();
}

void useLightAquaAppearance(QWidget &receiver, LightAppearance appearance) {
    if (!ZTUtilities::mojaveOrNewer())
        return;
    receiver.setPalette(appearance == LightAppearance::Forced
                            ? paletteForScheme(zt::Appearance::Scheme::Light)
                            : QPalette());
}

VisualEffectView *enclosingVisualEffectView(const QWidget &receiver) {
    return ZTUtilities::mojaveOrNewer() ? qobject_cast<VisualEffectView *>(receiver.parentWidget())
                                        : nullptr;
}

VisualEffectView *wrapInVisualEffectView(QWidget &receiver) {
    if (!ZTUtilities::mojaveOrNewer())
        return nullptr;
    if (VisualEffectView *enclosing = enclosingVisualEffectView(receiver))
        return enclosing;
    const bool wasHidden = receiver.isHidden();
    const QSize size = receiver.size();
    const QPointer<QWidget> focus = focusWithin(receiver);
    QWidget *superview = receiver.isWindow() ? nullptr : receiver.parentWidget();
    auto *effectView = new VisualEffectView(superview);
    effectView->setGeometry(receiver.geometry());
    // A layout knows where the view was; it hands the place over.
    QLayout *layout = superview != nullptr ? superview->layout() : nullptr;
    effectView->setSizePolicy(receiver.sizePolicy());
    const std::unique_ptr<QLayoutItem> place(
        layout != nullptr ? layout->replaceWidget(&receiver, effectView) : nullptr);
    if (place) {
        effectView->fillWith(receiver);
    } else {
        receiver.setParent(effectView);
        receiver.move(0, 0);
        receiver.resize(size);
    }
    if (!wasHidden) {
        receiver.show();
        effectView->show();
    }
    if (focus)
        focus->setFocus();
    return effectView;
}

double scale(const QWidget &receiver) {
    const auto *view = qobject_cast<const QGraphicsView *>(&receiver);
    return view != nullptr ? mappedUnit(view->transform()).width() : 1.0;
}

void resetScaling(QWidget &receiver) {
    auto *view = qobject_cast<QGraphicsView *>(&receiver);
    if (view == nullptr)
        return;
    bool isInvertible = false;
    const QSizeF unit = mappedUnit(view->transform().inverted(&isInvertible));
    if (!isInvertible) {
        view->resetTransform();
        return;
    }
    view->scale(unit.width(), unit.height());
}

void setScale(QWidget &receiver, double scale) {
    auto *view = qobject_cast<QGraphicsView *>(&receiver);
    if (view == nullptr || !std::isfinite(scale) || scale == 0)
        return;
    resetScaling(receiver);
    view->scale(scale, scale);
    view->viewport()->update();
}

DrawingContext drawingContext(const QWidget &receiver, QPainter *painter) {
    return DrawingContext(schemeOf(receiver), painter);
}

} // namespace ZTViewExtensions
