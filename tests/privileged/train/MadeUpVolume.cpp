// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/privileged/train/MadeUpVolume.h"

#include <csignal>
#include <fcntl.h>
#include <linux/fuse.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace zt::testing {

namespace {

constexpr std::size_t largestRequest = std::size_t(256) * 1024;

// Answers the kernel's questions about the volume, one after the other.
class Server {
public:
    explicit Server(int device) : m_device(device), m_request(largestRequest) {}

    [[noreturn]] void run() {
        for (;;) {
            if (::read(m_device, m_request.data(), m_request.size()) <= 0)
                ::_exit(0);
            std::memcpy(&m_header, m_request.data(), sizeof m_header);
            answer();
        }
    }

private:
    void answer() {
        switch (m_header.opcode) {
        case FUSE_INIT:
            return answerInit();
        case FUSE_GETATTR:
            return answerAttributes();
        case FUSE_STATFS:
            return reply(fuse_statfs_out());
        case FUSE_OPENDIR:
            return reply(fuse_open_out());
        case FUSE_READDIR:
        case FUSE_RELEASEDIR:
            return reply(0, nullptr, 0);
        case FUSE_LOOKUP:
            return reply(-ENOENT, nullptr, 0);
        case FUSE_FORGET:
        case FUSE_BATCH_FORGET:
        case FUSE_INTERRUPT:
            return; // no answer is expected
        default:
            return reply(-ENOSYS, nullptr, 0);
        }
    }

    void answerInit() {
        fuse_init_out out = {};
        out.major = FUSE_KERNEL_VERSION;
        out.minor = FUSE_KERNEL_MINOR_VERSION;
        out.max_write = 4096;
        reply(out);
    }

    void answerAttributes() {
        fuse_attr_out out = {};
        out.attr.ino = FUSE_ROOT_ID;
        out.attr.mode = S_IFDIR | 0755;
        out.attr.nlink = 2;
        reply(out);
    }

    template <typename Answer>
    void reply(const Answer &answer) {
        reply(0, &answer, sizeof answer);
    }

    void reply(int error, const void *content, std::size_t size) {
        fuse_out_header header = {};
        header.len = static_cast<std::uint32_t>(sizeof header + size);
        header.error = error;
        header.unique = m_header.unique;
        const std::array<iovec, 2> parts = {iovec{&header, sizeof header},
                                            iovec{const_cast<void *>(content), size}};
        static_cast<void>(::writev(m_device, parts.data(), 2));
    }

    int m_device;
    std::vector<char> m_request;
    fuse_in_header m_header = {};
};

} // namespace

MadeUpVolume::MadeUpVolume(std::string folder) : m_folder(std::move(folder)) {
    const int device = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
    if (device < 0)
        return;
    const std::string options =
        "fd=" + std::to_string(device) + ",rootmode=40000,user_id=0,group_id=0,allow_other";
    if (::mount("made-up", m_folder.c_str(), "fuse", MS_NOSUID | MS_NODEV, options.c_str()) == 0) {
        m_pid = ::fork();
        if (m_pid == 0)
            Server(device).run();
    }
    ::close(device);
}

MadeUpVolume::~MadeUpVolume() {
    if (m_pid <= 0)
        return;
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
    ::umount2(m_folder.c_str(), MNT_DETACH);
}

} // namespace zt::testing
