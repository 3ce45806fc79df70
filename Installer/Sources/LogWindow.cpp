// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/LogWindow.h"

#include "Installer/Sources/LocalizedString.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

LogWindow::LogWindow(const QString &text, QWidget *parent) : QDialog(parent) {
    setWindowTitle(localizedString("Log"));
    auto *view = new QPlainTextEdit(text);
    view->setObjectName(QStringLiteral("logTextView"));
    view->setAccessibleName(windowTitle());
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setLayoutDirection(Qt::LeftToRight); // the lines are English
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view->moveCursor(QTextCursor::End); // where the failure is
    view->moveCursor(QTextCursor::StartOfLine);

    auto *buttons = new QDialogButtonBox;
    auto *copy = buttons->addButton(localizedString("Copy"), QDialogButtonBox::ActionRole);
    auto *close = buttons->addButton(localizedString("Close"), QDialogButtonBox::RejectRole);
    copy->setObjectName(QStringLiteral("copyLogButton"));
    copy->setAccessibleDescription(localizedString("Copies all lines."));
    close->setDefault(true);
    connect(copy, &QPushButton::clicked, this,
            [text] { QGuiApplication::clipboard()->setText(text); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(view);
    layout->addWidget(buttons);
    resize(parent->size());
    close->setFocus();
}
