#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Shows what an installation would do: a line for each thing, led by an icon.

#include "Installer/Sources/Forecast.h"

#include <QWidget>

class QVBoxLayout;

class ForecastView final : public QWidget {
    Q_OBJECT

public:
    explicit ForecastView(QWidget *parent = nullptr);

    const QList<ForecastLine> &lines() const { return m_lines; }
    // All of them as one text.
    QString text() const;
    void setLines(const QList<ForecastLine> &lines);

private:
    void addRow(const ForecastLine &line);

    QVBoxLayout *m_layout;
    QList<ForecastLine> m_lines;
};
