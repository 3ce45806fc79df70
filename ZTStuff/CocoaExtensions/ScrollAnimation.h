#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Scrolling that is seen.

#include <QObject>
#include <QPoint>
#include <QPointF>

#include <chrono>

class QAbstractScrollArea;

namespace zt {
class Clock;
}

// Moves a scroll area's contents, by the current platform's clock, which outlives the animation.
// The scroll area owns it, and has one at most; it goes when it has arrived, when the user scrolls,
// or when another one begins. Thread: main.
class ScrollAnimation final : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds duration{250};

    // Until the point of the contents is at the top left corner, or as near as there are contents
    // when this is called.
    static void start(QAbstractScrollArea &area, const QPointF &target);

    // Leaves the contents where they are.
    static void stop(QAbstractScrollArea &area);

private:
    ScrollAnimation(QAbstractScrollArea &area, QPoint target);

    void scheduleStep();
    void step();

    QAbstractScrollArea &m_area;
    zt::Clock &m_clock;
    QPoint m_start;
    QPoint m_target;
    std::chrono::steady_clock::time_point m_startTime;
    bool m_isOver = false; // the user has taken over
};
