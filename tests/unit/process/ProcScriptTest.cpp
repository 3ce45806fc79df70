// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcScript.h"

#include "tests/unit/process/ProcFolder.h"
#include "tests/unit/process/TestBundles.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t pid = 4242;

TEST(ProcScriptTest, namesOfInterpretersMayHaveAVersion) {
    for (const char *name : {"sh", "bash", "python3.11", "perl5.36.0", "ruby3.1", "node", "java",
                             "tclsh8.6", "pypy3", "gjs-console", "ksh93"})
        EXPECT_TRUE(zt::isInterpreterName(name)) << name;
    for (const char *name : {"", "3.11", "vim", "python-config", "shred", "tar", "sample notes"})
        EXPECT_FALSE(zt::isInterpreterName(name)) << name;
}

TEST(ProcScriptTest, optionsAreNoScripts) {
    using Arguments = std::vector<std::string>;
    EXPECT_EQ(zt::possibleScripts("dash", {"sh", "-x", "/a", "b"}), (Arguments{"/a", "b"}));
    EXPECT_EQ(zt::possibleScripts("dash", {"sh", "-e", "/a"}), Arguments{"/a"});
    EXPECT_EQ(zt::possibleScripts("java", {"java", "-jar", "/a.jar"}), Arguments{"/a.jar"});
    EXPECT_EQ(zt::possibleScripts("java", {"java", "-cp", "/a.jar", "Main"}),
              (Arguments{"/a.jar", "Main"}));
    EXPECT_EQ(zt::possibleScripts("python3.11", {"python3", "-W", "ignore", "/a"}),
              (Arguments{"ignore", "/a"}));
    EXPECT_EQ(zt::possibleScripts("dash", {"sh", "", "/a"}), Arguments{"/a"});
    EXPECT_EQ(zt::possibleScripts("dash", {"sh"}), Arguments{});
    EXPECT_EQ(zt::possibleScripts("dash", {}), Arguments{});
}

TEST(ProcScriptTest, anOptionMayBringTheProgramItself) {
    using Arguments = std::vector<std::string>;
    EXPECT_EQ(zt::possibleScripts("bash", {"bash", "-lc", "text", "/a"}), Arguments{});
    EXPECT_EQ(zt::possibleScripts("perl", {"perl", "-w", "-ne", "text", "/a"}), Arguments{});
    EXPECT_EQ(zt::possibleScripts("python3.11", {"python3", "-m", "module", "/a"}), Arguments{});
    EXPECT_EQ(zt::possibleScripts("python3.11", {"python3", "-c", "text", "/a"}), Arguments{});
    EXPECT_EQ(zt::possibleScripts("node", {"node", "--eval", "text", "/a"}), Arguments{});
}

TEST(ProcScriptTest, theFirstLineNamesTheInterpreter) {
    EXPECT_EQ(zt::interpreterOfScript("#!/bin/sh\necho\n"), "/bin/sh");
    EXPECT_EQ(zt::interpreterOfScript("#! \t/bin/sh -e\n"), "/bin/sh");
    EXPECT_EQ(zt::interpreterOfScript("#!/bin/sh"), "/bin/sh");
    EXPECT_EQ(zt::interpreterOfScript("#!/usr/bin/env python3\n"), "python3");
    EXPECT_EQ(zt::interpreterOfScript("#!/usr/bin/env -S A=b python3 -u\n"), "python3");
    EXPECT_EQ(zt::interpreterOfScript("#!/usr/bin/env\n"), "");
    EXPECT_EQ(zt::interpreterOfScript("#!\n/bin/sh"), "");
    EXPECT_EQ(zt::interpreterOfScript("\x7F"
                                      "ELF"),
              "");
    EXPECT_EQ(zt::interpreterOfScript(""), "");
}

class BundledScriptTest : public testing::Test {
protected:
    // The script that the process runs whose program and arguments these are.
    std::optional<std::string> scriptOf(const std::string &program,
                                        const std::vector<std::string> &arguments,
                                        const std::string &workingFolder = "/") const {
        m_procFolder.add({.pid = pid,
                          .programLink = program,
                          .arguments = arguments,
                          .workingFolder = workingFolder});
        return zt::bundledScriptOf(zt::ProcFs(m_procFolder.root()), pid, program).path;
    }

    std::string write(const QString &name, const QByteArray &content) const {
        return m_files.write(name, content).toStdString();
    }

    TestBundles m_files;
    ProcFolder m_procFolder;
};

TEST_F(BundledScriptTest, aShellRunsTheScriptThatItIsGiven) {
    const std::string script = write(u"X.app/run"_s, "echo\n");
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", script}), script);
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", "-e", script, "argument"}), script);
}

TEST_F(BundledScriptTest, aRelativePathCountsFromTheWorkingFolder) {
    const std::string script = write(u"X.app/run"_s, "echo\n");
    const std::string folder = m_files.path(u"X.app"_s).toStdString();
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", "./run"}, folder), script);
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", "run"}, "/"), std::nullopt);
}

TEST_F(BundledScriptTest, aLinkToAScriptCountsWhereItLeads) {
    const std::string script = write(u"X.app/run"_s, "echo\n");
    const std::string link = m_files.path(u"link"_s).toStdString();
    std::filesystem::create_symlink(script, link);
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", link}), script);
}

TEST_F(BundledScriptTest, aProgramThatWorksOnAFileOfABundleDoesNotRunIt) {
    const std::string file = write(u"X.app/Info.plist"_s, "<plist/>");
    EXPECT_EQ(scriptOf("/usr/bin/vim.basic", {"vim", file}), std::nullopt);
    EXPECT_EQ(scriptOf("/bin/tar", {"tar", "cf", "a.tar", file}), std::nullopt);
}

TEST_F(BundledScriptTest, aScriptMayNameAnyInterpreter) {
    const std::string script = write(u"X.app/run"_s, "#!/bin/cat -u\n");
    const std::string program = std::filesystem::canonical("/bin/cat");
    EXPECT_EQ(scriptOf(program, {"/bin/cat", "-u", script}), script);
    EXPECT_EQ(scriptOf("/usr/bin/other", {"other", script}), std::nullopt);
}

TEST_F(BundledScriptTest, onlyTheFirstFileIsTheScript) {
    const std::string tool = write(u"tool.py"_s, "print\n");
    const std::string data = write(u"X.app/data"_s, "data");
    EXPECT_EQ(scriptOf("/usr/bin/python3.11", {"python3", tool, data}), std::nullopt);
}

TEST_F(BundledScriptTest, nothingIsFinalBeforeTheProcessHasItsArguments) {
    const zt::ProcFs procFs(m_procFolder.root());
    m_procFolder.add({.pid = pid, .programLink = "/bin/dash"});
    EXPECT_FALSE(zt::bundledScriptOf(procFs, pid, "/bin/dash").isFinal);
    m_procFolder.add({.pid = pid, .programLink = "/bin/dash", .arguments = {"sh"}});
    EXPECT_TRUE(zt::bundledScriptOf(procFs, pid, "/bin/dash").isFinal);
}

TEST_F(BundledScriptTest, aFolderIsNoScript) {
    const std::string script = write(u"X.app/run"_s, "echo\n");
    const std::string folder = m_files.path(u"X.app"_s).toStdString();
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", folder, script}), script);
    EXPECT_EQ(scriptOf("/bin/dash", {"sh", folder}), std::nullopt);
}

} // namespace
