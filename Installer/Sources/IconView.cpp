// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/IconView.h"

#include <QPainter>

IconView::IconView(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconView::setIcon(const QIcon &icon) {
    m_icon = icon;
    update();
}

void IconView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    m_icon.paint(&painter, rect());
}
