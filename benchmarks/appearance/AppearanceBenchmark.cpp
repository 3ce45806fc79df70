// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What it costs that a colour is chosen when it is used: against a copy of a plain colour. And what
// a switch between light and dark costs a window with a thousand widgets, until it is painted anew:
// when a colour of each follows, and when they have no colours of their own.

#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"

#include "Platform/NativePlatform.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;
using Scheme = zt::Appearance::Scheme;
using GlobalAppearance = ZTDynamicColor::GlobalAppearance;

namespace {

constexpr int widgetCount = 1000;
constexpr int columns = 25;
constexpr int rounds = 15;

volatile QRgb lookedAt = 0;

double nanoseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::nano>(duration).count();
}

// One run of each in turn, so that what else the machine does touches all alike.
void benchResolving() {
    const QColor plain(1, 2, 3);
    const auto dynamic = ZTDynamicColor::lightColor(plain, QColor(4, 5, 6));
    ZTDynamicColor global = dynamic;
    global.useGlobalAppearance(GlobalAppearance::Used);
    struct Case {
        const char *metric;
        int runs;
        bool hasContext;
        std::function<QColor()> work;
        std::vector<double> times;
    };
    Case cases[] = {
        {"plain_copy_ns", 1'000'000, false, [&plain] { return plain; }, {}},
        {"in_a_context_ns", 1'000'000, true, [&dynamic] { return QColor(dynamic); }, {}},
        {"by_the_application_ns", 200'000, false, [&dynamic] { return QColor(dynamic); }, {}},
        {"by_the_users_setting_ns", 20'000, false, [&global] { return QColor(global); }, {}},
    };
    for (int round = 0; round < rounds; ++round) {
        for (Case &each : cases) {
            std::unique_ptr<DrawingContext> context;
            if (each.hasContext)
                context = std::make_unique<DrawingContext>(Scheme::Dark);
            const auto start = Clock::now();
            for (int run = 0; run < each.runs; ++run)
                lookedAt = each.work().rgba();
            each.times.push_back(nanoseconds(Clock::now() - start) / each.runs);
        }
    }
    for (const Case &each : cases)
        zt::printBenchLine("appearance.resolve", each.metric, zt::median(each.times));
    zt::printBenchLine("appearance.resolve", "context_ratio_to_plain_copy",
                       zt::median(cases[1].times) / zt::median(cases[0].times));
}

enum class Labels { Plain, Following };

std::unique_ptr<QWidget> makeWindow(Labels labels) {
    auto window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(window.get());
    for (int index = 0; index < widgetCount; ++index) {
        auto *label = new QLabel(QString::number(index));
        if (labels == Labels::Following)
            followDynamicColor(*label, QPalette::WindowText, ZTDynamicColor::redWarningTextColor());
        layout->addWidget(label, index / columns, index % columns);
    }
    window->show();
    QApplication::processEvents();
    return window;
}

// Milliseconds until the window is painted in the other appearance.
double switchTo(Scheme scheme, QWidget &window) {
    const auto start = Clock::now();
    QApplication::setPalette(paletteForScheme(scheme));
    QApplication::processEvents();
    window.repaint();
    return nanoseconds(Clock::now() - start) / 1e6;
}

void benchSwitching(const char *metric, Labels labels) {
    const std::unique_ptr<QWidget> window = makeWindow(labels);
    std::vector<double> times;
    switchTo(Scheme::Light, *window);
    for (int round = 0; round < rounds; ++round) {
        times.push_back(switchTo(Scheme::Dark, *window));
        times.push_back(switchTo(Scheme::Light, *window));
    }
    zt::printBenchLine("appearance.switch_1000_widgets", metric, zt::median(times));
}

} // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    const zt::NativePlatform native(QApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    benchResolving();
    benchSwitching("plain_ms", Labels::Plain);
    benchSwitching("following_ms", Labels::Following);
    return 0;
}
