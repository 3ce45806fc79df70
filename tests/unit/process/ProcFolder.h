#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A made-up process file system in a folder of a test's own.

#include <QTemporaryDir>

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

class ProcFolder {
public:
    struct Process {
        std::int32_t pid = 0;
        std::string name = "program";
        char state = 'S';
        std::int32_t threads = 1;
        std::uint64_t userTicks = 0;
        std::uint64_t startTicks = 0;
        std::uint64_t stackStart = 140000;
        std::string programLink = {}; // no link when empty
        std::vector<std::string> arguments = {};
        std::string workingFolder = {}; // no link when empty
        std::int32_t parent = 1;
        std::int32_t tracer = 0;
        std::string controlGroups = "0::/\n";
        uid_t user = 0;
    };

    ProcFolder();

    std::string root() const { return m_folder.path().toStdString(); }

    // Writes the files of the process, in the place of those that it had before.
    void add(const Process &process) const;
    void remove(std::int32_t pid) const;

    // The content of a file of the folder.
    void write(const std::string &name, const std::string &content) const;
    // The process for which this one is taken.
    void setSelf(std::int32_t pid) const;

    // The text of a process's "stat".
    static std::string statOf(const Process &process);

private:
    QTemporaryDir m_folder;
    mutable int m_replaced = 0;
};
