// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcPrograms.h"

#include "Platform/MacRoman.h"
#include "Platform/linux/ProcScript.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t noSignature = 0x3F3F3F3F; // "????"
constexpr qsizetype maximumNameBytes = 255;

QString decoded(std::string_view path) {
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

// The record of a process has room for so many bytes. A character is not cut in two.
QString cutToRecord(const QString &name) {
    QByteArray bytes = name.toUtf8();
    if (bytes.size() <= maximumNameBytes)
        return name;
    qsizetype end = maximumNameBytes;
    while (end > 0 && (static_cast<unsigned char>(bytes[end]) & 0xC0) == 0x80)
        --end;
    return QString::fromUtf8(bytes.constData(), end);
}

QString nameOfBundle(const Bundle &bundle) {
    if (const auto name = bundle.stringForKey(u"CFBundleName"_s); name && !name->isEmpty())
        return *name;
    if (!bundle.executablePath().isEmpty())
        return QFileInfo(bundle.executablePath()).fileName();
    return QFileInfo(bundle.path()).completeBaseName();
}

std::uint32_t signatureOfBundle(const Bundle &bundle) {
    const auto text = bundle.stringForKey(u"CFBundleSignature"_s);
    return text ? fourCharacterCode(*text).value_or(noSignature) : noSignature;
}

// The kernel cuts the name that it keeps; the first argument may have it whole.
QString nameWithoutLink(const ProcFs &procFs, const ProcStat &stat) {
    constexpr std::size_t keptBytes = 15;
    std::string name = stat.name;
    if (name.size() == keptBytes) {
        const std::vector<std::string> arguments = procFs.commandLine(stat.pid);
        const std::string first = arguments.empty() ? std::string() : arguments.front();
        const std::string fileName = first.substr(first.rfind('/') + 1);
        if (fileName.starts_with(name))
            name = fileName;
    }
    return name.empty() ? QString::number(stat.pid) : QString::fromStdString(name);
}

template <typename Known>
ProcPrograms::Observation observationOf(std::int32_t pid, const Known &known) {
    return {.pid = pid,
            .startTicks = known.startTicks,
            .program = known.program,
            .user = known.user,
            .isKnownApplication = known.isApplication};
}

// Whether the bundle is the one in which the program file lies, and not that of a script.
bool isFoundByPath(const Program &program, const std::optional<std::string> &link) {
    return program.isInBundle && link && !innermostBundlePath(splitDeletedMark(*link).path).empty();
}

// The path of the program. A file that is itself named as if it were deleted is told from one that
// is deleted by looking whether it is there.
struct ProgramPath {
    std::string path;
    bool isDeleted = false;
};

ProgramPath programPathOf(const ProcFs &procFs, std::int32_t pid, const std::string &link) {
    const MarkedPath marked = splitDeletedMark(link);
    if (!marked.hasDeletedMark)
        return {link, false};
    struct stat named = {};
    const std::optional<struct stat> program = procFs.programStatus(pid);
    if (program && ::stat(link.c_str(), &named) == 0 && named.st_dev == program->st_dev &&
        named.st_ino == program->st_ino)
        return {link, false};
    return {std::string(marked.path), true};
}

} // namespace

Program programOfBundle(const Bundle &bundle) {
    return {.name = cutToRecord(nameOfBundle(bundle)),
            .signature = signatureOfBundle(bundle),
            .location = bundle.path(),
            .isInBundle = true,
            .information = bundle.infoDictionary()};
}

std::optional<ProcPrograms::Observation>
ProcPrograms::observe(const ProcFolderEntry &folder, const std::optional<std::string> &link,
                      Memory *memory) {
    if (link) { // a process without a program may have ended
        const std::scoped_lock lock(m_mutex);
        const auto found = m_known.find(folder.pid);
        if (found != m_known.end() && found->second.isSettled && found->second.link == link &&
            found->second.folder == folder)
            return observationOf(folder.pid, found->second);
    }
    return lookClosely(folder, link, memory);
}

std::optional<ProcPrograms::Observation> ProcPrograms::observe(std::int32_t pid) {
    const std::optional<ProcFolderEntry> folder = m_procFs.entryOf(pid);
    return folder ? observe(*folder, m_procFs.programLink(pid)) : std::nullopt;
}

std::optional<ProcPrograms::Observation>
ProcPrograms::lookClosely(ProcFolderEntry folder, std::optional<std::string> link, Memory *memory) {
    const std::int32_t pid = folder.pid;
    // The process may load another program, or end, between two looks at it; then what was read
    // does not belong together, and is read again.
    constexpr int maximumAttempts = 5;
    for (int attempt = 0; attempt < maximumAttempts; ++attempt) {
        const std::optional<ProcStat> stat = m_procFs.stat(pid);
        if (!stat || !stat->isRunning())
            return std::nullopt;
        std::optional<Known> before = knownOf(pid);
        if (before && before->startTicks != stat->startTicks)
            before.reset();

        Known fresh;
        fresh.folder = folder;
        fresh.startTicks = stat->startTicks;
        fresh.image = stat->image;
        fresh.link = link;
        if (const std::optional<struct stat> status = m_procFs.programStatus(pid))
            fresh.file = FileIdentity{status->st_dev, status->st_ino};
        fresh.isApplication = before && before->isApplication;
        Identification found = identifyAgain(*stat, fresh, before ? &*before : nullptr, memory);
        fresh.program = std::move(found.program);
        fresh.isSettled = found.isSettled;
        fresh.user = m_procFs.effectiveUser(pid);

        std::optional<std::string> linkNow = m_procFs.programLink(pid);
        const std::optional<ProcFolderEntry> folderNow = m_procFs.entryOf(pid);
        if (folderNow == folder && linkNow == link) {
            const Observation observation = observationOf(pid, fresh);
            remember(pid, std::move(fresh));
            return observation;
        }
        if (!folderNow)
            return std::nullopt;
        folder = *folderNow;
        link = std::move(linkNow);
    }
    return std::nullopt;
}

