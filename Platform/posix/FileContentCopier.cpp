// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/FileContentCopier.h"

#include "Platform/posix/SystemCalls.h"

#include <fcntl.h>
#include <linux/fs.h> // FICLONE
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/vfs.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace zt {

namespace {

// Smaller files cost less when they pass through this process in one piece; larger ones cost more,
// for their bytes are then copied twice.
constexpr std::size_t bufferSize = std::size_t(16) * 1024;

// How much is copied between two looks at the stop token.
constexpr std::uint64_t stepSize = std::uint64_t(8) * 1024 * 1024;

// Smaller files gain nothing from having their room taken in one piece.
constexpr std::uint64_t smallestReserved = std::uint64_t(256) * 1024;

bool meansNotSupported(int code) {
    return code == EOPNOTSUPP || code == EXDEV || code == ENOTTY || code == ENOSYS ||
           code == EBADF || code == EINVAL || code == EPERM || code == ETXTBSY;
}

// Whether the file system goes through its books for each block that is written, unless the room
// was taken before. The others gain nothing, and what is reserved on Btrfs is not compressed.
bool countsEachBlock(int file) {
    struct statfs status = {};
    return ::fstatfs(file, &status) == 0 && status.f_type == EXT4_SUPER_MAGIC;
}

} // namespace

FileContentCopier::FileContentCopier(CopyAbilities &abilities, CopyProgressMeter &meter,
                                     std::stop_token stop)
    : m_abilities(abilities)
    , m_meter(meter)
    , m_stop(std::move(stop))
    , m_buffer(std::make_unique<char[]>(bufferSize)) {}

bool FileContentCopier::clone() {
    if (!m_abilities.canClone)
        return false;
    if (::ioctl(m_target, FICLONE, m_source) == 0)
        return true;
    // EINVAL may be due to this one file; the others tell about the file systems.
    if (errno != EINVAL)
        m_abilities.canClone = false;
    return false;
}

// Takes the room for the whole content where that saves time. A volume without so much room is
// noticed before anything is written.
bool FileContentCopier::reserve(std::uint64_t size) const {
    if (size < smallestReserved || !countsEachBlock(m_target))
        return true;
    const int answer = retryInterrupted(
        [&] { return ::fallocate(m_target, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size)); });
    return answer == 0 || meansNotSupported(errno);
}

FileContentCopier::Outcome FileContentCopier::copy(int source, int target,
                                                   const struct stat &status) {
    m_source = source;
    m_target = target;
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size == 0)
        return checkUnchanged(status);
    if (clone()) {
        m_meter.add(size);
        return checkUnchanged(status);
    }
    const bool hasHoles = static_cast<std::uint64_t>(status.st_blocks) * 512 < size;
    if (!hasHoles && size < bufferSize)
        return copySmall(size);
    if (!hasHoles && !reserve(size))
        return Outcome::WriteFailed;
    const Outcome outcome = hasHoles ? copyWithHoles(size) : copyRange(0, size);
    return outcome == Outcome::Copied ? checkUnchanged(status) : outcome;
}

FileContentCopier::Outcome FileContentCopier::checkUnchanged(const struct stat &before) const {
    const std::optional<struct stat> after = statusOf(m_source);
    if (!after)
        return Outcome::ReadFailed;
    return after->st_size == before.st_size && hasSameModificationTime(*after, before)
               ? Outcome::Copied
               : Outcome::SourceChanged;
}

FileContentCopier::Outcome FileContentCopier::copySmall(std::uint64_t size) {
    // One byte more is asked for, so that a file that has grown is noticed. Fewer bytes than asked
    // for are the end of a file, except on few file systems; these tell it with a further reading.
    ssize_t count = readSome(m_source, m_buffer.get(), size + 1);
    if (count >= 0 && static_cast<std::uint64_t>(count) < size) {
        const auto done = static_cast<std::size_t>(count);
        const ssize_t more = readFully(m_source, m_buffer.get() + done, size + 1 - done);
        count = more < 0 ? more : count + more;
    }
    if (count < 0)
        return Outcome::ReadFailed;
    if (static_cast<std::uint64_t>(count) != size)
        return Outcome::SourceChanged;
    if (!writeFully(m_target, std::string_view(m_buffer.get(), size)))
        return Outcome::WriteFailed;
    m_meter.add(size);
    return Outcome::Copied;
}

