#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A window with the lines of this run's log, to be read and copied.

#include <QDialog>
#include <QString>

class LogWindow final : public QDialog {
    Q_OBJECT

public:
    LogWindow(const QString &text, QWidget *parent);
};
