// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcFs.h"

#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/ProcFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include <unistd.h>

namespace {

constexpr std::int32_t somePid = 4242;
constexpr std::int32_t missingPid = 4243;

TEST(ProcFsTest, onlyFoldersOfProcessesCount) {
    const ProcFolder folder;
    folder.add({.pid = 30});
    folder.add({.pid = 4});
    folder.write("uptime", "1 1\n");
    std::vector<std::int32_t> ids;
    for (const zt::ProcFolderEntry &entry : zt::ProcFs(folder.root()).processes())
        ids.push_back(entry.pid);
    std::ranges::sort(ids);
    EXPECT_EQ(ids, (std::vector<std::int32_t>{4, 30}));
}

TEST(ProcFsTest, theFolderOfAProcessHasOneNumberHoweverItIsFound) {
    const ChildProcess child({"/bin/sleep", "600"});
    const zt::ProcFs procFs;
    const auto entry = procFs.entryOf(child.pid());
    ASSERT_TRUE(entry);
    EXPECT_TRUE(std::ranges::count(procFs.processes(), *entry));
    EXPECT_EQ(procFs.entryOf(child.pid()), entry);
    EXPECT_NE(procFs.entryOf(::getpid())->number, entry->number);
}

TEST(ProcFsTest, aFolderThatIsNotThereHasNoProcesses) {
    const zt::ProcFs procFs("/nowhere/at/all");
    EXPECT_TRUE(procFs.processes().empty());
    EXPECT_FALSE(procFs.ownProcessId());
    EXPECT_FALSE(procFs.stat(1));
}

TEST(ProcFsTest, factsAreReadFromTheFilesOfTheProcess) {
    const ProcFolder folder;
    folder.add({.pid = somePid,
                .name = "a (b)",
                .userTicks = 12,
                .startTicks = 99,
                .programLink = "/bin/a",
                .arguments = {"a", "", "c d"},
                .workingFolder = "/tmp",
                .user = 1234});
    const zt::ProcFs procFs(folder.root());
    const auto stat = procFs.stat(somePid);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, "a (b)");
    EXPECT_EQ(stat->startTicks, 99U);
    EXPECT_EQ(procFs.programLink(somePid), "/bin/a");
    EXPECT_EQ(procFs.workingFolder(somePid), "/tmp");
    EXPECT_EQ(procFs.commandLine(somePid), (std::vector<std::string>{"a", "", "c d"}));
}

TEST(ProcFsTest, aProcessThatIsNotThereHasNoFacts) {
    const ProcFolder folder;
    folder.add({.pid = somePid});
    const zt::ProcFs procFs(folder.root());
    EXPECT_FALSE(procFs.stat(missingPid));
    EXPECT_FALSE(procFs.entryOf(missingPid));
    EXPECT_FALSE(procFs.programLink(missingPid));
    EXPECT_FALSE(procFs.programStatus(missingPid));
    EXPECT_TRUE(procFs.commandLine(missingPid).empty());
    EXPECT_FALSE(procFs.effectiveUser(missingPid));
}

TEST(ProcFsTest, aThreadOfTheKernelHasNoProgram) {
    const ProcFolder folder;
    folder.add({.pid = somePid});
    EXPECT_FALSE(zt::ProcFs(folder.root()).programLink(somePid));
}

TEST(ProcFsTest, thisProcessIsFound) {
    const zt::ProcFs procFs;
    EXPECT_EQ(procFs.ownProcessId(), ::getpid());
    EXPECT_EQ(procFs.effectiveUser(::getpid()), ::geteuid());
    EXPECT_EQ(procFs.commandLine(::getpid()).empty(), false);
    ASSERT_TRUE(procFs.stat(::getpid()));
    EXPECT_TRUE(procFs.stat(::getpid())->isRunning());
}

TEST(ProcFsTest, theLastProcessIdChangesWhenOneStarts) {
    const zt::ProcFs procFs;
    const auto before = procFs.lastProcessId();
    ASSERT_TRUE(before);
    const ChildProcess child({"/bin/sleep", "600"});
    EXPECT_NE(procFs.lastProcessId(), before);
}

} // namespace