ProcPrograms::Identification ProcPrograms::identifyAgain(const ProcStat &stat, const Known &fresh,
                                                         const Known *before,
                                                         Memory *memory) const {
    const bool isSameFile = before && fresh.link && fresh.file && before->file == fresh.file;
    if (isSameFile && isFoundByPath(*before->program, before->link)) {
        const ProgramPath path = programPathOf(m_procFs, stat.pid, *fresh.link);
        return {.program = afterMove(*before->program, path.path), .isSettled = true};
    }
    // An interpreter that was merely moved, or nothing that has changed at all.
    if (isSameFile && before->program->isInBundle && before->image == fresh.image)
        return {.program = before->program, .isSettled = before->isSettled};
    return identify(stat, fresh.link, memory);
}

std::optional<ProcPrograms::Known> ProcPrograms::knownOf(std::int32_t pid) {
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find(pid);
    return found == m_known.end() ? std::nullopt : std::optional(found->second);
}

void ProcPrograms::noteApplication(const Observation &process) {
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find(process.pid);
    if (found != m_known.end() && found->second.startTicks == process.startTicks)
        found->second.isApplication = true;
}

ProcPrograms::Identification ProcPrograms::identify(const ProcStat &stat,
                                                    const std::optional<std::string> &link,
                                                    Memory *memory) const {
    if (!link) {
        const Program unreadable{.name = cutToRecord(nameWithoutLink(m_procFs, stat)),
                                 .signature = noSignature,
                                 .location = {},
                                 .isInBundle = false,
                                 .information = {}};
        return {.program = std::make_shared<const Program>(unreadable), .isSettled = false};
    }
    const ProgramPath program = programPathOf(m_procFs, stat.pid, *link);
    if (Pointer bundled = identifyBundled(program.path, program.isDeleted, memory))
        return {.program = bundled, .isSettled = true};
    const BundledScript script = bundledScriptOf(m_procFs, stat.pid, program.path);
    if (script.path) {
        if (Pointer bundled = identifyBundled(*script.path, false, memory))
            return {.program = bundled, .isSettled = false};
    }
    const QString path = decoded(program.path);
    const QString fileName = QFileInfo(path).fileName();
    const Program plain{.name = cutToRecord(fileName),
                        .signature = noSignature,
                        .location = path,
                        .isInBundle = false,
                        .information = {}};
    return {.program = std::make_shared<const Program>(plain),
            .isSettled = script.isFinal && !isInterpreterName(fileName.toStdString())};
}

ProcPrograms::Pointer ProcPrograms::identifyBundled(const std::string &path, bool isDeleted,
                                                    Memory *memory) const {
    const std::string_view folder = innermostBundlePath(path);
    if (folder.empty())
        return nullptr;
    const std::string key(folder);
    if (memory && memory->contains(key))
        return memory->at(key);
    Pointer program;
    if (const std::optional<Bundle> bundle = m_bundles.bundleEnclosing(decoded(path))) {
        program = std::make_shared<const Program>(programOfBundle(*bundle));
    } else if (isDeleted) {
        // The bundle went together with its program. Its name is all that is left of it.
        const QString location = decoded(folder);
        const Program gone{.name = cutToRecord(QFileInfo(location).completeBaseName()),
                           .signature = noSignature,
                           .location = location,
                           .isInBundle = true,
                           .information = {}};
        return std::make_shared<const Program>(gone);
    }
    if (memory)
        memory->emplace(key, program);
    return program;
}

// The process goes on running what it was started from, whatever stands at that place now: only the
// location is another.
ProcPrograms::Pointer ProcPrograms::afterMove(const Program &before,
                                              const std::string &path) const {
    Program moved = before;
    moved.location = locationOf(path);
    return std::make_shared<const Program>(std::move(moved));
}

QString ProcPrograms::locationOf(const std::string &path) const {
    if (const std::optional<Bundle> bundle = m_bundles.bundleEnclosing(decoded(path)))
        return bundle->path();
    const std::string_view folder = innermostBundlePath(path);
    return decoded(folder.empty() ? std::string_view(path) : folder);
}

void ProcPrograms::remember(std::int32_t pid, Known known) {
    const std::scoped_lock lock(m_mutex);
    m_known.insert_or_assign(pid, std::move(known));
    if (m_known.size() > m_sizeToClean)
        forgetEnded();
}

// The caller holds the mutex. What has ended is looked for each time the number has doubled, so
// that remembering one costs the same however many there are.
void ProcPrograms::forgetEnded() {
    std::erase_if(m_known, [this](const auto &entry) {
        const std::optional<ProcStat> stat = m_procFs.stat(entry.first);
        return !stat || stat->startTicks != entry.second.startTicks;
    });
    m_sizeToClean = std::max<std::size_t>(1024, 2 * m_known.size());
}

} // namespace zt
