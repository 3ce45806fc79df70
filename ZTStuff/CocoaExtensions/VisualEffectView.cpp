// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/VisualEffectView.h"

#include "Platform/Platform.h"
#include "Platform/WindowSystem.h"

#include "ZTStuff/CocoaExtensions/ViewExtensions.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

const ZTDynamicColor &material() {
    static const auto color =
        ZTDynamicColor::lightColor(QColor(0xf6, 0xf6, 0xf7, 0xd0), QColor(0x26, 0x26, 0x29, 0xd0));
    return color;
}

QRect inDevicePixels(const QRect &rect, qreal ratio) {
    return QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio)
        .toAlignedRect();
}

// All of the window that such views cover.
QList<QRect> coveredBy(const QWidget &window) {
    QList<const VisualEffectView *> views;
    for (const VisualEffectView *view : window.findChildren<VisualEffectView *>())
        views.append(view);
    if (const auto *view = qobject_cast<const VisualEffectView *>(&window))
        views.append(view);
    QList<QRect> covered;
    for (const VisualEffectView *view : views) {
        if (!view->isVisible() || view->window() != &window)
            continue;
        const QRect place(view->mapTo(&window, QPoint()), view->size());
        covered.append(inDevicePixels(place, window.devicePixelRatioF()));
    }
    return covered;
}

} // namespace

VisualEffectView::VisualEffectView(QWidget *parent) : QWidget(parent) {}

VisualEffectView::~VisualEffectView() {
    // While it still is one of those that are looked for.
    hide();
}

void VisualEffectView::fillWith(QWidget &view) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(&view);
}

void VisualEffectView::paintEvent(QPaintEvent * /*event*/) {
    // It is painted wherever it has been moved to, and whatever has moved it.
    updateBlur();
    QPainter painter(this);
    const DrawingContext context = ZTViewExtensions::drawingContext(*this, &painter);
    // In a translucent window the material takes the place of what is there.
    if (window()->testAttribute(Qt::WA_TranslucentBackground))
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), material().effectiveColor());
}

void VisualEffectView::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    updateBlur();
}

void VisualEffectView::updateBlur() {
    const QWidget *top = window();
    const WId number = top->internalWinId();
    // An opaque window has nothing behind it that shows.
    if (number == 0 || !top->testAttribute(Qt::WA_TranslucentBackground))
        return;
    const QList<QRect> parts = coveredBy(*top);
    if (number == m_blurredWindow && parts == m_blurred)
        return;
    m_blurredWindow = number;
    m_blurred = parts;
    zt::currentPlatform().windowSystem.blurBehind(number, parts);
}
