#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Shows an icon as large as the view, sharp at any scale of the screen.

#include <QIcon>
#include <QWidget>

class IconView final : public QWidget {
    Q_OBJECT

public:
    explicit IconView(QWidget *parent = nullptr);

    const QIcon &icon() const { return m_icon; }
    void setIcon(const QIcon &icon);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon m_icon;
};
