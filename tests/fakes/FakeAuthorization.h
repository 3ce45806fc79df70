#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Authorization.h"

#include <functional>
#include <mutex>
#include <vector>

// Follows a script, and records what was asked for and run.
class FakeAuthorization final : public zt::Authorization {
public:
    std::unique_ptr<zt::AuthorizationReference> create() override {
        if (isUnavailable)
            return nullptr;
        ++references;
        return std::make_unique<Reference>(*this);
    }

    bool isUnavailable = false;
    std::int32_t answer = zt::AuthorizationStatus::success;
    std::int32_t executeStatus = zt::AuthorizationStatus::success;
    zt::ChildEnd end = {.kind = zt::ChildEnd::Kind::Exited, .status = 0};
    std::function<void()> whileAsking;            // called while the dialog would be open
    std::function<void()> whileRunning;           // in place of the tool
    std::vector<zt::PrivilegedCommand> requested; // one for each dialog
    std::vector<zt::PrivilegedCommand> executed;
    int references = 0;
    int freed = 0;

private:
    class Reference final : public zt::AuthorizationReference {
    public:
        explicit Reference(FakeAuthorization &owner) : m_owner(owner) {}

        ~Reference() override { ++m_owner.freed; }

        Reference(const Reference &) = delete;
        Reference &operator=(const Reference &) = delete;

        std::int32_t requestRight(const zt::PrivilegedCommand &command,
                                  const std::stop_token & /*stop*/) override {
            m_owner.requested.push_back(command);
            if (m_owner.whileAsking)
                m_owner.whileAsking();
            return m_owner.answer;
        }

        std::int32_t executeWithPrivileges(const zt::PrivilegedCommand &command) override {
            if (m_owner.executeStatus == zt::AuthorizationStatus::success)
                m_owner.executed.push_back(command);
            return m_owner.executeStatus;
        }

        zt::ChildEnd waitForChild() override {
            if (m_owner.whileRunning)
                m_owner.whileRunning();
            return m_owner.end;
        }

    private:
        FakeAuthorization &m_owner;
    };
};
