// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/privileged/train/TrainFixture.h"

#include "Platform/posix/TreeRemoval.h"
#include "tests/unit/copy/TreeDescription.h"

#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>

namespace zt::testing {

namespace {

// So many moments are enough on any machine.
constexpr int mostLooks = 60'000;

void waitAMoment() {
    const timespec moment = {0, 1'000'000};
    ::nanosleep(&moment, nullptr);
}

std::string temporaryFile(const char *name) {
    std::string path = std::string("/run/") + name + "-XXXXXX";
    const int file = ::mkstemp(path.data());
    ::close(file);
    return path;
}

std::vector<char *> pointersTo(std::vector<std::string> &texts) {
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

void redirect(const std::string &path, int stream) {
    const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
    ::dup2(file, stream);
}

[[noreturn]] void becomeTrain(const TrainStart &start, const std::string &outputPath,
                              const std::string &logPath) {
    redirect(outputPath, STDOUT_FILENO);
    redirect(logPath, STDERR_FILENO);
    std::vector<std::string> arguments = start.arguments;
    arguments.insert(arguments.begin(), start.program);
    std::vector<std::string> environment = start.environment;
    // The leak checker of a checked build needs rights that the tool gives up.
    environment.emplace_back("ASAN_OPTIONS=detect_leaks=0");
    const std::vector<char *> argumentPointers = pointersTo(arguments);
    const std::vector<char *> environmentPointers = pointersTo(environment);
    if (start.beforehand)
        start.beforehand();
    ::execve(start.program, argumentPointers.data(), environmentPointers.data());
    ::_exit(99);
}

} // namespace

RunningTrain::RunningTrain(const TrainStart &start)
    : m_outputPath(temporaryFile("output"))
    , m_logPath(temporaryFile("log")) {
    m_pid = ::fork();
    if (m_pid == 0)
        becomeTrain(start, m_outputPath, m_logPath);
}

RunningTrain::~RunningTrain() {
    if (!m_hasEnded) {
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
    }
    ::unlink(m_outputPath.c_str());
    ::unlink(m_logPath.c_str());
}

std::string RunningTrain::log() const {
    return contentOf(m_logPath);
}

bool RunningTrain::waitForLog(const std::string &text) {
    for (int look = 0; log().find(text) == std::string::npos; ++look) {
        if (look == mostLooks)
            return false;
        if (::waitpid(m_pid, &m_status, WNOHANG) == m_pid) {
            m_hasEnded = true;
            return false;
        }
        waitAMoment();
    }
    return true;
}

TrainEnd RunningTrain::wait() {
    if (!m_hasEnded)
        ::waitpid(m_pid, &m_status, 0);
    m_hasEnded = true;
    return {.status = WIFEXITED(m_status) ? WEXITSTATUS(m_status) : -1,
            .signal = WIFSIGNALED(m_status) ? WTERMSIG(m_status) : 0,
            .output = contentOf(m_outputPath),
            .log = contentOf(m_logPath)};
}

Attacker::Attacker(uid_t user, const std::function<void()> &step) : m_pid(::fork()) {
    if (m_pid != 0)
        return;
    if (::setgroups(0, nullptr) != 0 || ::setresgid(user, user, user) != 0 ||
        ::setresuid(user, user, user) != 0)
        ::_exit(1);
    for (;;)
        step();
}

Attacker::~Attacker() {
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
}

TrainTest::TrainTest() : InstallTest(reasonForNoWorld().empty() ? worldFolder : temporaryParent()) {
    m_trashPath = std::string(askersHome) + "/.local/share/Trash";
}

void TrainTest::SetUp() {
    if (!reasonForNoWorld().empty())
        GTEST_SKIP() << reasonForNoWorld();
    for (const char *home : {askersHome, homeOfRoot}) {
        ASSERT_TRUE(removeTree(AT_FDCWD, home));
        std::filesystem::create_directories(home);
        ASSERT_EQ(::chmod(home, 0700), 0);
    }
    give(askersHome, asker);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0755), 0);
    m_world.makeFile("medium/Product.app/Contents/Info.plist", "<plist/>");
    give(m_world.path("medium"), asker);
    m_secret = m_world.makeFile("private/secret", "of root", 0600);
    m_world.makeFile("private/Contents/Info.plist", "of root", 0600);
    ASSERT_EQ(::chmod(m_world.path("private").c_str(), 0700), 0);
}

void TrainTest::give(const std::string &path, uid_t user) const {
    ASSERT_EQ(::lchown(path.c_str(), user, user), 0);
    if (!std::filesystem::is_directory(std::filesystem::symlink_status(path)))
        return;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path))
        ASSERT_EQ(::lchown(entry.path().c_str(), user, user), 0);
}

std::vector<std::string> TrainTest::rest() const {
    const std::string root = worldFolder;
    const std::string applications = m_world.path("Applications").substr(root.size());
    std::vector<std::string> lines = describeTree(root);
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [&](const std::string &line) {
                                   return line.starts_with(applications) ||
                                          line.find("/.local") != std::string::npos ||
                                          line.starts_with("/home/");
                               }),
                lines.end());
    return lines;
}

std::string TrainTest::wrongRightsBelow(const std::string &path) {
    std::vector<std::string> paths = {path};
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path))
        paths.push_back(entry.path());
    for (const std::string &item : paths) {
        struct stat status = {};
        if (::lstat(item.c_str(), &status) != 0)
            return item + " is missing";
        if (status.st_uid != 0 || status.st_gid != 0)
            return item + " is not root's";
        if (!S_ISLNK(status.st_mode) && (status.st_mode & 07022U) != 0)
            return item + " has the mode " + std::to_string(status.st_mode & 07777U);
        std::array<char, 4096> names = {};
        const ssize_t size = ::llistxattr(item.c_str(), names.data(), names.size());
        if (size > 0 && !std::string(names.data()).starts_with("user."))
            return item + " has " + names.data();
    }
    return {};
}

void TrainTest::expectRefused(const TrainStart &start, int status, const std::string &inLog) {
    const auto before = describeTree(worldFolder);
    const TrainEnd end = train(start);
    EXPECT_EQ(end.status, status) << end.log;
    EXPECT_EQ(end.signal, 0);
    EXPECT_NE(end.log.find(inLog), std::string::npos) << end.log;
    EXPECT_EQ(describeTree(worldFolder), before);
}

std::vector<std::string> TrainTest::versionsInTrashOfRoot() {
    std::vector<std::string> versions;
    for (const std::string &name : namesIn(m_trashOfRoot + "/files")) {
        versions.push_back(itemExists(m_trashOfRoot + "/info/" + name + ".trashinfo")
                               ? versionAt(m_trashOfRoot + "/files/" + name)
                               : "<no record>");
    }
    return versions;
}

} // namespace zt::testing
