#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the programs that run are: their bundles, names and signatures.

#include "Platform/Bundles.h"
#include "Platform/linux/ProcFs.h"

#include <QString>
#include <QVariantMap>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

namespace zt {

// What is known of one program. Does not change once it is made.
struct Program {
    QString name;                // never empty
    std::uint32_t signature = 0; // "????" as a number when it has none
    QString location;            // the bundle's folder, else the program file; may be empty
    bool isInBundle = false;
    QVariantMap information; // of the bundle; empty when there is none or it could not be read
};

// What a program in the bundle is.
Program programOfBundle(const Bundle &bundle);

// Finds out what the processes run, and remembers it for each process as long as it runs that
// program. Thread: any.
class ProcPrograms {
public:
    using Pointer = std::shared_ptr<const Program>;

    // Programs that were found within one look at many processes. Many processes run the same
    // program; but one that starts later may find another at the same path.
    using Memory = std::unordered_map<std::string, Pointer>;

    // One process at one moment.
    struct Observation {
        std::int32_t pid = 0;
        std::uint64_t startTicks = 0; // since the system was booted
        Pointer program;              // never null
        std::optional<uid_t> user;    // whose rights the process has
        // Whether noteApplication() was called for the process.
        bool isKnownApplication = false;
    };

    // Both outlive this object.
    ProcPrograms(const ProcFs &procFs, const Bundles &bundles)
        : m_procFs(procFs)
        , m_bundles(bundles) {}

    // What the process is, whose folder was found and whose ProcFs::programLink was read just
    // before. No value when it does not run any more. Reads nothing more for a process that is
    // known.
    std::optional<Observation> observe(const ProcFolderEntry &folder,
                                       const std::optional<std::string> &link,
                                       Memory *memory = nullptr);
    // The same for the process that has the id now.
    std::optional<Observation> observe(std::int32_t pid);

    // Remembers, until the process ends, that it showed itself to be an application, so that it
    // does not stop being one when its last window is hidden.
    void noteApplication(const Observation &process);

private:
    // Tells a file from all others, whatever its name.
    struct FileIdentity {
        dev_t device = 0;
        ino_t number = 0;

        bool operator==(const FileIdentity &) const = default;
    };

    struct Known {
        ProcFolderEntry folder;
        std::uint64_t startTicks = 0;
        std::uint64_t image = 0; // see ProcStat
        std::optional<std::string> link;
        std::optional<FileIdentity> file;
        Pointer program;
        // Whether the program is that one as long as the link leads to the same file. Not so for
        // an interpreter, which may be loaded anew with another script.
        bool isSettled = false;
        std::optional<uid_t> user;
        bool isApplication = false;
    };

    struct Identification {
        Pointer program;
        bool isSettled = false;
    };

    std::optional<Known> knownOf(std::int32_t pid);
    std::optional<Observation> lookClosely(ProcFolderEntry folder, std::optional<std::string> link,
                                           Memory *memory);
    Identification identifyAgain(const ProcStat &stat, const Known &fresh, const Known *before,
                                 Memory *memory) const;
    Identification identify(const ProcStat &stat, const std::optional<std::string> &link,
                            Memory *memory) const;
    Pointer identifyBundled(const std::string &path, bool isDeleted, Memory *memory) const;
    Pointer afterMove(const Program &before, const std::string &path) const;
    QString locationOf(const std::string &path) const;
    void remember(std::int32_t pid, Known known);
    void forgetEnded();

    const ProcFs &m_procFs;
    const Bundles &m_bundles;
    std::mutex m_mutex;
    std::unordered_map<std::int32_t, Known> m_known;
    std::size_t m_sizeToClean = 1024;
};

} // namespace zt
