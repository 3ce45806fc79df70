#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// In which appearance something is being drawn, and with which painter.

#include "Platform/Appearance.h"

class QPainter;
class QPalette;

// While it exists, dynamic colours used on this thread are those of its appearance:
//     void paintEvent(QPaintEvent *) {
//         QPainter painter(this);
//         const DrawingContext context(palette(), &painter);
//         painter.setPen(ZTDynamicColor::redWarningTextColor());
// Contexts nest; the latest counts. For a widget whose palette follows dynamic colours itself, take
// ZTViewExtensions::drawingContext(). Thread: the one that draws.
class DrawingContext {
public:
    using Scheme = zt::Appearance::Scheme;

    // The painter, if any, is the one that a colour's set operations act upon; it outlives the
    // context.
    explicit DrawingContext(Scheme scheme, QPainter *painter = nullptr);
    // The appearance that the palette makes: dark when it draws light text on dark.
    explicit DrawingContext(const QPalette &palette, QPainter *painter = nullptr);
    ~DrawingContext();
    DrawingContext(const DrawingContext &) = delete;
    DrawingContext &operator=(const DrawingContext &) = delete;

    // The latest of this thread; null when nothing told in what it draws.
    static const DrawingContext *current();

    Scheme scheme() const { return m_scheme; }
    QPainter *painter() const { return m_painter; }

private:
    const DrawingContext *m_previous;
    Scheme m_scheme;
    QPainter *m_painter;
};