FileContentCopier::Outcome FileContentCopier::copyWithHoles(std::uint64_t size) {
    std::uint64_t position = 0;
    while (position < size) {
        const off_t data = ::lseek(m_source, static_cast<off_t>(position), SEEK_DATA);
        if (data < 0 && errno == ENXIO)
            break; // nothing but a hole up to the end
        if (data < 0 && errno == EINVAL)
            return copyRange(position, size); // holes cannot be told from data here
        if (data < 0)
            return Outcome::ReadFailed;
        const off_t hole = ::lseek(m_source, data, SEEK_HOLE);
        if (hole < 0)
            return Outcome::ReadFailed;
        const auto begin = static_cast<std::uint64_t>(data);
        const std::uint64_t end = std::min(static_cast<std::uint64_t>(hole), size);
        if (begin >= end)
            break;
        m_meter.add(begin - position);
        if (const Outcome outcome = copyRange(begin, end); outcome != Outcome::Copied)
            return outcome;
        position = end;
    }
    if (::ftruncate(m_target, static_cast<off_t>(size)) != 0)
        return Outcome::WriteFailed;
    m_meter.add(size - position);
    return Outcome::Copied;
}

FileContentCopier::Outcome FileContentCopier::copyRange(std::uint64_t begin, std::uint64_t end) {
    std::uint64_t position = begin;
    if (end - begin >= bufferSize) {
        if (const Outcome outcome = copyRangeInKernel(position, end); outcome != Outcome::Copied)
            return outcome;
    }
    return copyRangeByHand(position, end);
}

// Copies as much as the kernel can, and moves the position to where that ended.
FileContentCopier::Outcome FileContentCopier::copyRangeInKernel(std::uint64_t &position,
                                                                std::uint64_t end) {
    while (position < end && m_abilities.canCopyInKernel) {
        if (m_stop.stop_requested())
            return Outcome::Stopped;
        auto from = static_cast<off_t>(position);
        off_t to = from;
        const ssize_t count = retryInterrupted([&] {
            return ::copy_file_range(m_source, &from, m_target, &to,
                                     std::min(end - position, stepSize), 0);
        });
        if (count < 0 && meansNotSupported(errno)) {
            m_abilities.canCopyInKernel = false;
            break;
        }
        if (count < 0)
            return Outcome::WriteFailed;
        // Some file systems answer an early end; reading by hand finds out.
        if (count == 0)
            break;
        position += static_cast<std::uint64_t>(count);
        m_meter.add(static_cast<std::uint64_t>(count));
    }
    return Outcome::Copied;
}

FileContentCopier::Outcome FileContentCopier::copyRangeByHand(std::uint64_t position,
                                                              std::uint64_t end) {
    while (position < end) {
        if (m_stop.stop_requested())
            return Outcome::Stopped;
        const std::size_t size = std::min<std::uint64_t>(end - position, bufferSize);
        const ssize_t count = retryInterrupted(
            [&] { return ::pread(m_source, m_buffer.get(), size, static_cast<off_t>(position)); });
        if (count < 0)
            return Outcome::ReadFailed;
        if (count == 0)
            return Outcome::SourceChanged;
        const auto length = static_cast<std::size_t>(count);
        if (::lseek(m_target, static_cast<off_t>(position), SEEK_SET) < 0 ||
            !writeFully(m_target, std::string_view(m_buffer.get(), length)))
            return Outcome::WriteFailed;
        position += length;
        m_meter.add(length);
    }
    return Outcome::Copied;
}

} // namespace zt
