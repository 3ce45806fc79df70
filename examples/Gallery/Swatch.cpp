// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "examples/Gallery/Swatch.h"

#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include <QPainter>

#include <utility>

namespace gallery {

namespace {

constexpr int margin = 8;
constexpr qreal radius = 4;

} // namespace

Swatch::Swatch(Content content, QWidget *parent) : QWidget(parent), m_content(std::move(content)) {}

QSize Swatch::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(m_content.text) + 2 * margin, metrics.height() + margin};
}

void Swatch::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const DrawingContext context = ZTViewExtensions::drawingContext(*this, &painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_content.background());
    painter.drawRoundedRect(rect(), radius, radius);
    painter.setPen(m_content.textColor());
    painter.drawText(rect().adjusted(margin, 0, -margin, 0), Qt::AlignVCenter, m_content.text);
}

} // namespace gallery
