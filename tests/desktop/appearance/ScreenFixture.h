#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Widgets on a real screen, looked at and touched from outside.

#include "Platform/NativePlatform.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/CocoaExtensions/ViewExtensions.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/Waiting.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

// Fills itself with the red of warnings, as its own context has it.
class WarningView final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        const DrawingContext context = ZTViewExtensions::drawingContext(*this, &painter);
        ZTDynamicColor::redWarningTextColor().setFill();
        painter.fillRect(rect(), painter.brush());
    }
};

class ScreenFixture : public testing::Test {
protected:
    void SetUp() override { ZTUtilities::platformChanged(); }
    void TearDown() override { ZTUtilities::platformChanged(); }

    static void show(QWidget &window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window, 10'000));
    }

    // What is on the screen in the middle of the view.
    static QRgb pixelOf(const QWidget &view) {
        const QPoint middle = view.mapToGlobal(view.rect().center());
        const QImage picture =
            QGuiApplication::primaryScreen()->grabWindow(0, middle.x(), middle.y(), 1, 1).toImage();
        return picture.isNull() ? 0 : picture.pixel(0, 0);
    }

    static bool shows(const QWidget &view, QRgb color) {
        return eventually([&] { return pixelOf(view) == color; });
    }

    // Runs a program that acts upon the screen, and answers what it prints.
    static QByteArray run(const QString &program, const QStringList &arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }

    static void click(QPoint place) {
        run(QStringLiteral("xdotool"),
            {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
             QStringLiteral("click"), QStringLiteral("1")});
    }
};
