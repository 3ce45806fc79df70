#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Copying the content of one file.

#include "Platform/posix/CopyProgressMeter.h"

#include <sys/stat.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <stop_token>

namespace zt {

// What the two file systems of a copy have turned out not to be able to do; shared by its threads.
struct CopyAbilities {
    std::atomic<bool> canClone = true;
    std::atomic<bool> canCopyInKernel = true;
};

// Copies contents from file to file; owns the memory for it. Thread: one at a time.
class FileContentCopier {
public:
    enum class Outcome { Copied, ReadFailed, WriteFailed, SourceChanged, Stopped };

    FileContentCopier(CopyAbilities &abilities, CopyProgressMeter &meter, std::stop_token stop);

    // Copies the content, holes as holes, into the new, empty target. `status` is the source's, as
    // it was when it was opened. Where an operation failed, errno tells why.
    Outcome copy(int source, int target, const struct stat &status);

private:
    Outcome copySmall(std::uint64_t size);
    Outcome copyWithHoles(std::uint64_t size);
    Outcome copyRange(std::uint64_t begin, std::uint64_t end);
    Outcome copyRangeInKernel(std::uint64_t &position, std::uint64_t end);
    Outcome copyRangeByHand(std::uint64_t position, std::uint64_t end);
    Outcome checkUnchanged(const struct stat &before) const;
    bool clone();
    bool reserve(std::uint64_t size) const;

    CopyAbilities &m_abilities;
    CopyProgressMeter &m_meter;
    const std::stop_token m_stop;
    std::unique_ptr<char[]> m_buffer;
    int m_source = -1;
    int m_target = -1;
};

} // namespace zt
