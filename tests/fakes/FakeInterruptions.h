#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Interruptions for unit tests.

#include "Platform/Interruptions.h"

#include <QStringList>

#include <mutex>

// Counts the holds, and keeps their reasons. Thread: any.
class FakeInterruptions final : public zt::Interruptions {
public:
    std::unique_ptr<zt::InterruptionHold> holdOff(const QString &reason) override {
        return std::make_unique<Hold>(*this, reason);
    }

    // The reasons of the holds that live.
    QStringList held() const {
        const std::scoped_lock lock(m_mutex);
        return m_held;
    }

    // Those of all holds that there were.
    QStringList reasons() const {
        const std::scoped_lock lock(m_mutex);
        return m_reasons;
    }

private:
    class Hold final : public zt::InterruptionHold {
    public:
        Hold(FakeInterruptions &owner, const QString &reason) : m_owner(owner), m_reason(reason) {
            const std::scoped_lock lock(m_owner.m_mutex);
            m_owner.m_held << reason;
            m_owner.m_reasons << reason;
        }
        ~Hold() override {
            const std::scoped_lock lock(m_owner.m_mutex);
            m_owner.m_held.removeOne(m_reason);
        }
        Hold(const Hold &) = delete;
        Hold &operator=(const Hold &) = delete;

    private:
        FakeInterruptions &m_owner;
        QString m_reason;
    };

    mutable std::mutex m_mutex;
    QStringList m_held;
    QStringList m_reasons;
};
