// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

bool applicationIsDark() {
    // Without a graphical application the framework's palette says nothing.
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr &&
           isDarkPalette(QGuiApplication::palette());
}

bool contextIsDark() {
    const DrawingContext *context = DrawingContext::current();
    return context != nullptr ? context->scheme() == DrawingContext::Scheme::Dark
                              : applicationIsDark();
}

// So that a variant with a dynamic colour can be read as a colour or a brush, and resolves then.
bool registerConversions() {
    return QMetaType::registerConverter<ZTDynamicColor, QColor>(&ZTDynamicColor::operator QColor) &&
           QMetaType::registerConverter<ZTDynamicColor, QBrush>(&ZTDynamicColor::operator QBrush);
}

} // namespace

ZTDynamicColor ZTDynamicColor::lightColor(const QColor &aquaColor,
                                          const std::optional<QColor> &darkColor) {
    return {aquaColor, darkColor, GlobalAppearance::Unused};
}

ZTDynamicColor ZTDynamicColor::lightColor(const QColor &aquaColor,
                                          const std::optional<QColor> &darkColor,
                                          GlobalAppearance global) {
    return {aquaColor, darkColor, global};
}

ZTDynamicColor::ZTDynamicColor(const QColor &aquaColor, const std::optional<QColor> &darkAquaColor,
                               GlobalAppearance global)
    : m_aquaColor(aquaColor)
    , m_darkAquaColor(darkAquaColor)
    , m_global(global) {}

ZTDynamicColor &ZTDynamicColor::useGlobalAppearance(GlobalAppearance global) {
    m_global = global;
    return *this;
}

QColor ZTDynamicColor::effectiveColor() const {
    if (!m_darkAquaColor || !ZTUtilities::mojaveOrNewer())
        return m_aquaColor;
    const bool isDark =
        m_global == GlobalAppearance::Used ? ZTUtilities::darkAppearance() : contextIsDark();
    return isDark ? *m_darkAquaColor : m_aquaColor;
}

ZTDynamicColor::operator QVariant() const {
    [[maybe_unused]] static const bool isRegistered = registerConversions();
    return QVariant::fromValue(*this);
}
