// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/processes/ManyProcesses.h"

#include <QDir>
#include <QFile>

#include <signal.h> // kill
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void giveUp(const char *operation) {
    std::perror(operation);
    std::exit(1);
}

QByteArray dictionary(int number) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
           "<key>CFBundleExecutable</key><string>program</string>\n"
           "<key>CFBundleIdentifier</key><string>example.sample.number" +
           QByteArray::number(number) + "</string>\n<key>CFBundleName</key><string>Sample " +
           QByteArray::number(number) +
           "</string>\n<key>CFBundlePackageType</key><string>APPL</string>\n"
           "<key>CFBundleShortVersionString</key><string>" +
           QByteArray::number(number) +
           ".2.3</string>\n<key>CFBundleSignature</key><string>smPL</string>\n"
           "<key>CFBundleVersion</key><string>123</string>\n"
           "<key>NSPrincipalClass</key><string>NSApplication</string>\n</dict>\n</plist>\n";
}

} // namespace

ManyProcesses::ManyProcesses(int bundleCount) {
    for (int number = 0; number < bundleCount; ++number) {
        const QString bundle = m_folder.filePath(u"Sample %1.app"_s.arg(number));
        const QString program = bundle + u"/Contents/Linux/program"_s;
        QDir().mkpath(bundle + u"/Contents/Linux"_s);
        QFile information(bundle + u"/Contents/Info.plist"_s);
        if (!information.open(QIODevice::WriteOnly) || information.write(dictionary(number)) < 0 ||
            !QFile::copy(u"/bin/sleep"_s, program))
            giveUp("make a bundle");
        m_programs.push_back(QFile::encodeName(program));
    }
}

ManyProcesses::~ManyProcesses() {
    endAll();
}

void ManyProcesses::start(int count) {
    for (int started = 0; started < count; ++started)
        m_pids.push_back(startOne());
    // The last ones are let go of a little before they have loaded their programs.
    ::usleep(200'000);
}

pid_t ManyProcesses::startOne() {
    QByteArray &program = m_programs[m_starts++ % m_programs.size()];
    char duration[] = "3600";
    char *const arguments[] = {program.data(), duration, nullptr};
    pid_t pid = 0;
    errno = ::posix_spawn(&pid, program.constData(), nullptr, nullptr, arguments, environ);
    if (errno != 0)
        giveUp("posix_spawn");
    return pid;
}

void ManyProcesses::endAll() {
    for (const pid_t pid : m_pids)
        ::kill(pid, SIGKILL);
    for (const pid_t pid : m_pids)
        ::waitpid(pid, nullptr, 0);
    m_pids.clear();
}
