// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fakes/FakeChildProcesses.h"

namespace {

class RecordedChild final : public zt::ChildProcess {
public:
    RecordedChild(FakeChildProcesses &recorder, FakeChild behaviour)
        : m_recorder(recorder)
        , m_behaviour(std::move(behaviour)) {}
    RecordedChild(const RecordedChild &) = delete;
    RecordedChild &operator=(const RecordedChild &) = delete;
    ~RecordedChild() override { ++m_recorder.released; }

    bool isRunning() override {
        if (m_behaviour.questions > 0)
            --m_behaviour.questions;
        else if (m_behaviour.questions == 0)
            return false;
        return true;
    }

    void waitForEnd(std::chrono::microseconds /*atMost*/) override {
        if (m_behaviour.questions > 0)
            m_behaviour.questions = 0;
    }

    void terminate() override {
        ++m_recorder.terminations;
        m_behaviour.questions = 0;
    }

    zt::Result<QByteArray> output() override {
        if (m_behaviour.outputFailure)
            return *m_behaviour.outputFailure;
        return m_behaviour.output;
    }

private:
    FakeChildProcesses &m_recorder;
    FakeChild m_behaviour;
};

} // namespace

zt::Result<std::unique_ptr<zt::ChildProcess>> FakeChildProcesses::start(const Program &program) {
    started.push_back(program);
    if (child.startFailure)
        return *child.startFailure;
    return std::unique_ptr<zt::ChildProcess>(std::make_unique<RecordedChild>(*this, child));
}

zt::Result<QByteArray> FakeChildProcesses::standardOutputOfShell(const QString &commandLine) {
    commandLines << commandLine;
    if (child.startFailure)
        return *child.startFailure;
    return child.output;
}
