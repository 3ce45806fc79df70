// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DataFolder.h"

#include "Platform/posix/SystemCalls.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>
#include <vector>

namespace zt {

namespace {

constexpr int patience = 10'000; // milliseconds, for one tool

class SpawnActions {
public:
    SpawnActions() {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }

    ~SpawnActions() { posix_spawn_file_actions_destroy(&m_actions); }

    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;

    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

pid_t start(const std::vector<std::string> &command) {
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    const std::vector<std::string> variables = {"PATH=/usr/sbin:/usr/bin:/sbin:/bin",
                                                "LC_ALL=C.UTF-8"};
    std::vector<char *> environment;
    for (const std::string &variable : variables)
        environment.push_back(const_cast<char *>(variable.c_str()));
    environment.push_back(nullptr);
    const SpawnActions actions;
    pid_t process = -1;
    const int error = posix_spawn(&process, arguments.front(), actions.get(), nullptr,
                                  arguments.data(), environment.data());
    errno = error;
    return error == 0 ? process : -1;
}

// The tool's exit status; no value, with the reason in errno, when it does not end well by itself.
std::optional<int> run(const std::vector<std::string> &command) {
    const pid_t process = start(command);
    if (process < 0)
        return std::nullopt;
    const UniqueFd descriptor(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    pollfd end{.fd = descriptor.get(), .events = POLLIN, .revents = 0};
    const bool isLate =
        descriptor && retryInterrupted([&] { return ::poll(&end, 1, patience); }) == 0;
    if (isLate)
        ::kill(process, SIGKILL); // not waited for yet, so the number is still its own
    int status = 0;
    if (retryInterrupted([&] { return ::waitpid(process, &status, 0); }) != process)
        return std::nullopt;
    errno = isLate ? ETIMEDOUT : EINTR;
    return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

} // namespace

void refreshCaches(const std::string &dataFolder, const ApplicationRecord &record,
                   const std::function<void(std::string_view)> &log) {
    const auto refresh = [&](std::vector<std::string> command) {
        if (::access(command.front().c_str(), X_OK) != 0)
            return;
        const auto status = run(command);
        if (!status)
            log(Error::fromErrno("run", command.front()).text());
        else if (*status != 0)
            log(command.front() + " failed (status " + std::to_string(*status) + ')');
    };
    if (!record.newFileTypes.empty())
        refresh({"/usr/bin/update-mime-database", dataFolder + "/mime"});
    refresh({"/usr/bin/update-desktop-database", "--quiet", dataFolder + "/applications"});
    // Desktops compare this time with that of what they remember.
    const std::string icons = dataFolder + "/icons/hicolor";
    ::utimensat(AT_FDCWD, icons.c_str(), nullptr, AT_SYMLINK_NOFOLLOW);
    if (::access((icons + "/icon-theme.cache").c_str(), F_OK) == 0)
        refresh({"/usr/bin/gtk-update-icon-cache", "--quiet", "--force", "--ignore-theme-index",
                 icons});
}

} // namespace zt
