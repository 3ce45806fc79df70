// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/UnattendedMain.h"

#include "Installer/Sources/ForecastReport.h"
#include "Installer/Sources/LogRedirection.h"
#include "Installer/Sources/Translations.h"
#include "Installer/Sources/UnattendedInstallation.h"
#include "Installer/train/CleanProcess.h"
#include "Installer/train/SystemRegistration.h"
#include "Installer/train/TrustedFolder.h"
#include "Platform/NativePlatform.h"
#include "Platform/posix/LogLine.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TerminationRequests.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <string>
#include <string_view>
#include <utility>

namespace {

using ExitStatus = UnattendedInstallation::ExitStatus;

constexpr std::string_view helpText =
    R"(Usage: VelmoraInstaller [-KEY VALUE...]...

Installs a product bundle: the one around the installer, unless -sourcePath says otherwise.

Without a window:
  -unattended YES          installs at once, asks nothing, and does not launch the product
  -check YES|JSON          prints what would happen, and changes nothing

What is installed, and where:
  -sourcePath PATH         the bundle to install
  -destinationPath PATH    the full path that it is to have
  -wrapperPath PATH        a folder around the product, to be recreated around it
  -productCode CODE...     the product's signatures
  -quitCode CODE...        signatures of programs that must not run meanwhile
  -minSystemVersion NUMBER the oldest system version

What the window shows:
  -productName NAME, -version NUMBER, -readMePath PATH, -documentationPath PATH, -iconPath PATH,
  -completionSound YES, -completionQuit SECONDS, -nosound YES

  --help, --version        prints this, or the installer's version

Exit status without a window: 0 installed; 1 cancelled; 2 bad arguments; 3 the product still runs;
4 not authorised to write there; 5 the copy failed; 6 the system is too old. See the manual page
VelmoraInstaller(1).
)";

constexpr std::string_view versionText = "VelmoraInstaller " VELMORA_VERSION "\n";

// The streams that the process was started with; those that it has now may belong to the log.
struct Streams {
    zt::UniqueFd output = zt::duplicateOf(STDOUT_FILENO);
    zt::UniqueFd error = zt::duplicateOf(STDERR_FILENO);
};

// When nobody listens, the exit status still tells.
void write(const zt::UniqueFd &stream, const QByteArray &bytes) {
    static_cast<void>(zt::writeFully(stream.get(), bytes.toStdString()));
}

// What the password dialog's tool does once it has installed a product. Where somebody else may
// write too, the product is nothing to offer to all users.
bool registerForAllUsers(const QByteArray &prepared, const QString &destination) {
    const std::string path = QFile::encodeName(destination).toStdString();
    const auto folder =
        zt::openTrustedFolder(QFile::encodeName(QFileInfo(destination).path()).toStdString());
    const auto record = folder ? zt::checkPreparedRecord(prepared.toStdString(), path)
                               : zt::Result<zt::ApplicationRecord>(folder.error());
    const auto done = record ? zt::registerForAllUsers(*record, zt::writeLogLine)
                             : zt::Result<void>(record.error());
    zt::writeLogLine(done ? "Registered " + path + " for all users" : done.error().text());
    return bool(done);
}

UnattendedInstallation::Environment
environmentFor(const QStringList &arguments, const zt::Platform &platform, const Streams &streams) {
    UnattendedInstallation::Environment environment{
        .platform = platform,
        .argumentVector = arguments,
        .progressTarget = zt::isTerminal(streams.error.get()) ? ProgressLines::Target::Terminal
                                                              : ProgressLines::Target::Record,
        .writeProgress = [&streams](const QByteArray &bytes) { write(streams.error, bytes); }};
    if (zt::checkIsRoot())
        environment.registerForAllUsers = registerForAllUsers;
    return environment;
}

int install(UnattendedInstallation &installation, const Streams &streams) {
    const zt::TerminationRequests requests;
    QSocketNotifier notifier(requests.descriptor(), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
        notifier.setEnabled(false);
        installation.cancel();
    });
    const UnattendedInstallation::Outcome outcome = installation.install();
    write(streams.output, outcome.message.toLocal8Bit() + '\n');
    return static_cast<int>(outcome.status);
}

int check(UnattendedInstallation &installation, RunMode form, const Streams &streams) {
    const auto [forecast, outcome] = installation.check();
    const ForecastOutcome told{static_cast<int>(outcome.status), outcome.message};
    write(streams.output, form == RunMode::CheckJson
                              ? forecastJson(forecast, told)
                              : forecastReport(forecast, told).toLocal8Bit());
    return told.status;
}

} // namespace

int runWithoutWindow(const RunChoice &choice, const QStringList &arguments) {
    // A reader that goes away (as head does) must not end a copy half-way.
    std::signal(SIGPIPE, SIG_IGN); // NOLINT(cert-err33-c): there is nothing to do when it fails
    const Streams streams;
    switch (choice.mode) {
    case RunMode::Help:
        write(streams.output, QByteArray(helpText.data(), helpText.size()));
        return 0;
    case RunMode::Version:
        write(streams.output, QByteArray(versionText.data(), versionText.size()));
        return 0;
    case RunMode::Mistake:
        write(streams.output, choice.mistake.toLocal8Bit() + '\n');
        return static_cast<int>(ExitStatus::BadArguments);
    default:
        break;
    }
    const bool isCheck = choice.mode == RunMode::Check || choice.mode == RunMode::CheckJson;
    const bool isLogged = shouldRedirectLog(arguments);
    if (isLogged) // a check leaves no traces, not even there
        redirectStandardStreams(isCheck ? QStringLiteral("/dev/null") : logPath());
    // Icons and names are read as ever; nothing is shown, so that no screen is needed.
    std::array<std::string, 3> words = {"VelmoraInstaller", "-platform", "offscreen"};
    std::array<char *, 4> frameworkArguments = {words[0].data(), words[1].data(), words[2].data()};
    int frameworkArgumentCount = static_cast<int>(words.size());
    const QGuiApplication application(frameworkArgumentCount, frameworkArguments.data());
    QGuiApplication::setApplicationName(QStringLiteral("VelmoraInstaller"));
    const zt::NativePlatform native(arguments);
    const zt::ScopedPlatform current(native.services());
    const Translations translations(native.services());
    if (!isLogged)
        ZTLog("direct invocation");
    UnattendedInstallation installation(environmentFor(arguments, native.services(), streams));
    return isCheck ? check(installation, choice.mode, streams) : install(installation, streams);
}
