// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ScrollAnimation.h"

#include "Platform/Clock.h"
#include "Platform/Platform.h"

#include <QAbstractScrollArea>
#include <QEasingCurve>
#include <QPointer>
#include <QScrollBar>

namespace {

using namespace std::chrono_literals;

constexpr auto timeBetweenSteps = 16ms; // as often as most screens show a new picture

int constrained(const QScrollBar &bar, double value) {
    // Before it becomes an integer: it may be any number.
    const double within = qBound(double(bar.minimum()), value, double(bar.maximum()));
    return qRound(within);
}

} // namespace

void ScrollAnimation::start(QAbstractScrollArea &area, const QPointF &target) {
    stop(area);
    const QPoint position(constrained(*area.horizontalScrollBar(), target.x()),
                          constrained(*area.verticalScrollBar(), target.y()));
    new ScrollAnimation(area, position);
}

void ScrollAnimation::stop(QAbstractScrollArea &area) {
    delete area.findChild<ScrollAnimation *>({}, Qt::FindDirectChildrenOnly);
}

ScrollAnimation::ScrollAnimation(QAbstractScrollArea &area, QPoint target)
    : QObject(&area)
    , m_area(area)
    , m_clock(zt::currentPlatform().clock)
    , m_start(area.horizontalScrollBar()->value(), area.verticalScrollBar()->value())
    , m_target(target)
    , m_startTime(m_clock.steadyNow()) {
    for (const QScrollBar *bar : {area.horizontalScrollBar(), area.verticalScrollBar()})
        connect(bar, &QScrollBar::actionTriggered, this, [this] { m_isOver = true; });
    scheduleStep();
}

void ScrollAnimation::scheduleStep() {
    m_clock.callAfter(timeBetweenSteps, [animation = QPointer(this)] {
        if (animation)
            animation->step();
    });
}

void ScrollAnimation::step() {
    if (m_isOver) {
        delete this;
        return;
    }
    const std::chrono::duration<double> elapsed = m_clock.steadyNow() - m_startTime;
    const double progress = elapsed / std::chrono::duration<double>(duration);
    const bool hasArrived = progress >= 1;
    const double way = QEasingCurve(QEasingCurve::InOutQuad).valueForProgress(progress);
    const QPoint position =
        hasArrived ? m_target : m_start + (QPointF(m_target - m_start) * way).toPoint();
    // Others hear of it, and may begin another animation or take the scroll area away.
    const QPointer stillHere(this);
    m_area.horizontalScrollBar()->setValue(position.x());
    if (stillHere)
        m_area.verticalScrollBar()->setValue(position.y());
    if (!stillHere)
        return;
    if (hasArrived) {
        delete this;
        return;
    }
    scheduleStep();
}
