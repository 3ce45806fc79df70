// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What other users run, on a made-up process file system.

#include "Platform/linux/ForeignApplications.h"

#include "Platform/linux/LinuxBundles.h"

#include "tests/unit/process/ProcFolder.h"
#include "tests/unit/process/TestBundles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t self = 4321; // who looks
constexpr uid_t root = 0;    // whose name is the same everywhere
constexpr uid_t nameless = 54321;

struct Row {
    const char *reason;
    std::vector<std::string> arguments;
    std::string programLink;
    bool isFound;
};

class ForeignApplicationsTest : public testing::Test {
protected:
    void run(std::int32_t pid, uid_t user, const std::vector<std::string> &arguments,
             const std::string &programLink = {}) const {
        m_folder.add(
            {.pid = pid, .programLink = programLink, .arguments = arguments, .user = user});
    }

    QList<zt::ForeignApplication> found() const {
        return zt::applicationsOfOtherUsers(zt::ProcFs(m_folder.root()), m_reader, self);
    }

    TestBundles m_bundles;
    QString m_bundle =
        m_bundles.add(u"X"_s, {{u"CFBundleName"_s, u"Ex"_s}, {u"CFBundleSignature"_s, u"exEX"_s}});
    std::string m_program = TestBundles::program(m_bundle);
    ProcFolder m_folder;
    zt::LinuxBundles m_reader{u"/usr/bin/none"_s};
};

} // namespace

TEST_F(ForeignApplicationsTest, aBundlesProgramIsToldWithItsUser) {
    run(11, root, {m_program, "600"});
    EXPECT_EQ(found(), (QList<zt::ForeignApplication>{{.name = u"Ex"_s,
                                                       .signature = 0x65784558U,
                                                       .location = m_bundle,
                                                       .userName = u"root"_s}}));
}

TEST_F(ForeignApplicationsTest, whatThisUserRunsIsNotToldHere) {
    run(11, self, {m_program, "600"}, m_program);
    EXPECT_TRUE(found().isEmpty());
}

TEST_F(ForeignApplicationsTest, aUserWithoutANameHasANumber) {
    run(11, nameless, {m_program});
    ASSERT_EQ(found().size(), 1);
    EXPECT_EQ(found().first().userName, u"54321"_s);
}

TEST_F(ForeignApplicationsTest, eachRunCounts) {
    run(11, root, {m_program});
    run(12, root, {m_program});
    EXPECT_EQ(found().size(), 2);
}

TEST_F(ForeignApplicationsTest, theCommandLineStandsInForTheProgram) {
    const QString script = m_bundles.write(u"X.app/Contents/Linux/script"_s, "#!/bin/sh\n");
    const std::string scriptPath = script.toStdString();
    const Row rows[] = {
        {"the program itself", {m_program}, {}, true},
        {"a program that calls itself something else", {"Ex: editing"}, {}, false},
        {"the link, where it can be read", {"Ex: editing"}, m_program, true},
        {"a program that was deleted", {}, m_program + " (deleted)", true},
        {"a script's interpreter", {"/bin/sh", scriptPath}, {}, true},
        {"a program that was given a bundle's file", {"/usr/bin/cat", m_program}, {}, false},
        {"a path that begins nowhere", {"X.app/Contents/Linux/program"}, {}, false},
        {"another program", {"/usr/bin/sleep", "600"}, {}, false},
        {"no command line, as a thread of the kernel", {}, {}, false},
        {"a bundle that is gone", {"/no/such/Y.app/Contents/Linux/Y"}, {}, false},
    };
    for (const Row &row : rows) {
        run(11, root, row.arguments, row.programLink);
        EXPECT_EQ(found().size(), row.isFound ? 1 : 0) << row.reason;
    }
}
