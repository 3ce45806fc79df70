// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include "ZTStuff/CocoaExtensions/ScrollAnimation.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

QAbstractScrollArea *enclosingScrollView(const QWidget &view) {
    for (const QWidget *inner = &view; inner->parentWidget() != nullptr;
         inner = inner->parentWidget()) {
        auto *area = qobject_cast<QAbstractScrollArea *>(inner->parentWidget());
        if (area != nullptr && area->viewport() == inner)
            return area;
        if (inner->isWindow())
            break;
    }
    return nullptr;
}

// The part of the view that no superview cuts off, in the view's coordinates.
QRectF visibleRectOf(const QWidget &view) {
    QRect visible = view.rect();
    QPoint offset;
    for (const QWidget *inner = &view; !inner->isWindow() && inner->parentWidget() != nullptr;
         inner = inner->parentWidget()) {
        offset -= inner->pos();
        visible &= inner->parentWidget()->rect().translated(offset);
    }
    return visible;
}

QPoint scrollPosition(const QAbstractScrollArea &area) {
    return {area.horizontalScrollBar()->value(), area.verticalScrollBar()->value()};
}

// The least way by which one span comes to show all of another one; 0 when it does already, or when
// it is within the other one.
double leastWay(double start, double end, double shownStart, double shownEnd) {
    const double toStart = start - shownStart;
    const double toEnd = end - shownEnd;
    if (toStart < 0 && toEnd < 0)
        return std::max(toStart, toEnd);
    if (toStart > 0 && toEnd > 0)
        return std::min(toStart, toEnd);
    return 0;
}

} // namespace

namespace ZTViewExtensions {

bool animatedVerticalScrollRectToVisible(QWidget &receiver, const QRectF &rect,
                                         PreferTop preferTop) {
    QAbstractScrollArea *area = enclosingScrollView(receiver);
    const QRectF visible = visibleRectOf(receiver);
    QRectF wanted = rect;
    if (wanted.height() > visible.height()) {
        if (preferTop == PreferTop::Yes)
            wanted.moveTop(wanted.y() + wanted.height() - visible.height());
        wanted.setHeight(visible.height());
    }
    const double visibleEnd = visible.y() + visible.height();
    const double wantedEnd = wanted.y() + wanted.height();
    double offset = 0;
    if (visible.y() > wanted.y()) {
        offset = wanted.y() - visible.y();
    } else if (wantedEnd >= visibleEnd) {
        offset = wantedEnd - visibleEnd;
    } else {
        return false;
    }
    if (area != nullptr) {
        const auto origin = static_cast<float>(scrollPosition(*area).y() + offset);
        ScrollAnimation::start(*area, QPointF(0, static_cast<double>(origin)));
    }
    return true;
}

bool scrollRectToVisible(QWidget &receiver, const QRectF &rect, Animated /*animated*/) {
    QAbstractScrollArea *area = enclosingScrollView(receiver);
    if (area == nullptr)
        return false;
    ScrollAnimation::stop(*area);
    const QWidget *clipView = area->viewport();
    const QRectF shown = QRectF(clipView->rect()).translated(receiver.mapFrom(clipView, QPoint()));
    const QPoint before = scrollPosition(*area);
    const auto scrollBy = [](QScrollBar &bar, double way) {
        // Outwards, so that a part of a pixel is seen too.
        const double value = bar.value() + (way < 0 ? std::floor(way) : std::ceil(way));
        bar.setValue(
            static_cast<int>(std::clamp(value, double(bar.minimum()), double(bar.maximum()))));
    };
    // Where lines run from the right, so does the scroll bar.
    const double direction = area->isRightToLeft() ? -1 : 1;
    scrollBy(*area->horizontalScrollBar(),
             direction * leastWay(rect.left(), rect.right(), shown.left(), shown.right()));
    scrollBy(*area->verticalScrollBar(),
             leastWay(rect.top(), rect.bottom(), shown.top(), shown.bottom()));
    return scrollPosition(*area) != before;
}

void scrollPointAnimated(QWidget &receiver, const QPointF &point) {
    if (QAbstractScrollArea *area = enclosingScrollView(receiver))
        ScrollAnimation::start(*area, point);
}

} // namespace ZTViewExtensions
