// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"

#include "Platform/Platform.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include <QEvent>
#include <QHash>
#include <QList>
#include <QScopedValueRollback>
#include <QWidget>

#include <map>
#include <utility>

namespace {

using ColorSource = std::function<ZTDynamicColor()>;

// Follows for one widget; the widget owns it.
class PaletteFollower final : public QObject {
public:
    explicit PaletteFollower(QWidget &widget);
    ~PaletteFollower() override;
    PaletteFollower(const PaletteFollower &) = delete;
    PaletteFollower &operator=(const PaletteFollower &) = delete;

    void follow(QPalette::ColorRole role, ColorSource color);
    // Answers whether there are other roles left.
    bool stopFollowing(QPalette::ColorRole role);
    void applyColors();
    void addRoles(QList<QPalette::ColorRole> &roles) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_widget;
    std::map<QPalette::ColorRole, ColorSource> m_colors;
    bool m_isApplying = false;
};

// All followers, and the listener to the desktop's settings while there are any.
class Followers {
public:
    static Followers &shared() {
        static auto &followers = *new Followers; // widgets may be static too
        return followers;
    }

    PaletteFollower *of(const QWidget &widget) const { return m_followers.value(&widget); }

    void add(const QWidget &widget, PaletteFollower &follower) {
        if (m_followers.isEmpty()) {
            m_appearance = &zt::currentPlatform().appearance;
            m_appearance->setChangeListener(this, [this] { applyColors(); });
        }
        m_followers.insert(&widget, &follower);
    }

    void remove(const QWidget &widget) {
        m_followers.remove(&widget);
        if (m_followers.isEmpty())
            std::exchange(m_appearance, nullptr)->setChangeListener(this, {});
    }

private:
    void applyColors() const {
        // Widgets may come and go when their palettes change.
        const QList<const QWidget *> widgets = m_followers.keys();
        for (const QWidget *widget : widgets) {
            if (PaletteFollower *follower = m_followers.value(widget))
                follower->applyColors();
        }
    }

    QHash<const QWidget *, PaletteFollower *> m_followers;
    zt::Appearance *m_appearance = nullptr; // while there are followers
};

PaletteFollower::PaletteFollower(QWidget &widget) : QObject(&widget), m_widget(widget) {
    Followers::shared().add(widget, *this);
    widget.installEventFilter(this);
}

PaletteFollower::~PaletteFollower() {
    Followers::shared().remove(m_widget);
}

void PaletteFollower::follow(QPalette::ColorRole role, ColorSource color) {
    m_colors.insert_or_assign(role, std::move(color));
    applyColors();
}

bool PaletteFollower::stopFollowing(QPalette::ColorRole role) {
    m_colors.erase(role);
    return !m_colors.empty();
}

void PaletteFollower::addRoles(QList<QPalette::ColorRole> &roles) const {
    for (const auto &[role, color] : m_colors)
        roles.append(role);
}

void PaletteFollower::applyColors() {
    if (m_isApplying)
        return;
    const QScopedValueRollback applying(m_isApplying, true);
    const DrawingContext context(schemeOf(m_widget));
    QPalette palette = m_widget.palette();
    bool hasChanged = false;
    for (const auto &[role, source] : m_colors) {
        const QColor color = source().effectiveColor();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            if (palette.color(group, role) != color || !palette.isBrushSet(group, role)) {
                palette.setColor(group, role, color);
                hasChanged = true;
            }
        }
    }
    if (hasChanged)
        m_widget.setPalette(palette);
}

bool PaletteFollower::eventFilter(QObject *watched, QEvent *event) {
    if (watched == &m_widget && event->type() == QEvent::PaletteChange)
        applyColors();
    return QObject::eventFilter(watched, event);
}

} // namespace

void followDynamicColor(QWidget &widget, QPalette::ColorRole role, const ZTDynamicColor &color) {
    followDynamicColor(widget, role, [color] { return color; });
}

void followDynamicColor(QWidget &widget, QPalette::ColorRole role,
                        std::function<ZTDynamicColor()> color) {
    PaletteFollower *follower = Followers::shared().of(widget);
    if (follower == nullptr)
        follower = new PaletteFollower(widget);
    follower->follow(role, std::move(color));
}

void stopFollowingDynamicColor(QWidget &widget, QPalette::ColorRole role) {
    PaletteFollower *follower = Followers::shared().of(widget);
    if (follower != nullptr && !follower->stopFollowing(role))
        delete follower;
}

zt::Appearance::Scheme schemeOf(const QWidget &widget) {
    // Children inherit what their parents follow.
    QList<QPalette::ColorRole> followed;
    for (const QWidget *view = &widget; view != nullptr; view = view->parentWidget()) {
        if (const PaletteFollower *follower = Followers::shared().of(*view))
            follower->addRoles(followed);
        if (view->isWindow())
            break;
    }
    return isDarkPalette(widget.palette(), followed) ? zt::Appearance::Scheme::Dark
                                                     : zt::Appearance::Scheme::Light;
}
