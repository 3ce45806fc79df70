// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProgramStart.h"

#include "Platform/posix/SystemCalls.h"

#include <csignal>
#include <spawn.h>
#include <unistd.h>

namespace zt {

namespace {

class FileActions {
public:
    FileActions() { ::posix_spawn_file_actions_init(&m_actions); }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    posix_spawn_file_actions_t *get() { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

class Attributes {
public:
    Attributes() { ::posix_spawnattr_init(&m_attributes); }
    ~Attributes() { ::posix_spawnattr_destroy(&m_attributes); }
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;

    posix_spawnattr_t *get() { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes = {};
};

// The standard input comes last: one of the others may have its number in a process that was
// started without one.
int addActions(FileActions &actions, const ProgramStart &start) {
    int code = 0;
    const auto add = [&code](auto action, auto... arguments) {
        if (code == 0)
            code = action(arguments...);
    };
    if (start.output >= 0)
        add(::posix_spawn_file_actions_adddup2, actions.get(), start.output, STDOUT_FILENO);
    if (start.errors >= 0)
        add(::posix_spawn_file_actions_adddup2, actions.get(), start.errors, STDERR_FILENO);
    if (!start.hasInput) {
        add(::posix_spawn_file_actions_addopen, actions.get(), STDIN_FILENO, "/dev/null", O_RDONLY,
            mode_t(0));
    }
    // Descriptors of other libraries and of the program around this one need not close on exec.
    add(::posix_spawn_file_actions_addclosefrom_np, actions.get(), STDERR_FILENO + 1);
    if (!start.workingFolder.empty())
        add(::posix_spawn_file_actions_addchdir_np, actions.get(), start.workingFolder.c_str());
    return code;
}

int setAttributes(Attributes &attributes, ProgramStart::Group group) {
    sigset_t signals;
    sigfillset(&signals);
    int code = ::posix_spawnattr_setsigdefault(attributes.get(), &signals);
    sigemptyset(&signals);
    if (code == 0)
        code = ::posix_spawnattr_setsigmask(attributes.get(), &signals);
    int flags = POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK;
    if (group == ProgramStart::Group::Own) // led by the child: number 0, as it is at first
        flags |= POSIX_SPAWN_SETPGROUP;
    return code != 0 ? code
                     : ::posix_spawnattr_setflags(attributes.get(), static_cast<short>(flags));
}

// What exec calls missing may be one of three things.
Error failure(const ProgramStart &start, int code) {
    const char *const folder = start.workingFolder.c_str();
    if (!start.workingFolder.empty() && ::access(folder, X_OK) != 0)
        return Error::fromErrno("enter folder", start.workingFolder);
    if (code == ENOENT && ::access(start.program.c_str(), F_OK) == 0)
        return {"launch", start.program, "its interpreter is missing", code};
    return Error::fromErrno("launch", start.program, code);
}

} // namespace

Result<OwnedChild> startProgram(const ProgramStart &start) {
    std::vector<char *> arguments = {const_cast<char *>(start.program.c_str())};
    for (const std::string &argument : start.arguments)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);

    FileActions actions;
    Attributes attributes;
    int code = addActions(actions, start);
    if (code == 0)
        code = setAttributes(attributes, start.group);
    pid_t pid = -1;
    // The child borrows this process's memory until exec, so that a large process starts programs
    // as quickly as a small one.
    if (code == 0) {
        code = ::posix_spawn(&pid, start.program.c_str(), actions.get(), attributes.get(),
                             arguments.data(), environ);
    }
    if (code != 0)
        return failure(start, code);
    return OwnedChild(pid);
}

} // namespace zt
