#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Applications that end when a test's script says so.

#include "Platform/RunningApplications.h"

#include <functional>
#include <limits>
#include <map>
#include <optional>

// How one application takes to being ended. Requests are counted from 1, polite and forced ones
// each for themselves.
struct FakeRunningApplicationScript {
    static constexpr int never = std::numeric_limits<int>::max();

    int endsAfterPoliteRequest = never;  // seen at the next look whether it has ended
    int endsBeforePoliteRequest = never; // seen by the request itself
    int endsAfterForcedRequest = never;
    int endsBeforeForcedRequest = never;

    std::function<void()> whenHeld = [] {};  // called when somebody takes hold of it
    std::function<void()> whenEnded = [] {}; // called when it ends

    int politeRequests = 0; // counted here
    int forcedRequests = 0;
    bool hasEnded = false;
};

// Thread: one at a time.
class FakeRunningApplications final : public zt::RunningApplications {
public:
    std::unique_ptr<zt::RunningApplication> applicationWithPid(std::int32_t pid) override {
        const auto found = applications.find(pid);
        if (found == applications.end() || found->second.hasEnded)
            return nullptr;
        found->second.whenHeld();
        return std::make_unique<Application>(found->second);
    }

    bool isAvailable() const override { return available; }

    std::map<std::int32_t, FakeRunningApplicationScript> applications; // by pid
    bool available = true;

private:
    class Application final : public zt::RunningApplication {
    public:
        explicit Application(FakeRunningApplicationScript &script) : m_script(script) {}

        bool terminate() override {
            return request(++m_script.politeRequests, m_script.endsBeforePoliteRequest,
                           m_script.endsAfterPoliteRequest);
        }

        bool forceTerminate() override {
            return request(++m_script.forcedRequests, m_script.endsBeforeForcedRequest,
                           m_script.endsAfterForcedRequest);
        }

        bool isTerminated() override { return m_script.hasEnded; }

    private:
        bool request(int number, int endsBefore, int endsAfter) {
            const bool wasThere = !m_script.hasEnded && number < endsBefore;
            if (!m_script.hasEnded && (number >= endsBefore || number >= endsAfter)) {
                m_script.hasEnded = true;
                m_script.whenEnded();
            }
            return wasThere;
        }

        FakeRunningApplicationScript &m_script;
    };
};
