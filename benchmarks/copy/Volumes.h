#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// File systems to copy on.

#include <optional>
#include <string>

namespace zt {

// A folder on some file system, removed with all that is in it when its owner goes. Thread: one at
// a time.
class Volume {
public:
    // In the build's own folder, whatever file system that is.
    static std::optional<Volume> onDisk();

    // In memory.
    static std::optional<Volume> inMemory();

    // On a new file system in a file of the disk's; no value when this machine cannot make or mount
    // it. `kind` is "ext4", "xfs" or "btrfs".
    static std::optional<Volume> inImage(const std::string &kind);

    Volume(Volume &&other) noexcept;
    Volume(const Volume &) = delete;
    Volume &operator=(const Volume &) = delete;
    Volume &operator=(Volume &&) = delete;
    ~Volume();

    std::string path(const std::string &name) const { return m_path + '/' + name; }

    const std::string &fileSystem() const { return m_fileSystem; }

    // Removes the item, and waits until the disk is quiet.
    void removeAndSettle(const std::string &name) const;

private:
    Volume(std::string path, std::string fileSystem, std::string image)
        : m_path(std::move(path))
        , m_fileSystem(std::move(fileSystem))
        , m_image(std::move(image)) {}

    std::string m_path; // empty once moved from
    std::string m_fileSystem;
    std::string m_image; // of what is mounted at the path; empty when nothing is
};

// Mounts of this process are its own from now on. Whether that is so.
bool makeMountsPrivate();

} // namespace zt
