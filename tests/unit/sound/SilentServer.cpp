// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/sound/SilentServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>

SilentServer::SilentServer(Manner manner) : m_before(qgetenv("PULSE_SERVER")) {
    const QByteArray path = m_folder.filePath(QStringLiteral("socket")).toLocal8Bit();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::ranges::copy(path, address.sun_path);
    m_socket.reset(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    EXPECT_EQ(::bind(m_socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address),
              0);
    EXPECT_EQ(::listen(m_socket.get(), 8), 0);
    qputenv("PULSE_SERVER", "unix:" + path);
    m_thread = std::jthread([this, manner] { serve(manner); });
}

SilentServer::~SilentServer() {
    qputenv("PULSE_SERVER", m_before);
    ::shutdown(m_socket.get(), SHUT_RDWR); // ends accept()
}

void SilentServer::serve(Manner manner) {
    std::vector<zt::UniqueFd> connections;
    for (;;) {
        zt::UniqueFd connection(::accept(m_socket.get(), nullptr, nullptr));
        if (!connection)
            return;
        if (manner == Manner::HangsUp)
            continue;
        if (manner == Manner::TalksNonsense) {
            constexpr std::string_view nonsense = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n";
            [[maybe_unused]] const ssize_t sent =
                ::send(connection.get(), nonsense.data(), nonsense.size(), MSG_NOSIGNAL);
        }
        connections.push_back(std::move(connection));
    }
}
