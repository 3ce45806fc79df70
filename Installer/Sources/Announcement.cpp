// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Announcement.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

namespace {

constexpr const char *isAnnounced = "isAnnounced";
constexpr const char *announcedText = "announcedText";

// Screen readers read out notifications, and only these, when they show.
class AnnouncedView final : public QAccessibleWidget {
public:
    explicit AnnouncedView(QWidget *view) : QAccessibleWidget(view, QAccessible::Notification) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        QString text = widget()->property(announcedText).toString();
        if (!text.isEmpty())
            return text;
        const auto *label = qobject_cast<QLabel *>(widget());
        return label ? label->text().replace(QLatin1Char('\r'), QLatin1Char(' '))
                     : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *interfaceOf(const QString & /*className*/, QObject *object) {
    auto *view = qobject_cast<QWidget *>(object);
    return view && view->property(isAnnounced).toBool() ? new AnnouncedView(view) : nullptr;
}

} // namespace

void prepareAnnouncements() {
    QAccessible::installFactory(interfaceOf); // which keeps it once
}

void announce(QWidget &view, const QString &text) {
    view.setProperty(announcedText, text);
    for (const QAccessible::Event kind : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(&view, kind);
        QAccessible::updateAccessibility(&event);
    }
}
