// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/CopyVerification.h"

#include "Platform/posix/CopiedMetadata.h"
#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeWalk.h"

#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace zt {

namespace {

constexpr std::size_t bufferSize = std::size_t(64) * 1024;

// The units in which file systems keep times, in nanoseconds: from every one to two seconds.
constexpr std::array<std::int64_t, 7> timeUnits = {
    1, 100, 1000, 1'000'000, 10'000'000, 1'000'000'000, 2'000'000'000};

// More names than some file systems let a file have.
constexpr nlink_t manyNames = 60'000;

bool isSameTime(const timespec &original, const timespec &copy) {
    constexpr std::int64_t second = 1'000'000'000;
    const std::int64_t a = original.tv_sec * second + original.tv_nsec;
    const std::int64_t b = copy.tv_sec * second + copy.tv_nsec;
    return std::any_of(timeUnits.begin(), timeUnits.end(), [&](std::int64_t unit) {
        const std::int64_t rest = a % unit;
        return b == a - (rest < 0 ? rest + unit : rest);
    });
}

// Whether the file system knows files with several names; where that cannot be told, it counts as
// if not.
bool hasHardLinks(int folder) {
    struct statfs status = {};
    if (::fstatfs(folder, &status) != 0)
        return false;
    return status.f_type != MSDOS_SUPER_MAGIC && status.f_type != EXFAT_SUPER_MAGIC &&
           status.f_type != FUSE_SUPER_MAGIC;
}

class CopyVerifier final : public TreeVisitor {
public:
    explicit CopyVerifier(const CopyVerification &verification) : m_request(verification) {
        if (verification.readAs)
            m_writer = FileSystemIdentity::current();
    }

    Result<void> run();

    Result<void> enterFolder(TreeFolder &folder) override;
    Result<void> visitItem(TreeFolder &folder, const char *name, unsigned char type,
                           unsigned worker) override;
    Result<void> leaveFolder(TreeFolder &folder) override;

    std::optional<FileSystemIdentity> writer() const override { return m_writer; }

private:
    // An item by its name in two open folders.
    struct Pair {
        int source;
        const char *sourceName;
        int copy;
        const char *copyName;
        std::string sourcePath;
        std::string copyPath;
    };

    using Identity = std::pair<dev_t, ino_t>;

    Result<void> compareItem(const Pair &pair);
    Result<void> compareFile(const Pair &pair);
    Result<void> compareLink(const Pair &pair) const;
    Result<void> compareContent(const Pair &pair, int source, int copy) const;
    Result<void> compareStatus(const Pair &pair, const struct stat &source,
                               const struct stat &copy);
    Result<void> compareIdentity(const Pair &pair, const struct stat &source,
                                 const struct stat &copy);
    Result<void> compareAttributes(const Pair &pair, int source, int copy) const;
    Result<void> expectNothingElse(const TreeFolder &folder) const;
    std::string copyPath(const TreeFolder &folder) const;

