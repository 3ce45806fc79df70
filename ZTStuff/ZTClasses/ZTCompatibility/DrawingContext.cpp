// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"

namespace {

thread_local const DrawingContext *currentContext = nullptr;

} // namespace

DrawingContext::DrawingContext(Scheme scheme, QPainter *painter)
    : m_previous(currentContext)
    , m_scheme(scheme)
    , m_painter(painter) {
    currentContext = this;
}

DrawingContext::DrawingContext(const QPalette &palette, QPainter *painter)
    : DrawingContext(isDarkPalette(palette) ? Scheme::Dark : Scheme::Light, painter) {}

DrawingContext::~DrawingContext() {
    currentContext = m_previous;
}

const DrawingContext *DrawingContext::current() {
    return currentContext;
}
