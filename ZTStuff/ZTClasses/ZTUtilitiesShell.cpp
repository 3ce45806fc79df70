// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running scripts, shell commands and the desktop's opener.

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/ChildProcesses.h"
#include "Platform/Clock.h"
#include "Platform/Platform.h"
#include "Platform/Workspace.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/StringEncoding.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <QDir>

#include <new>

namespace {

using namespace std::chrono_literals;

constexpr auto pollInterval = 1000us;

QString textOf(const zt::Error &error) {
    return QString::fromUtf8(error.text());
}

// In single precision, in which a limit is compared.
float secondsSince(std::chrono::steady_clock::time_point start, const zt::Clock &clock) {
    return static_cast<float>(std::chrono::duration<double>(clock.steadyNow() - start).count());
}

zt::Result<QString> utf8Text(const zt::Result<QByteArray> &bytes, const QString &source) try {
    if (!bytes)
        return bytes.error();
    const auto text = stringWithData(*bytes, StringEncoding::UTF8);
    return text ? zt::Result<QString>(*text)
                : zt::Error{"read output of", source.toStdString(), "it is not UTF-8"};
} catch (const std::bad_alloc &) {
    return zt::Error::fromErrno("read output of", source.toStdString(), ENOMEM);
}

} // namespace

std::optional<QString> ZTUtilities::runShellScript(const QString &path,
                                                   const std::optional<QStringList> &withParameters,
                                                   double timeout) {
    const zt::Platform &platform = zt::currentPlatform();
    const QString script = expandingTilde(path);
    const QString name = lastPathComponent(script);
    const auto started =
        platform.childProcesses.start({.path = script,
                                       .arguments = withParameters.value_or(QStringList()),
                                       .workingFolder = QDir::homePath()});
    if (!started)
        return ZTFormat("script %@ failed: %@", name, textOf(started.error()));
    zt::ChildProcess &child = **started;
    const auto start = platform.clock.steadyNow();
    while (child.isRunning()) {
        if (double(secondsSince(start, platform.clock)) > timeout) {
            ZTLog("script timeout: %@ %@", name, withParameters);
            child.terminate();
            break;
        }
        // There is no need to sleep on once the script has ended.
        platform.clock.sleepFor(pollInterval, [&child](auto atMost) { child.waitForEnd(atMost); });
    }
    child.terminate();
    const zt::Result<QString> output = utf8Text(child.output(), name);
    if (output)
        return *output;
    ZTLog("error getting result: %@", textOf(output.error()));
    return std::nullopt;
}

std::optional<QString> ZTUtilities::shellCommandResult(const QString &commandLine) {
    const zt::Result<QByteArray> bytes =
        zt::currentPlatform().childProcesses.standardOutputOfShell(commandLine);
    if (!bytes)
        ZTLogText(textOf(bytes.error()));
    const zt::Result<QString> output = utf8Text(bytes, commandLine);
    return output ? std::optional(*output) : std::nullopt;
}

void ZTUtilities::openFile(const QString &path) {
    zt::currentPlatform().workspace.startOpening(path);
}
