// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/FirstPaint.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace {

class FirstPaintFilter final : public QObject {
public:
    FirstPaintFilter(QWidget &widget, std::function<void()> operation)
        : QObject(&widget)
        , m_operation(std::move(operation)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // A queued call comes when all of the window has been drawn.
            QMetaObject::invokeMethod(
                this,
                [this] {
                    m_operation();
                    deleteLater();
                },
                Qt::QueuedConnection);
        }
        return false;
    }

private:
    std::function<void()> m_operation;
};

} // namespace

void callAfterFirstPaint(QWidget &widget, std::function<void()> operation) {
    new FirstPaintFilter(widget, std::move(operation));
}
