#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A view of a material through which its surroundings show.

#include <QList>
#include <QRect>
#include <QWidget>

// A window that was made translucent (Qt::WA_TranslucentBackground) before it was shown shows
// through it what is behind the window, blurred where the compositor offers that. In other windows
// the material is laid over what the superview draws. Light or dark as the view is. Thread: main.
class VisualEffectView final : public QWidget {
    Q_OBJECT

public:
    explicit VisualEffectView(QWidget *parent = nullptr);
    ~VisualEffectView() override;
    VisualEffectView(const VisualEffectView &) = delete;
    VisualEffectView &operator=(const VisualEffectView &) = delete;

    // Takes the view in and keeps it as large as this.
    void fillWith(QWidget &view);

protected:
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateBlur();

    WId m_blurredWindow = 0; // the one that the next belongs to
    QList<QRect> m_blurred;  // what the compositor was asked for
};
