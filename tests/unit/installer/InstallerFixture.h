#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A controller on made-up services.

#include "Installer/Sources/InstallerWinController.h"

#include "tests/unit/installer/ProductFixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

class InstallerFixture : public ProductFixture {
protected:
    // Makes the controller with the arguments behind the program's name. Does not start it up.
    InstallerWinController &controller(const QStringList &arguments = {}) {
        if (!m_controller) {
            m_controller =
                std::make_unique<InstallerWinController>(InstallerWinController::Environment{
                    .platform = platform.services,
                    .argumentVector = QStringList{QStringLiteral("installer")} + arguments,
                    .redirectStandardStreams = [this](const QString &file) {
                        redirectedTo << file;
                    }});
        }
        return *m_controller;
    }

    // The same, started up.
    InstallerWinController &start(const QStringList &arguments = {}) {
        controller(arguments).awakeFromNib();
        return *m_controller;
    }

    void close() { m_controller.reset(); }

    template <typename View = QLabel>
    View *field(const char *name) {
        auto *view = m_controller->window().findChild<View *>(QString::fromLatin1(name));
        EXPECT_NE(view, nullptr) << name;
        return view;
    }

    QString text(const char *name) { return field(name)->text(); }
    QString title(const char *name) { return field<QPushButton>(name)->text(); }
    // Shown, or to be shown as soon as its page is.
    bool shown(const char *name) { return !field<QWidget>(name)->isHidden(); }

    // Whether the action makes the application quit.
    template <typename Action>
    bool quits(Action action) {
        constexpr int stayed = 77;
        QTimer::singleShot(0, &m_controller->window(), action);
        QTimer::singleShot(50, &m_controller->window(), [] { QApplication::exit(stayed); });
        return QApplication::exec() != stayed;
    }

    QStringList redirectedTo;

private:
    std::unique_ptr<InstallerWinController> m_controller;
};
