// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/desktop/process/WindowStack.h"

#include <QProcess>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString run(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString property(const QString &window, const QString &name) {
    return run(u"xprop"_s, {u"-id"_s, window, u"-notype"_s, name});
}

QStringList windowsFromBottomToTop() {
    const QString list =
        run(u"xprop"_s, {u"-root"_s, u"-notype"_s, u"_NET_CLIENT_LIST_STACKING"_s});
    return list.section(u'#', 1).simplified().remove(u' ').split(u',', Qt::SkipEmptyParts);
}

QString titleOf(const QString &window) {
    return property(window, u"WM_NAME"_s).section(u'"', 1, 1);
}

QString windowWithTitle(const std::string &title) {
    for (const QString &window : windowsFromBottomToTop()) {
        if (titleOf(window) == QString::fromStdString(title))
            return window;
    }
    return {};
}

void setProperty(const std::string &title, const QStringList &nameFormatAndValue) {
    const QStringList &words = nameFormatAndValue;
    run(u"xprop"_s, {u"-id"_s, windowWithTitle(title), u"-f"_s, words[0], words[1], u"-set"_s,
                     words[0], words[2]});
}

} // namespace

bool windowManagerIsReady() {
    return run(u"xprop"_s, {u"-root"_s, u"_NET_CLIENT_LIST"_s}).contains(u'#');
}

void forgetWindowManager() {
    run(u"xprop"_s, {u"-root"_s, u"-remove"_s, u"_NET_CLIENT_LIST"_s});
}

std::vector<std::string> windowTitlesFromBottomToTop() {
    std::vector<std::string> titles;
    for (const QString &window : windowsFromBottomToTop())
        titles.push_back(titleOf(window).toStdString());
    return titles;
}

std::size_t hiddenWindowCount() {
    std::size_t count = 0;
    for (const QString &window : windowsFromBottomToTop())
        count += property(window, u"_NET_WM_STATE"_s).contains(u"_NET_WM_STATE_HIDDEN"_s) ? 1U : 0U;
    return count;
}

void activateWindow(const std::string &title) {
    run(u"xdotool"_s, {u"windowactivate"_s, u"--sync"_s, windowWithTitle(title)});
}

void setHostOfWindow(const std::string &title, const std::string &host) {
    setProperty(title, {u"WM_CLIENT_MACHINE"_s, u"8s"_s, QString::fromStdString(host)});
}

void setPidOfWindow(const std::string &title, int pid) {
    setProperty(title, {u"_NET_WM_PID"_s, u"32c"_s, QString::number(pid)});
}

void setTypeOfWindow(const std::string &title, const std::string &type) {
    setProperty(title, {u"_NET_WM_WINDOW_TYPE"_s, u"32a"_s, QString::fromStdString(type)});
}
