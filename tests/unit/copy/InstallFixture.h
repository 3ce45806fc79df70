#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of the installation share: a medium with a product, a folder for applications, a
// home with its Trash, and ears for log lines and notes.

#include "Installer/train/InstallFunction.h"
#include "Platform/linux/FreedesktopTrash.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <mutex>
#include <string>
#include <vector>

namespace zt::testing {

// Does nothing but fail, and counts how often it was asked.
class FailingTrash final : public Trash {
public:
    Result<std::string> moveToTrash(const std::string &path) override {
        ++calls;
        return Error::fromErrno("move to the Trash", path, EROFS);
    }

    int calls = 0;
};

class InstallTest : public ::testing::Test {
protected:
    InstallTest() : InstallTest(temporaryParent()) {}

    explicit InstallTest(const std::string &parent);

    // A product of a few files that tell its version.
    std::string makeProduct(const std::string &name, const std::string &version) const;

    InstallServices services();

    InstallResult install() { return install({m_source, m_destination, {}}); }

    InstallResult install(const InstallPaths &paths) { return install(paths, services()); }

    static InstallResult install(const InstallPaths &paths, const InstallServices &services) {
        return InstallApplication(paths, services);
    }

    // The version of a product that is whole; "<broken>" or "<missing>" otherwise.
    static std::string versionAt(const std::string &path);

    // The versions in the Trash that have a valid record, sorted.
    std::vector<std::string> trashedVersions() const;

    // The lines that the installation must write, in order, whatever explains them.
    std::vector<std::string> errorLines() const;

    TemporaryFolder m_world;
    std::string m_source;
    std::string m_destination = m_world.path("Applications/Product.app");
    std::string m_trashPath = m_world.path("home/Trash");
    FreedesktopTrash m_trash;
    Trash *m_usedTrash = &m_trash;
    std::mutex m_mutex;
    std::vector<std::string> m_log;
    std::vector<std::string> m_noted;
};

} // namespace zt::testing
