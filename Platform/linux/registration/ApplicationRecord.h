#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the desktop is told of an installed application. It travels from the installer, which can
// read bundles and pictures, to the privileged tool, which can do neither and trusts nobody.

#include "Platform/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace zt {

struct ApplicationRecord {
    struct Name {
        std::string locale; // as in "de_AT"; empty for the name that stands for all others
        std::string text;
    };

    // A type of files that nobody else has described yet.
    struct FileType {
        std::string mimeType;
        std::string description;
        std::vector<std::string> suffixes; // without a dot
    };

    struct Icon {
        static constexpr unsigned scalable = 0;
        unsigned size = scalable; // width and height in pixels
        std::string content;      // PNG; SVG for a scalable one
    };

    std::string identifier;              // names the entry: letters, digits, ".", "-" and "_"
    std::string bundlePath;              // absolute
    std::string executable;              // relative to the bundle
    std::vector<Name> names;             // the one without a locale among them
    std::vector<std::string> categories; // as desktop menus name them
    std::vector<std::string> mimeTypes;  // that it opens; addresses are "x-scheme-handler/..."
    std::vector<FileType> newFileTypes;
    std::vector<Icon> icons;
    bool isBackgroundOnly = false; // stays out of menus
};

// The sizes that icons may have, in pixels, beside scalable ones.
inline constexpr unsigned iconSizes[] = {16, 24, 32, 48, 64, 128, 256, 512};

// No larger record is taken from anybody, in bytes.
inline constexpr std::size_t maximumRecordSize = std::size_t(8) << 20;

// Whether the record can be written without harm: it stays within its own names and has no control
// characters in what becomes lines of text. Thread: any, as for all that follow.
Result<void> checkRecord(const ApplicationRecord &record);

// The record as bytes, and back. Reading fails on anything malformed or unacceptable.
std::string packedRecord(const ApplicationRecord &record);
Result<ApplicationRecord> parseRecord(std::string_view bytes);

} // namespace zt
