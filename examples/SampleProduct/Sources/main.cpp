// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sample Notes, a small product that carries its installer inside its own bundle: started it is a
// program for notes, with --install it starts the installer and ends.

#include "NotesWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QString resourcesFolder() {
    // The executable lies in Contents/Linux.
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../Resources"_s);
}

// Answers whether the installer was started. It runs on by itself.
bool startInstaller(const QString &destination) {
    const QString resources = resourcesFolder();
    // The path of the product, its version, icon and signature are found by the installer: it lies
    // inside the product's bundle.
    QStringList arguments = {u"-productName"_s,       QCoreApplication::applicationName(),
                             u"-readMePath"_s,        resources + u"/ReadMe.rtf"_s,
                             u"-documentationPath"_s, resources + u"/Documentation.html"_s};
    if (!destination.isEmpty()) {
        arguments << u"-destinationPath"_s << QDir::current().absoluteFilePath(destination);
    }
    return QProcess::startDetached(
        resources + u"/VelmoraInstaller.app/Contents/Linux/VelmoraInstaller"_s, arguments);
}

} // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Sample Notes"_s);
    QApplication::setApplicationVersion(QStringLiteral(SAMPLE_NOTES_VERSION));
    QApplication::setWindowIcon(QIcon(resourcesFolder() + u"/SampleNotes.icns"_s));

    const QCommandLineOption install(u"install"_s, u"Install this copy, then end."_s);
    const QCommandLineOption destination(
        u"destination"_s, u"Where the installed bundle shall lie, with its name."_s, u"path"_s);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({install, destination});
    parser.process(application);

    if (parser.isSet(install)) {
        if (startInstaller(parser.value(destination))) {
            return 0;
        }
        std::fputs("Sample Notes: the installer could not be started\n", stderr);
        return 1;
    }

    sample::NotesWindow window(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                               u"/notes.json"_s);
    window.setWindowTitle(QApplication::applicationName());
    window.show();
    return QApplication::exec();
}
