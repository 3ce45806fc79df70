// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/WrappingLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

// Widths in average characters: what a column of text should not exceed, and what it needs.
constexpr int preferredColumns = 48;
constexpr int fewestColumns = 8;

} // namespace

WrappingLabel::WrappingLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void WrappingLabel::setTextDirection(Qt::LayoutDirection direction) {
    m_textDirection = direction;
    update();
}

int WrappingLabel::heightForWidth(int width) const {
    QTextLayout layout(displayedText(), font());
    const QMargins margins = contentsMargins();
    const qreal height = layOut(layout, width - margins.left() - margins.right());
    return static_cast<int>(std::ceil(height)) + margins.top() + margins.bottom();
}

QSize WrappingLabel::sizeHint() const {
    QTextLayout layout(displayedText(), font());
    layOut(layout, fontMetrics().averageCharWidth() * preferredColumns);
    qreal widest = 0;
    for (int i = 0; i < layout.lineCount(); ++i)
        widest = std::max(widest, layout.lineAt(i).naturalTextWidth());
    const QMargins margins = contentsMargins();
    const int width = static_cast<int>(std::ceil(widest)) + margins.left() + margins.right();
    return {width, heightForWidth(width)};
}

QSize WrappingLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * fewestColumns, fontMetrics().lineSpacing()};
}

void WrappingLabel::paintEvent(QPaintEvent *) {
    QTextLayout layout(displayedText(), font());
    const QRect area = contentsRect();
    const qreal height = layOut(layout, area.width());
    const qreal top = alignment().testFlag(Qt::AlignTop)
                          ? area.top()
                          : area.top() + std::max(0.0, (area.height() - height) / 2);
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, QPointF(area.left(), top));
}

qreal WrappingLabel::layOut(QTextLayout &layout, int width) const {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(m_textDirection.value_or(layoutDirection()));
    option.setAlignment(QStyle::visualAlignment(layoutDirection(), alignment()));
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(1, width));
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    return height;
}

QString WrappingLabel::displayedText() const {
    // Messages separate their lines by carriage returns.
    QString text = QLabel::text();
    text.replace(QStringLiteral("\r\n"), QString(QChar::LineSeparator));
    return text.replace(u'\r', QChar::LineSeparator).replace(u'\n', QChar::LineSeparator);
}
