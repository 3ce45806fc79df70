#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A sound on its way from being asked for to its end.

#include "Platform/Sounds.h"

#include <mutex>

namespace zt {

// Keeps that the end comes once, whoever brings it about first. Thread: any.
class PlayedOnce {
public:
    explicit PlayedOnce(std::function<void(bool)> ended) : m_ended(std::move(ended)) {}

    // Whether it has ended.
    bool isOver() const;

    // Ends it and tells so. False when it was over already; then nothing is told.
    bool end(bool completely);

private:
    mutable std::mutex m_mutex;
    bool m_isOver = false;
    std::function<void(bool)> m_ended;
};

} // namespace zt
