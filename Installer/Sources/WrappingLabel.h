#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A label for plain text that shows all of it, whatever its length: it breaks lines between words,
// and within a word that is wider than the label.

#include <QLabel>

#include <optional>

class QTextLayout;

class WrappingLabel final : public QLabel {
    Q_OBJECT

public:
    explicit WrappingLabel(QWidget *parent = nullptr);

    // The direction in which the text reads, where it is not that of the window: paths read from
    // left to right everywhere.
    void setTextDirection(Qt::LayoutDirection direction);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // Breaks the text into lines of the width; answers their height altogether.
    qreal layOut(QTextLayout &layout, int width) const;
    QString displayedText() const;

    std::optional<Qt::LayoutDirection> m_textDirection;
};
