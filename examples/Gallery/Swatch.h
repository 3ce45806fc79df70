#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A field with a text, both in dynamic colours.

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <QString>
#include <QWidget>

#include <functional>

namespace gallery {

// Draws in the appearance that its palette makes.
class Swatch final : public QWidget {
public:
    struct Content {
        QString text;
        std::function<QColor()> textColor; // asked for each time it is drawn, as the next
        std::function<QColor()> background;
    };

    explicit Swatch(Content content, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Content m_content;
};

} // namespace gallery
