// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "examples/Gallery/Pages.h"

#include "ZTStuff/CocoaExtensions/ColorContrast.h"
#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/CocoaExtensions/ViewExtensions.h"
#include "ZTStuff/CocoaExtensions/VisualEffectView.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>

using namespace Qt::StringLiterals;
using namespace ZTViewExtensions;

namespace gallery {

namespace {

constexpr int lineHeight = 24;
constexpr int lineCount = 40;

class Stripes final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        constexpr int width = 14;
        QPainter painter(this);
        bool isBlue = false;
        for (int x = 0; x < this->width(); x += width) {
            isBlue = !isBlue;
            painter.fillRect(x, 0, width, height(),
                             isBlue ? QColor(0x35, 0x84, 0xe4) : QColor(0xf6, 0xd3, 0x2d));
        }
    }
};

QWidget *makeScrolling() {
    auto *box = new QGroupBox(u"Scrolling"_s);
    auto *layout = new QGridLayout(box);
    auto *area = new QScrollArea;
    auto *contents = new QWidget;
    contents->resize(220, lineCount * lineHeight);
    for (int line = 0; line < lineCount; ++line) {
        auto *label = new QLabel(u"Line %1"_s.arg(line + 1), contents);
        label->setGeometry(6, line * lineHeight, 200, lineHeight);
    }
    area->setWidget(contents);
    layout->addWidget(area, 0, 0, 1, 2);
    const auto addButton = [&](const QString &text, int row, int column, const QRectF &rect,
                               PreferTop preferTop) {
        auto *button = new QPushButton(text);
        QObject::connect(button, &QPushButton::clicked, contents, [contents, rect, preferTop] {
            animatedVerticalScrollRectToVisible(*contents, rect, preferTop);
        });
        layout->addWidget(button, row, column);
    };
    const qreal width = contents->width();
    addButton(u"Line 30"_s, 1, 0, {0, 29 * lineHeight, width, lineHeight}, PreferTop::No);
    addButton(u"Line 3"_s, 1, 1, {0, 2 * lineHeight, width, lineHeight}, PreferTop::No);
    addButton(u"10–35, start"_s, 2, 0, {0, 9 * lineHeight, width, 26 * lineHeight}, PreferTop::No);
    addButton(u"10–35, end"_s, 2, 1, {0, 9 * lineHeight, width, 26 * lineHeight}, PreferTop::Yes);
    auto *point = new QPushButton(u"To the end"_s);
    QObject::connect(point, &QPushButton::clicked, contents, [contents] {
        scrollPointAnimated(*contents, QPointF(0, contents->height()));
    });
    layout->addWidget(point, 3, 0);
    auto *atOnce = new QPushButton(u"Line 1, now"_s);
    QObject::connect(atOnce, &QPushButton::clicked, contents, [contents, width] {
        scrollRectToVisible(*contents, {0, 0, width, lineHeight}, Animated::No);
    });
    layout->addWidget(atOnce, 3, 1);
    return box;
}

class Card final : public QAbstractButton {
public:
    Card(const QString &name, const ZTDynamicColor &color, QWidget *parent)
        : QAbstractButton(parent)
        , m_color(color) {
        setText(name);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        constexpr qreal radius = 6;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const DrawingContext context = drawingContext(*this, &painter);
        painter.setPen(palette().color(QPalette::Window));
        painter.setBrush(isDown()
                             ? m_color.colorWithSystemEffect(ZTDynamicColor::SystemEffect::Pressed)
                             : m_color.effectiveColor());
        painter.drawRoundedRect(rect(), radius, radius);
        painter.setPen(textColorOn(m_color));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

private:
    ZTDynamicColor m_color;
};

QWidget *makeStack() {
    auto *box = new QGroupBox(u"To the front (click a card)"_s);
    box->setMinimumSize(220, 170);
    const auto &colors = ZTDynamicColor::menuItemHighlightColors();
    int place = 0;
    for (const QString &name :
         {ZTAccentColorNameRed, ZTAccentColorNameGreen, ZTAccentColorNameBlue}) {
        auto *card = new Card(name, colors.at(name), box);
        card->setGeometry(16 + 45 * place, 34 + 32 * place, 100, 56);
        QObject::connect(card, &Card::clicked, card,
                         [card] { bringToFrontInsideSuperView(*card); });
        ++place;
    }
    return box;
}

QWidget *makeLightPart() {
    auto *box = new QGroupBox(u"Light appearance"_s);
    box->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(box);
    auto *choice = new QCheckBox(u"Always light"_s);
    auto *text = new QLabel(u"A warning in this part"_s);
    followDynamicColor(*text, QPalette::WindowText, ZTDynamicColor::redWarningTextColor());
    layout->addWidget(choice);
    layout->addWidget(text);
    layout->addStretch();
    QObject::connect(choice, &QCheckBox::toggled, box, [box](bool isLight) {
        useLightAquaAppearance(*box,
                               isLight ? LightAppearance::Forced : LightAppearance::Inherited);
    });
    choice->setChecked(true);
    return box;
}

QWidget *makeEffect() {
    auto *box = new QGroupBox(u"Visual effect"_s);
    auto *layout = new QVBoxLayout(box);
    auto *stripes = new Stripes;
    stripes->setMinimumSize(220, 90);
    layout->addWidget(stripes);
    auto *label = new QLabel(u"On a material"_s, stripes);
    label->setAlignment(Qt::AlignCenter);
    label->setGeometry(40, 20, 120, 50);
    wrapInVisualEffectView(*label);
    return box;
}

QWidget *makeScaling() {
    auto *box = new QGroupBox(u"Scale"_s);
    auto *layout = new QVBoxLayout(box);
    auto *view = new QGraphicsView;
    auto *scene = new QGraphicsScene(view);
    scene->addRect(0, 0, 60, 30, QPen(Qt::NoPen), QColor(0x35, 0x84, 0xe4));
    scene->addEllipse(40, 15, 60, 30, QPen(Qt::NoPen), QColor(0xe0, 0x1b, 0x24, 0xb0));
    view->setScene(scene);
    view->setMinimumHeight(90);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(25, 300);
    slider->setAccessibleName(u"Scale in per cent"_s);
    auto *number = new QLabel;
    QObject::connect(slider, &QSlider::valueChanged, view, [view, number](int percent) {
        setScale(*view, percent / 100.0);
        number->setText(u"%1 times"_s.arg(scale(*view)));
    });
    slider->setValue(150);
    layout->addWidget(view);
    layout->addWidget(slider);
    layout->addWidget(number);
    return box;
}

} // namespace

QWidget *makeViewPage() {
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    layout->addWidget(makeScrolling(), 0, 0, 2, 1);
    layout->addWidget(makeStack(), 0, 1);
    layout->addWidget(makeLightPart(), 1, 1);
    layout->addWidget(makeEffect(), 0, 2);
    layout->addWidget(makeScaling(), 1, 2);
    return page;
}

} // namespace gallery
