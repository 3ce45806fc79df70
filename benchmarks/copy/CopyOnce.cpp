// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// One copy, made in a process of its own so that its time and memory can be measured from outside:
// copy_once durable|relaxed|standard SOURCE TARGET. "standard" is what the C++ library offers.

#include "Platform/posix/StagedCopy.h"
#include "Platform/posix/SystemCalls.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

int fail(const std::string &reason) {
    std::fprintf(stderr, "copy_once: %s\n", reason.c_str());
    return EXIT_FAILURE;
}

// As a product gets to its place: hidden first, then under its name.
int copyStaged(const std::string &source, const std::string &target, zt::Durability durability) {
    const std::size_t slash = target.rfind('/');
    const zt::UniqueFd folder =
        zt::openAt(AT_FDCWD, target.substr(0, slash).c_str(), O_RDONLY | O_DIRECTORY);
    if (!folder)
        return fail(target + ": its folder cannot be opened");
    const zt::ItemPlace place = {folder.get(), target.substr(slash + 1), target};
    zt::StagedCopySettings settings;
    settings.durability = durability;
    zt::Result<zt::StagedCopy> copy =
        zt::StagedCopy::make({AT_FDCWD, source, source}, place, settings);
    if (!copy)
        return fail(copy.error().text());
    const zt::Result<void> placed = copy->place(place);
    return placed ? EXIT_SUCCESS : fail(placed.error().text());
}

int copyStandard(const std::string &source, const std::string &target) {
    std::error_code error;
    std::filesystem::copy(source, target,
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::copy_symlinks,
                          error);
    return error ? fail(error.message()) : EXIT_SUCCESS;
}

} // namespace

int main(int count, char *arguments[]) {
    if (count != 4)
        return fail("wrong arguments");
    const std::string_view way = arguments[1];
    const std::string source = arguments[2];
    const std::string target = arguments[3];
    if (way == "standard")
        return copyStandard(source, target);
    return copyStaged(source, target,
                      way == "durable" ? zt::Durability::Durable : zt::Durability::Relaxed);
}
