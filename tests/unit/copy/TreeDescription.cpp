// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/TreeDescription.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <utility>

namespace zt::testing {

namespace {

class Description {
public:
    explicit Description(std::string root) : m_root(std::move(root)) {}

    std::vector<std::string> make() {
        collect(m_root);
        std::sort(m_paths.begin(), m_paths.end());
        std::vector<std::string> lines;
        for (const std::string &path : m_paths)
            lines.push_back(describe(path));
        return lines;
    }

private:
    void collect(const std::string &path) {
        m_paths.push_back(path);
        struct stat status = {};
        if (::lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
            return;
        DIR *folder = ::opendir(path.c_str());
        if (!folder) {
            m_paths.push_back(path + "/<unreadable>");
            return;
        }
        std::vector<std::string> names;
        while (const dirent *entry = ::readdir(folder))
            names.emplace_back(entry->d_name);
        ::closedir(folder);
        for (const std::string &name : names) {
            if (name != "." && name != "..")
                collect(std::string(path).append(1, '/').append(name));
        }
    }

    static std::string attributes(const std::string &path) {
        std::string names(65536, '\0');
        const ssize_t size = ::llistxattr(path.c_str(), names.data(), names.size());
        names.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        std::map<std::string, std::string> values;
        for (std::size_t place = 0; place < names.size();) {
            const std::string name = names.c_str() + place;
            place += name.size() + 1;
            std::string value(65536, '\0');
            const ssize_t length =
                ::lgetxattr(path.c_str(), name.c_str(), value.data(), value.size());
            value.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
            values[name] = value;
        }
        std::ostringstream text;
        for (const auto &[name, value] : values) {
            text << ' ' << name << '=';
            for (const char byte : value)
                text << std::hex << static_cast<unsigned>(static_cast<unsigned char>(byte)) << ',';
        }
        return text.str();
    }

    static std::string content(const std::string &path) {
        std::uint64_t sum = 14695981039346656037U; // FNV-1a
        std::ifstream file(path, std::ios::binary);
        std::string part(1 << 16, '\0');
        while (file.read(part.data(), static_cast<std::streamsize>(part.size())),
               file.gcount() > 0) {
            for (std::streamsize i = 0; i < file.gcount(); ++i) {
                sum ^= static_cast<unsigned char>(part[static_cast<std::size_t>(i)]);
                sum *= 1099511628211U;
            }
        }
        return dataSegments(path) + " sum " + std::to_string(sum);
    }

    std::string describe(const std::string &path) {
        struct stat status = {};
        if (::lstat(path.c_str(), &status) != 0)
            return path.substr(m_root.size()) + " missing";
        std::ostringstream line;
        line << path.substr(m_root.size()) << " mode " << std::oct << status.st_mode << std::dec
             << " owner " << status.st_uid << ':' << status.st_gid << " time "
             << status.st_mtim.tv_sec << '.' << status.st_mtim.tv_nsec << attributes(path);
        if (S_ISLNK(status.st_mode)) {
            std::string text(4096, '\0');
            const ssize_t size = ::readlink(path.c_str(), text.data(), text.size());
            line << " -> " << text.substr(0, static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
        }
        if (S_ISREG(status.st_mode))
            line << ' ' << content(path);
        if (!S_ISDIR(status.st_mode) && status.st_nlink > 1) {
            const std::string first =
                m_firstNames.emplace(status.st_ino, path.substr(m_root.size())).first->second;
            line << " same as " << first;
        }
        return line.str();
    }

    std::string m_root;
    std::vector<std::string> m_paths;
    std::map<ino_t, std::string> m_firstNames;
};

} // namespace

std::string dataSegments(const std::string &file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return "<unreadable>";
    const off_t size = ::lseek(descriptor, 0, SEEK_END);
    std::string text;
    for (off_t position = 0; position < size;) {
        const off_t data = ::lseek(descriptor, position, SEEK_DATA);
        if (data < 0)
            break;
        position = ::lseek(descriptor, data, SEEK_HOLE);
        text += std::to_string(data) + '-' + std::to_string(position) + ' ';
    }
    ::close(descriptor);
    return text + "of " + std::to_string(size);
}

std::vector<std::string> describeTree(const std::string &root) {
    return Description(root).make();
}

} // namespace zt::testing
