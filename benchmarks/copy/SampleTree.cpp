// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/copy/SampleTree.h"

#include "Platform/posix/SystemCalls.h"

#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string_view>
#include <thread>

namespace zt {

namespace {

constexpr int folderCount = 3000;
constexpr int fileCount = 20'000;
constexpr int linkCount = 500;
constexpr double medianSize = 4096;
constexpr double bytesInAll = 400e6;
constexpr std::uint64_t largestSize = 16'000'000;
constexpr std::size_t deepest = 9;

// What is written at a time; more at once takes longer on ext4.
constexpr std::size_t partSize = std::size_t(64) << 10;

// Bytes that no file system can store in less room.
std::string randomBytes() {
    std::mt19937_64 random(1); // NOLINT(cert-msc51-cpp): the same bytes in each run
    std::string bytes;
    while (bytes.size() < partSize) {
        const std::uint64_t number = random();
        bytes.append(reinterpret_cast<const char *>(&number), sizeof number); // NOLINT
    }
    return bytes;
}

[[noreturn]] void endWith(const std::string &path) {
    std::perror(path.c_str());
    std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe)
}

void writeOrEnd(const std::string &path, std::uint64_t size, mode_t mode,
                const std::string &bytes) {
    const UniqueFd file = openAt(AT_FDCWD, path.c_str(), O_WRONLY | O_CREAT | O_EXCL, mode);
    if (!file)
        endWith(path);
    for (std::uint64_t left = size; left > 0;) {
        const std::size_t part = std::min<std::uint64_t>(left, bytes.size());
        if (!writeFully(file.get(), std::string_view(bytes).substr(0, part)))
            endWith(path);
        left -= part;
    }
}

bool writeInParts(const std::string &path, std::string_view bytes) {
    const UniqueFd file = openAt(AT_FDCWD, path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
    bool succeeded = static_cast<bool>(file);
    for (; succeeded && !bytes.empty(); bytes.remove_prefix(std::min(partSize, bytes.size())))
        succeeded = writeFully(file.get(), bytes.substr(0, partSize));
    return succeeded;
}

// Sizes with the median and the sum that are asked for. The wider they are spread, the larger is
// their sum, so that the spread can be found by halving.
std::vector<std::uint64_t> fileSizes() {
    std::mt19937 random(2); // NOLINT(cert-msc51-cpp): the same sizes in each run
    std::normal_distribution<double> normal;
    std::vector<double> deviations(fileCount);
    std::generate(deviations.begin(), deviations.end(), [&] { return normal(random); });
    std::vector<std::uint64_t> sizes(fileCount);
    double narrow = 0.5;
    double wide = 4;
    for (int step = 0; step < 40; ++step) {
        const double spread = (narrow + wide) / 2;
        double sum = 0;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            const double size = medianSize * std::exp(spread * deviations[i]);
            sizes[i] = std::min(largestSize, static_cast<std::uint64_t>(size));
            sum += static_cast<double>(sizes[i]);
        }
        (sum < bytesInAll ? narrow : wide) = spread;
    }
    return sizes;
}

} // namespace

void makeSmallFiles(const std::string &path) {
    const std::string bytes = randomBytes();
    std::mt19937 random(3); // NOLINT(cert-msc51-cpp): the same tree in each run
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    std::vector<std::string> folders = {path};
    std::filesystem::create_directory(path);
    while (folders.size() < folderCount) {
        const std::string &parent = folders[below(folders.size())];
        if (std::count(parent.begin() + static_cast<std::ptrdiff_t>(path.size()), parent.end(),
                       '/') >= static_cast<std::ptrdiff_t>(deepest))
            continue;
        std::string folder = parent + "/folder-" + std::to_string(folders.size());
        std::filesystem::create_directory(folder);
        folders.push_back(std::move(folder));
    }
    int number = 0;
    for (const std::uint64_t size : fileSizes()) {
        const std::string name = "/file-" + std::to_string(++number) + ".data";
        writeOrEnd(folders[below(folders.size())] + name, size, number % 10 == 0 ? 0755 : 0644,
                   bytes);
    }
    for (number = 0; number < linkCount; ++number) {
        std::filesystem::create_symlink("../file-" + std::to_string(number) + ".data",
                                        folders[below(folders.size())] + "/link-" +
                                            std::to_string(number));
    }
}

void makeLargeFiles(const std::string &path, std::uint64_t smallest) {
    const std::string bytes = randomBytes();
    std::filesystem::create_directory(path);
    for (std::uint64_t i = 0; i < 6; ++i)
        writeOrEnd(path + "/large-" + std::to_string(i), smallest + smallest * i / 3, 0644, bytes);
}

TreeList listTree(const std::string &path) {
    TreeList list;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path)) {
        std::string name = entry.path().string().substr(path.size());
        if (entry.is_symlink())
            continue;
        if (entry.is_directory()) {
            list.folders.push_back(std::move(name));
        } else if (entry.is_regular_file()) {
            list.files.push_back({std::move(name), entry.file_size()});
            list.bytes += entry.file_size();
        }
    }
    return list;
}

std::vector<std::string> contentsOf(const std::string &path, const TreeList &list) {
    std::vector<std::string> contents;
    contents.reserve(list.files.size());
    for (const TreeList::File &file : list.files) {
        std::string &bytes = contents.emplace_back(file.size, '\0');
        const UniqueFd source = openAt(AT_FDCWD, (path + file.path).c_str(), O_RDONLY);
        if (!source || readFully(source.get(), bytes.data(), bytes.size()) !=
                           static_cast<ssize_t>(bytes.size()))
            endWith(path + file.path);
    }
    return contents;
}

bool writeSameBytes(const TreeList &list, const std::vector<std::string> &contents,
                    const std::string &target) {
    if (::mkdir(target.c_str(), 0755) != 0)
        return false;
    for (const std::string &folder : list.folders) {
        if (::mkdir((target + folder).c_str(), 0755) != 0)
            return false;
    }
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> succeeded = true;
    const auto work = [&] {
        // A few at a time, so that the two seldom work in one folder.
        constexpr std::size_t few = 32;
        const std::size_t step = list.files.size() < 4 * few ? 1 : few;
        for (std::size_t begin = 0; (begin = next.fetch_add(step)) < list.files.size();) {
            const std::size_t end = std::min(begin + step, list.files.size());
            for (std::size_t i = begin; i < end; ++i) {
                if (!writeInParts(target + list.files[i].path, contents[i]))
                    succeeded = false;
            }
        }
    };
    std::thread other(work);
    work();
    other.join();
    return succeeded;
}

} // namespace zt
