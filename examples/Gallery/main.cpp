// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A gallery of the library's colours and views. It follows the desktop's light or dark appearance
// while it is open. With --contrast it prints how well the texts can be read, and ends; with --page
// it begins with the page of that number.

#include "Platform/NativePlatform.h"

#include "ZTStuff/CocoaExtensions/FollowedAppearance.h"

#include "examples/Gallery/ContrastReport.h"
#include "examples/Gallery/Pages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTabWidget>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Gallery"_s);
    const QCommandLineOption contrast(u"contrast"_s, u"Print the contrast of the texts."_s);
    const QCommandLineOption page(u"page"_s, u"The page to begin with, from 1 to 3."_s, u"number"_s,
                                  u"1"_s);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({contrast, page});
    parser.process(application);

    const zt::NativePlatform native(QApplication::arguments());
    const zt::ScopedPlatform current(native.services());
    if (parser.isSet(contrast))
        return gallery::printContrastReport() == 0 ? 0 : 1;

    const FollowedAppearance followed(native.services().appearance);
    QTabWidget window;
    window.setWindowTitle(QApplication::applicationName());
    window.addTab(gallery::makeColorPage(), u"Warnings"_s);
    window.addTab(gallery::makeMenuPage(), u"Menus"_s);
    window.addTab(gallery::makeViewPage(), u"Views"_s);
    window.setCurrentIndex(parser.value(page).toInt() - 1);
    // The pages have the window's own background.
    window.setDocumentMode(true);
    window.setAutoFillBackground(true);
    window.resize(740, 540);
    window.show();
    return QApplication::exec();
}
