// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ProcFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

void writeFile(const fs::path &path, const std::string &content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    if (!file.flush())
        std::abort();
}

void writeLink(const fs::path &path, const std::string &target) {
    if (!target.empty())
        fs::create_symlink(target, path);
}

} // namespace

ProcFolder::ProcFolder() {
    write("loadavg", "0.00 0.01 0.05 1/100 4711\n");
}

std::string ProcFolder::statOf(const Process &process) {
    // Fields 5 to 13, 15 to 19, 21, 23 to 25, 27 and 29 to 44 say nothing that is used.
    const auto zeros = [](int count) {
        std::string text;
        for (; count > 0; --count)
            text += " 0";
        return text;
    };
    return std::to_string(process.pid) + " (" + process.name + ") " + process.state + ' ' +
           std::to_string(process.parent) + " -1" + zeros(8) + ' ' +
           std::to_string(process.userTicks) + zeros(5) + ' ' + std::to_string(process.threads) +
           " 0 " + std::to_string(process.startTicks) + zeros(3) + " 4096 8192 " +
           std::to_string(process.stackStart) + zeros(24) + '\n';
}

void ProcFolder::add(const Process &process) const {
    // Another folder each time, as another look at the kernel's may give.
    const fs::path folder = fs::path(root()) / "new";
    fs::create_directory(folder);
    writeFile(folder / "stat", statOf(process));
    writeFile(folder / "status", "Name:\t" + process.name + "\nTracerPid:\t" +
                                     std::to_string(process.tracer) + "\nUid:\t" +
                                     std::to_string(process.user) + "\t" +
                                     std::to_string(process.user) + "\t0\t0\nGid:\t0\t0\t0\t0\n");
    writeFile(folder / "cgroup", process.controlGroups);
    std::string commandLine;
    for (const std::string &argument : process.arguments)
        commandLine += argument + '\0';
    writeFile(folder / "cmdline", commandLine);
    writeLink(folder / "exe", process.programLink);
    writeLink(folder / "cwd", process.workingFolder);
    const fs::path place = fs::path(root()) / std::to_string(process.pid);
    if (fs::exists(place))
        fs::rename(place, fs::path(root()) / ("old." + std::to_string(++m_replaced)));
    fs::rename(folder, place);
}

void ProcFolder::remove(std::int32_t pid) const {
    fs::remove_all(fs::path(root()) / std::to_string(pid));
}

void ProcFolder::write(const std::string &name, const std::string &content) const {
    writeFile(fs::path(root()) / name, content);
}

void ProcFolder::setSelf(std::int32_t pid) const {
    fs::remove(fs::path(root()) / "self");
    writeLink(fs::path(root()) / "self", std::to_string(pid));
}
