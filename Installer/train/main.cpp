// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// train: installs a product with root's rights, for the installer. See docs/privileged-install.md.

#include "Installer/train/AskersTrash.h"
#include "Installer/train/CleanProcess.h"
#include "Installer/train/ExitStatus.h"
#include "Installer/train/MachineLock.h"
#include "Installer/train/PrivilegedPlan.h"
#include "Installer/train/SystemRegistration.h"
#include "Installer/train/TrainArguments.h"
#include "Platform/posix/LogLine.h"
#include "Platform/posix/SystemCalls.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr std::string_view helpText =
    "Usage: train SOURCE DESTINATION [WRAPPER]\n"
    "\n"
    "Installs the bundle SOURCE as DESTINATION, and the items of WRAPPER beside it, with the "
    "rights\n"
    "of root. The installer starts it once the administrator has consented; the paths are "
    "absolute\n"
    "and canonical. The first line on the standard output is \"started\".\n"
    "\n"
    "Exit status: 0 installed; 1 an existing copy could not be moved to the Trash; 2 the copy\n"
    "failed; 3 wrong arguments; 4 refused, because it would not be safe; 5 not started as root.\n";

constexpr std::string_view versionText = "train " VELMORA_VERSION "\n";

// Says why on the log and answers the status.
ExitStatus endWith(ExitStatus status, const zt::Error &cause) {
    zt::writeLogLine(cause.text());
    return status;
}

// Whoever asked pkexec for the right; without it root himself.
zt::Result<zt::Asker> findAskerOf(const std::optional<std::string> &pkexecUser) {
    if (!pkexecUser)
        return zt::findAsker(0);
    const std::optional<uid_t> user = zt::parseUserId(*pkexecUser);
    if (!user)
        return zt::Error{"use", "PKEXEC_UID", "it is not the number of a user", EINVAL};
    return zt::findAsker(*user);
}

// Lets all users' desktops know the product. Whatever fails here, it is in its place.
void registerProduct(const std::string &destination) {
    const zt::Result<std::string> bytes = zt::readPreparedRecord(STDIN_FILENO);
    if (bytes && bytes->empty())
        return;
    const zt::Result<zt::ApplicationRecord> record =
        bytes ? zt::checkPreparedRecord(*bytes, destination) : bytes.error();
    const zt::Result<void> registered =
        record ? zt::registerForAllUsers(*record, zt::writeLogLine) : record.error();
    zt::writeLogLine(registered ? "Registered " + destination + " for all users"
                                : registered.error().text());
}

ExitStatus install(const InstallPaths &paths, zt::Asker asker, const std::string &homeOfRoot) {
    const zt::Result<zt::MachineLock> lock =
        zt::MachineLock::take([] { zt::writeLogLine("Waiting for another installation to end"); });
    if (!lock)
        return endWith(ExitStatus::Refused, lock.error());
    const zt::FileSystemIdentity reader = asker.identity;
    zt::AskersTrash trash(std::move(asker), homeOfRoot, zt::writeLogLine);
    const InstallServices services{
        .trash = trash, .log = zt::writeLogLine, .rights = zt::CopiedRights::ReadingAndRunning};
    zt::Result<zt::InstallPlan> plan =
        zt::planPrivilegedInstallation(paths, reader, services.guaranteedFolders);
    if (!plan)
        return endWith(ExitStatus::Refused, plan.error());
    const InstallResult result = InstallApplication(*std::move(plan), services);
    if (result == InstallResult::Success)
        registerProduct(paths.destination);
    return static_cast<ExitStatus>(result);
}

ExitStatus run(const std::vector<std::string> &arguments) {
    // The environment is not the tool's own any more after that.
    std::optional<std::string> pkexecUser;
    if (const char *text = std::getenv("PKEXEC_UID"))
        pkexecUser = text;
    for (const auto step : {zt::checkIsRoot, zt::cleanProcess}) {
        if (const zt::Result<void> done = step(); !done)
            return endWith(ExitStatus::NotPrivileged, done.error());
    }
    // From now on no dialog is open, and the tool is at work.
    static_cast<void>(zt::writeFully(STDOUT_FILENO, "started\n"));
    const zt::Result<InstallPaths> paths = zt::readTrainArguments(arguments);
    if (!paths)
        return endWith(ExitStatus::Usage, paths.error());
    zt::Result<zt::Asker> asker = findAskerOf(pkexecUser);
    const zt::Result<zt::Asker> root = zt::findAsker(0);
    if (!asker || !root)
        return endWith(ExitStatus::Refused, asker ? root.error() : asker.error());
    if (const zt::Result<void> taken = zt::takeGroupsOf(*asker); !taken)
        return endWith(ExitStatus::NotPrivileged, taken.error());
    zt::writeLogLine("Installing " + paths->source + " as " + paths->destination + " for " +
                     asker->name);
    return install(*paths, *std::move(asker), root->homeFolder);
}

} // namespace

int main(int argc, char **argv) {
    try {
        if (const zt::Result<void> cleaned = zt::cleanDescriptors(); !cleaned)
            return static_cast<int>(endWith(ExitStatus::NotPrivileged, cleaned.error()));
        const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
        if (arguments.size() == 1 && (arguments[0] == "--help" || arguments[0] == "--version")) {
            const bool isHelp = arguments[0] == "--help";
            return zt::writeFully(STDOUT_FILENO, isHelp ? helpText : versionText)
                       ? EXIT_SUCCESS
                       : static_cast<int>(ExitStatus::Usage);
        }
        return static_cast<int>(run(arguments));
    } catch (const std::exception &exception) {
        zt::writeLogLine(exception.what());
        return static_cast<int>(ExitStatus::CopyFailed);
    }
}
