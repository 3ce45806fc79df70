// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/privileged/train/PrivateWorld.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>

namespace zt::testing {

namespace {

std::string reason = "no private world was made"; // NOLINT

bool writeFile(const std::string &path, const std::string &content, mode_t mode) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    return !file.fail() && ::chmod(path.c_str(), mode) == 0;
}

// Hides a file of the system behind one of the world's.
bool replaceFile(const std::string &path, const std::string &name, const std::string &content) {
    const std::string own = "/run/" + name;
    return writeFile(own, content, 0644) &&
           ::mount(own.c_str(), path.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

bool makeUsers() {
    const std::string number = std::to_string(asker);
    return replaceFile("/etc/passwd", "passwd",
                       std::string("root:x:0:0::") + homeOfRoot + ":/bin/sh\n" + askersName +
                           ":x:" + number + ':' + std::to_string(askersGroup) + "::" + askersHome +
                           ":/bin/sh\n") &&
           replaceFile("/etc/group", "group",
                       "root:x:0:\nann:x:" + number +
                           ":\nreaders:x:" + std::to_string(askersSecondGroup) + ":ann\n");
}

std::string make(const std::string &trainProgram) {
    if (::geteuid() != 0)
        return "only root runs the privileged tool";
    // Read before anything is hidden.
    std::ifstream program(trainProgram, std::ios::binary);
    const std::string train{std::istreambuf_iterator<char>(program),
                            std::istreambuf_iterator<char>()};
    if (train.empty())
        return trainProgram + " cannot be read";
    const bool hasMounts = ::unshare(CLONE_NEWNS) == 0 &&
                           ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                           ::mount("tmpfs", worldFolder, "tmpfs", 0, "size=256m,mode=755") == 0 &&
                           ::mount("tmpfs", "/run", "tmpfs", 0, "size=64m,mode=755") == 0;
    if (!hasMounts)
        return std::string("there can be no private mounts: ") + std::strerror(errno);
    if (!writeFile(trainPath, train, 0755) || !makeUsers())
        return std::string("the private world cannot be filled: ") + std::strerror(errno);
    return {};
}

} // namespace

std::string makePrivateWorld(const std::string &trainProgram) {
    return reason = make(trainProgram);
}

const std::string &reasonForNoWorld() {
    return reason;
}

} // namespace zt::testing
