// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ForecastView.h"

#include "Installer/Sources/IconView.h"
#include "Installer/Sources/LocalizedString.h"
#include "Installer/Sources/WrappingLabel.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int rowSpacing = 6;
constexpr int iconSpacing = 8;

} // namespace

ForecastView::ForecastView(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this)) {
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(rowSpacing);
}

QString ForecastView::text() const {
    QStringList texts;
    for (const ForecastLine &line : m_lines)
        texts << line.text;
    return texts.join(QLatin1Char(' '));
}

void ForecastView::setLines(const QList<ForecastLine> &lines) {
    if (lines == m_lines)
        return;
    m_lines = lines;
    qDeleteAll(findChildren<QWidget *>(Qt::FindDirectChildrenOnly));
    while (const QLayoutItem *row = m_layout->takeAt(0))
        delete row;
    for (const ForecastLine &line : lines)
        addRow(line);
}

void ForecastView::addRow(const ForecastLine &line) {
    const bool isProblem = line.kind == ForecastLine::Kind::Problem;
    auto *icon = new IconView(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setFixedSize(size, size);
    icon->setIcon(style()->standardIcon(isProblem ? QStyle::SP_MessageBoxWarning
                                                  : QStyle::SP_MessageBoxInformation,
                                        nullptr, this));
    icon->setAccessibleName(isProblem ? localizedString("Problem") : localizedString("Notice"));
    auto *text = new WrappingLabel(this);
    text->setText(line.text);
    auto *row = new QHBoxLayout;
    row->setSpacing(iconSpacing);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(text);
    m_layout->addLayout(row);
    icon->show();
    text->show();
}
