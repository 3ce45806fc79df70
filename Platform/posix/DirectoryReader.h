#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Reading the entries of a folder, in the order in which the file system lists them, with as much
// memory as the caller gives.

#include <cstddef>
#include <cstdint>
#include <span>

namespace zt {

// Reads one open folder. The entries "." and ".." are left out. Thread: one at a time.
class DirectoryReader {
public:
    // The least size of a buffer: room for one entry with the longest name.
    static constexpr std::size_t minimumBufferSize = 512;

    struct Entry {
        const char *name = nullptr;    // valid until the next call of next()
        unsigned char type = 0;        // DT_REG, DT_DIR, DT_LNK ... or DT_UNKNOWN
        std::int64_t nextPosition = 0; // where reading goes on after this entry; see lseek
        std::uint64_t number = 0;      // the inode's number
    };

    // `folder` is a folder's descriptor, read from its present position. The buffer outlives the
    // reader, is as large as minimumBufferSize and aligned for 64-bit numbers.
    DirectoryReader(int folder, std::span<std::byte> buffer) : m_folder(folder), m_buffer(buffer) {}

    // The next entry; null at the end and on failure.
    const Entry *next();

    // Whether the next call of next() is answered without asking the file system.
    bool hasBufferedEntries() const { return m_offset < m_filled; }

    // The errno of the failure that ended the reading; 0 when it reached the end.
    int error() const { return m_error; }

private:
    bool fill();

    int m_folder;
    std::span<std::byte> m_buffer;
    std::size_t m_filled = 0;
    std::size_t m_offset = 0;
    int m_error = 0;
    Entry m_entry;
};

} // namespace zt
