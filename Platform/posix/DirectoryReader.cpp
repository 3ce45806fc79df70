// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/DirectoryReader.h"

#include <dirent.h>
#include <sys/types.h>

#include <cerrno>
#include <string_view>

namespace zt {

bool DirectoryReader::fill() {
    const ssize_t count = ::getdents64(m_folder, m_buffer.data(), m_buffer.size());
    if (count < 0) {
        m_error = errno;
        return false;
    }
    m_filled = static_cast<std::size_t>(count);
    m_offset = 0;
    return count > 0;
}

const DirectoryReader::Entry *DirectoryReader::next() {
    for (;;) {
        if (m_offset >= m_filled && !fill())
            return nullptr;
        const void *start = m_buffer.data() + m_offset;
        const auto *entry = static_cast<const dirent64 *>(start);
        m_offset += entry->d_reclen;
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        m_entry = {entry->d_name, entry->d_type, entry->d_off, entry->d_ino};
        return &m_entry;
    }
}

} // namespace zt
