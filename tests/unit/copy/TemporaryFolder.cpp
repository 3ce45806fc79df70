// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/TemporaryFolder.h"

#include "Platform/posix/TreeRemoval.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace zt::testing {

namespace {

void check(bool succeeded, const std::string &what) {
    if (succeeded)
        return;
    std::perror(what.c_str());
    std::abort();
}

} // namespace

std::string temporaryParent() {
    const char *folder = std::getenv("TMPDIR");
    return folder && *folder ? folder : "/tmp";
}

std::string fastTemporaryParent() {
    constexpr const char *inMemory = "/dev/shm";
    return ::access(inMemory, W_OK | X_OK) == 0 ? inMemory : temporaryParent();
}

TemporaryFolder::TemporaryFolder() : TemporaryFolder(temporaryParent()) {}

TemporaryFolder::TemporaryFolder(const std::string &parent) {
    std::string pattern = parent + "/velmora-test-XXXXXX";
    check(::mkdtemp(pattern.data()) != nullptr, pattern);
    m_path = std::filesystem::canonical(pattern);
}

TemporaryFolder::~TemporaryFolder() {
    const Result<void> removed = removeTree(AT_FDCWD, m_path.c_str());
    check(static_cast<bool>(removed), "removing " + m_path);
}

std::string TemporaryFolder::makeFolder(const std::string &name) const {
    std::filesystem::create_directories(path(name));
    return path(name);
}

std::string TemporaryFolder::makeFile(const std::string &name, std::string_view content,
                                      mode_t mode) const {
    std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
    std::ofstream(path(name), std::ios::binary) << content;
    check(::chmod(path(name).c_str(), mode) == 0, path(name));
    return path(name);
}

std::string TemporaryFolder::makeLink(const std::string &name, const std::string &target) const {
    std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
    check(::symlink(target.c_str(), path(name).c_str()) == 0, path(name));
    return path(name);
}

bool itemExists(const std::string &path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

std::string contentOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return "<missing>";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> namesIn(const std::string &path) {
    std::vector<std::string> names;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(path, error))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace zt::testing
