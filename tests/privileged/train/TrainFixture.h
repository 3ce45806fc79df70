#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of the privileged tool share: a medium of the asker's, a folder for applications
// that is root's, secrets of root's, and the tool.

#include "tests/privileged/train/PrivateWorld.h"
#include "tests/unit/copy/InstallFixture.h"

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zt::testing {

// How the tool is started.
struct TrainStart {
    std::vector<std::string> arguments;
    std::vector<std::string> environment = {"PKEXEC_UID=" + std::to_string(asker)};
    std::function<void()> beforehand = {}; // in the new process, the last thing before the tool
    const char *program = trainPath;
};

// How it ended.
struct TrainEnd {
    int status = -1; // the exit status; -1 when a signal ended it
    int signal = 0;
    std::string output;
    std::string log;
};

// The tool while it runs. Killed with its owner.
class RunningTrain {
public:
    explicit RunningTrain(const TrainStart &start);
    RunningTrain(const RunningTrain &) = delete;
    RunningTrain &operator=(const RunningTrain &) = delete;
    ~RunningTrain();

    pid_t pid() const { return m_pid; }

    std::string log() const;

    // Waits until the log has the text; false when the tool ended before that, or never says so.
    bool waitForLog(const std::string &text);

    TrainEnd wait();

private:
    pid_t m_pid = -1;
    int m_status = 0;
    bool m_hasEnded = false;
    std::string m_outputPath;
    std::string m_logPath;
};

// Repeats one step in a process of its own, as that user, until its owner goes.
class Attacker {
public:
    Attacker(uid_t user, const std::function<void()> &step);
    Attacker(const Attacker &) = delete;
    Attacker &operator=(const Attacker &) = delete;
    ~Attacker();

private:
    pid_t m_pid = -1;
};

class TrainTest : public InstallTest {
protected:
    TrainTest();

    // Skips where no private world can be had; fills it otherwise.
    void SetUp() override;

    static TrainEnd train(const TrainStart &start) { return RunningTrain(start).wait(); }

    // With source and destination of the world, for the asker.
    TrainEnd train() const { return train({{m_source, m_destination}}); }

    // Gives the item and all below it to the user.
    void give(const std::string &path, uid_t user) const;

    std::string inProduct(const std::string &name) const { return m_source + "/Contents/" + name; }

    std::string installed(const std::string &name) const {
        return m_destination + "/Contents/" + name;
    }

    // Everything of the world but what an installation may change: the folder for applications and
    // the Trash folders.
    std::vector<std::string> rest() const;

    // What is wrong with the rights of any item below the path: not root's, or others may write to
    // it, or it has rights of its own. Empty when all is well.
    static std::string wrongRightsBelow(const std::string &path);

    // Expects that the tool refused to do anything, with that status, and left everything as it
    // was.
    void expectRefused(const TrainStart &start, int status, const std::string &inLog);

    // The versions in the Trash of root, on the volume of the world.
    std::vector<std::string> versionsInTrashOfRoot();

    std::string m_secret;
    std::string m_trashOfRoot = std::string(homeOfRoot) + "/.local/share/Trash";
};

} // namespace zt::testing