    const CopyVerification &m_request;
    std::optional<FileSystemIdentity> m_writer;
    bool m_hasHardLinks = false; // set with the first folder, before all threads
    std::mutex m_mutex;
    std::map<Identity, Identity> m_copies; // of items that have several names
};

Error difference(const std::string &path, const char *what) {
    return {"verify", path, std::string("its ") + what + " is not that of the original", EBADMSG};
}

std::string CopyVerifier::copyPath(const TreeFolder &folder) const {
    return m_request.copy.path + folder.path().substr(m_request.source.path.size());
}

Result<void> CopyVerifier::compareIdentity(const Pair &pair, const struct stat &source,
                                           const struct stat &copy) {
    if (S_ISDIR(source.st_mode) || source.st_nlink < 2 || !m_hasHardLinks)
        return {};
    const std::lock_guard lock(m_mutex);
    const Identity identity(copy.st_dev, copy.st_ino);
    const Identity first =
        m_copies.try_emplace(Identity(source.st_dev, source.st_ino), identity).first->second;
    // A file cannot have any number of names; past that, further copies are begun.
    if (first != identity && source.st_nlink < manyNames)
        return difference(pair.copyPath, "file");
    return {};
}

Result<void> CopyVerifier::compareStatus(const Pair &pair, const struct stat &source,
                                         const struct stat &copy) {
    if ((source.st_mode & S_IFMT) != (copy.st_mode & S_IFMT))
        return difference(pair.copyPath, "kind");
    // The size of a link is not told alike everywhere; its text is compared.
    if (S_ISREG(source.st_mode) && source.st_size != copy.st_size)
        return difference(pair.copyPath, "size");
    const bool isLink = S_ISLNK(source.st_mode);
    if (!isLink && !CopiedMetadata::isModeOfCopy(source, copy, m_request.rights))
        return difference(pair.copyPath, "mode");
    if (!isSameTime(source.st_mtim, copy.st_mtim))
        return difference(pair.copyPath, "time");
    return compareIdentity(pair, source, copy);
}

Result<void> CopyVerifier::compareAttributes(const Pair &pair, int source, int copy) const {
    const Result<std::string> differing =
        CopiedMetadata::differingAttribute(source, copy, m_request.rights, m_writer);
    if (!differing)
        return Error{"verify", pair.copyPath, differing.error().cause, differing.error().code};
    if (!differing->empty())
        return difference(pair.copyPath, ("attribute " + *differing).c_str());
    return {};
}

Result<void> CopyVerifier::compareContent(const Pair &pair, int source, int copy) const {
    static_cast<void>(::posix_fadvise(source, 0, 0, POSIX_FADV_DONTNEED));
    static_cast<void>(::posix_fadvise(copy, 0, 0, POSIX_FADV_DONTNEED));
    const auto buffer = std::make_unique<std::array<char, 2 * bufferSize>>();
    char *const ofSource = buffer->data();
    char *const ofCopy = buffer->data() + bufferSize;
    for (;;) {
        if (m_request.stop.stop_requested())
            return stoppedError(pair.sourcePath);
        const ssize_t sourceCount = readFully(source, ofSource, bufferSize);
        if (sourceCount < 0)
            return Error::fromErrno("read", pair.sourcePath);
        const ssize_t copyCount = readFully(copy, ofCopy, bufferSize);
        if (copyCount < 0)
            return Error::fromErrno("read", pair.copyPath);
        const auto size = static_cast<std::size_t>(sourceCount);
        if (sourceCount != copyCount || std::memcmp(ofSource, ofCopy, size) != 0)
            return difference(pair.copyPath, "content");
        if (size < bufferSize)
            return {};
    }
}

Result<void> CopyVerifier::compareFile(const Pair &pair) {
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const UniqueFd source = openAt(pair.source, pair.sourceName, flags);
    if (!source)
        return Error::fromErrno("open", pair.sourcePath);
    UniqueFd copy;
    {
        const ActingAs writing(m_writer);
        copy = openAt(pair.copy, pair.copyName, flags);
    }
    if (!copy)
        return Error::fromErrno("open", pair.copyPath);
    const std::optional<struct stat> sourceStatus = statusOf(source.get());
    const std::optional<struct stat> copyStatus = statusOf(copy.get());
    if (!sourceStatus || !copyStatus)
        return Error::fromErrno("examine", sourceStatus ? pair.copyPath : pair.sourcePath);
    if (Result<void> same = compareStatus(pair, *sourceStatus, *copyStatus); !same)
        return same;
    if (Result<void> same = compareAttributes(pair, source.get(), copy.get()); !same)
        return same;
    return compareContent(pair, source.get(), copy.get());
}

Result<void> CopyVerifier::compareLink(const Pair &pair) const {
    std::array<char, PATH_MAX> ofSource;
    std::array<char, PATH_MAX> ofCopy;
    const ssize_t size =
        ::readlinkat(pair.source, pair.sourceName, ofSource.data(), ofSource.size());
    if (size < 0)
        return Error::fromErrno("read", pair.sourcePath);
    const ActingAs writing(m_writer);
    if (::readlinkat(pair.copy, pair.copyName, ofCopy.data(), ofCopy.size()) != size ||
        std::memcmp(ofSource.data(), ofCopy.data(), static_cast<std::size_t>(size)) != 0)
        return difference(pair.copyPath, "text");
    return {};
}

Result<void> CopyVerifier::compareItem(const Pair &pair) {
    const std::optional<struct stat> source = statusAt(pair.source, pair.sourceName);
    if (!source)
        return Error::fromErrno("examine", pair.sourcePath);
    std::optional<struct stat> copy;
    {
        const ActingAs writing(m_writer);
        copy = statusAt(pair.copy, pair.copyName);
    }
    if (!copy)
        return Error::fromErrno("examine", pair.copyPath);
    // The kind comes first: nothing else than a file or a link is opened.
    if (Result<void> same = compareStatus(pair, *source, *copy); !same)
        return same;
    if (S_ISLNK(source->st_mode))
        return compareLink(pair);
    return S_ISREG(source->st_mode) ? compareFile(pair)
                                    : Result<void>(difference(pair.copyPath, "kind"));
}

Result<void> CopyVerifier::enterFolder(TreeFolder &folder) {
    const ActingAs writing(m_writer);
    const int parent = folder.parent ? folder.parent->target.get() : m_request.copy.folder;
    const std::string &name = folder.parent ? folder.name : m_request.copy.name;
    folder.target = openAt(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (!folder.target)
        return Error::fromErrno("open", copyPath(folder));
    if (!folder.parent)
        m_hasHardLinks = hasHardLinks(folder.target.get());
    return {};
}

Result<void> CopyVerifier::visitItem(TreeFolder &folder, const char *name, unsigned char /*type*/,
                                     unsigned /*worker*/) {
    return compareItem({folder.source.get(), name, folder.target.get(), name, folder.path(name),
                        copyPath(folder) + '/' + name});
}

// All of the source's names have been found in the copy by now.
Result<void> CopyVerifier::expectNothingElse(const TreeFolder &folder) const {
    const ActingAs writing(m_writer);
    alignas(std::uint64_t) std::array<std::byte, 16384> buffer;
    // Opened anew, for a position of its own.
    const UniqueFd listed = openAt(folder.target.get(), ".", O_RDONLY | O_DIRECTORY);
    if (!listed)
        return Error::fromErrno("open", copyPath(folder));
    DirectoryReader reader(listed.get(), buffer);
    while (const DirectoryReader::Entry *entry = reader.next()) {
        if (!statusAt(folder.source.get(), entry->name))
            return difference(copyPath(folder) + '/' + entry->name, "name");
    }
    if (reader.error() != 0)
        return Error::fromErrno("read", copyPath(folder), reader.error());
    return {};
}

Result<void> CopyVerifier::leaveFolder(TreeFolder &folder) {
    const Pair pair = {-1, nullptr, -1, nullptr, folder.path(), copyPath(folder)};
    const std::optional<struct stat> copy = statusOf(folder.target.get());
    if (!copy)
        return Error::fromErrno("examine", pair.copyPath);
    if (Result<void> same = compareStatus(pair, folder.status, *copy); !same)
        return same;
    if (Result<void> same = compareAttributes(pair, folder.source.get(), folder.target.get());
        !same)
        return same;
    return expectNothingElse(folder);
}

Result<void> CopyVerifier::run() {
    const ItemPlace &source = m_request.source;
    const ItemPlace &copy = m_request.copy;
    const ActingAs reading(m_request.readAs);
    const std::optional<struct stat> status = statusAt(source.folder, source.name.c_str());
    if (!status)
        return Error::fromErrno("find", source.path);
    if (!S_ISDIR(status->st_mode)) {
        return compareItem({source.folder, source.name.c_str(), copy.folder, copy.name.c_str(),
                            source.path, copy.path});
    }
    UniqueFd folder =
        openAt(source.folder, source.name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (!folder)
        return Error::fromErrno("open", source.path);
    return walkTree(std::move(folder), source.path, *this, m_request.stop);
}

} // namespace

Result<void> verifyCopy(const CopyVerification &verification) {
    return CopyVerifier(verification).run();
}

} // namespace zt
