// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/InstallFixture.h"

#include <unistd.h>

#include <algorithm>
#include <iterator>

namespace zt::testing {

namespace {

constexpr int fileCount = 20;

std::string contentOfFile(const std::string &version, int number) {
    return version + std::string(static_cast<std::size_t>(number) * 1000, '.');
}

FreedesktopTrash::Roots rootsIn(const TemporaryFolder &world) {
    return {.dataHome = world.path("home"),
            .user = ::geteuid(),
            .topDirectoryOf = [top = world.path()](const std::string &) { return top; }};
}

} // namespace

InstallTest::InstallTest(const std::string &parent) : m_world(parent), m_trash(rootsIn(m_world)) {
    m_source = makeProduct("medium/Product.app", "new");
    m_world.makeFolder("Applications");
}

std::string InstallTest::makeProduct(const std::string &name, const std::string &version) const {
    for (int i = 0; i < fileCount; ++i) {
        m_world.makeFile(name + "/Contents/" + std::to_string(i % 3) + '/' + std::to_string(i),
                         contentOfFile(version, i));
    }
    m_world.makeFile(name + "/Contents/version", version);
    m_world.makeLink(name + "/Contents/Current", "version");
    return m_world.path(name);
}

InstallServices InstallTest::services() {
    return {.trash = *m_usedTrash,
            .log =
                [this](std::string_view line) {
                    const std::lock_guard lock(m_mutex);
                    m_log.emplace_back(line);
                },
            .noteFileSystemChanged = [this](const std::string &path) { m_noted.push_back(path); },
            .stop = {},
            .progress = {},
            .durability = Durability::Relaxed,
            .guaranteedFolders = {m_world.path("guaranteed")}};
}

std::string InstallTest::versionAt(const std::string &path) {
    if (!itemExists(path))
        return "<missing>";
    const std::string version = contentOf(path + "/Contents/version");
    for (int i = 0; i < fileCount; ++i) {
        if (contentOf(path + "/Contents/" + std::to_string(i % 3) + '/' + std::to_string(i)) !=
            contentOfFile(version, i))
            return "<broken>";
    }
    return contentOf(path + "/Contents/Current") == version ? version : "<broken>";
}

std::vector<std::string> InstallTest::trashedVersions() const {
    std::vector<std::string> versions;
    for (const std::string &name : namesIn(m_trashPath + "/files")) {
        const std::string record = contentOf(m_trashPath + "/info/" + name + ".trashinfo");
        const bool isValid =
            record.starts_with("[Trash Info]\nPath=") && record.find("\nDeletionDate=") > 0;
        versions.push_back(isValid ? versionAt(m_trashPath + "/files/" + name) : "<no record>");
    }
    std::sort(versions.begin(), versions.end());
    return versions;
}

std::vector<std::string> InstallTest::errorLines() const {
    std::vector<std::string> lines;
    std::copy_if(m_log.begin(), m_log.end(), std::back_inserter(lines),
                 [](const std::string &line) { return line.starts_with("ERROR -- "); });
    return lines;
}

} // namespace zt::testing
