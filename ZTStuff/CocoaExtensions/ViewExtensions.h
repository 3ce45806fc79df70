#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Operations added to views. A view is a widget, its superview the parent widget, and coordinates
// go down as everywhere in Qt: the largest y is the bottom.

#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include <QPointF>
#include <QRectF>

class QPainter;
class QWidget;
class VisualEffectView;

// Thread: main.
namespace ZTViewExtensions {

// Scrolling. The scroll view is the nearest scroll area around the view (any QAbstractScrollArea
// whose scroll bars count pixels), its clip view is the viewport, and the origin of the clip view's
// bounds is where the scroll bars stand. An animated one takes a quarter of a second by the current
// platform's clock and ends exactly on its target, unless the user scrolls meanwhile or another one
// begins. The scroll bars keep it within the contents.

// Whether the part of a rectangle that is shown is to be at its largest y values when the rectangle
// is taller than what can be seen, or at its smallest ones. The former is the top where coordinates
// go up; here it is the bottom.
enum class PreferTop { No, Yes };

// Scrolls up or down, and always to the left edge (to the right one where lines run from there), so
// that the rectangle, in the view's coordinates, comes into view, as much of it as fits. What is
// seen of the view decides. Answers whether it scrolled: no for a rectangle that is seen already,
// yes for one that ends just where what is seen ends, although that scrolls by nothing. Outside of
// a scroll area nothing moves, and the answer is the same.
bool animatedVerticalScrollRectToVisible(QWidget &receiver, const QRectF &rect,
                                         PreferTop preferTop);

// Scrolls at once, as little as possible in both directions, until the rectangle is seen, whether
// an animation is asked for or not. Answers whether anything moved.
enum class Animated { No, Yes };
bool scrollRectToVisible(QWidget &receiver, const QRectF &rect, Animated animated);

// Scrolls until the point of the contents is at the top left corner, or as near to it as there are
// contents.
void scrollPointAnimated(QWidget &receiver, const QPointF &point);

// Puts the view above all others of its superview. Focus and geometry stay. A window is left alone.
void bringToFrontInsideSuperView(QWidget &receiver);

// Appearance. Without effect on systems that have no appearances (before `mojaveOrNewer`), where
// the answers are null.

// Whether a view is drawn in the light appearance whatever the application's own is.
enum class LightAppearance { Forced, Inherited };

// Gives the view and all views in it the light palette, or lets them inherit again.
void useLightAquaAppearance(QWidget &receiver, LightAppearance appearance);

// The visual-effect view that is the superview; null when it is another one.
VisualEffectView *enclosingVisualEffectView(const QWidget &receiver);

// Puts a visual-effect view in the view's place, on top of the superview's views, and the view into
// that; answers the one that is already there, if so. Where a layout has placed the view, it places
// the visual-effect view instead, which the view then fills. The view keeps its size and the focus.
// Around a view without superview it becomes a window in its place, which the caller owns.
VisualEffectView *wrapInVisualEffectView(QWidget &receiver);

// Scale, relative to the window. The views that have one are QGraphicsView and what derives from
// it, through their transform. Other views are always drawn in the window's own scale: it is 1, and
// setting it does nothing.
double scale(const QWidget &receiver);
// Numbers that no view can be drawn in (0, infinite ones) are passed over.
void setScale(QWidget &receiver, double scale);
void resetScaling(QWidget &receiver);

// For the paint event of a view: dynamic colours are those of the view's appearance (see schemeOf).
//     const DrawingContext context = ZTViewExtensions::drawingContext(*this, &painter);
DrawingContext drawingContext(const QWidget &receiver, QPainter *painter = nullptr);

} // namespace ZTViewExtensions
