// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/LogLine.h"

#include "Platform/posix/SystemCalls.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace zt {

namespace {

// What stands for a control character that is one byte.
void appendEscaped(std::string &line, unsigned char character) {
    switch (character) {
    case '\n':
        line += "\\n";
        return;
    case '\r':
        line += "\\r";
        return;
    case '\t':
        line += "\\t";
        return;
    default:
        break;
    }
    std::array<char, 8> text = {};
    std::snprintf(text.data(), text.size(), "\\x%02x", static_cast<unsigned>(character));
    line += text.data();
}

struct EncodedControl {
    std::size_t length = 0; // in bytes; 0 when the text does not begin with such a character
    unsigned scalar = 0;
};

// The control characters and line separators that UTF-8 writes in more than one byte.
EncodedControl longControlAtStart(std::string_view text) {
    const auto byteAt = [&](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    if (byteAt(0) == 0xC2 && byteAt(1) >= 0x80 && byteAt(1) <= 0x9F)
        return {2, byteAt(1)};
    if (byteAt(0) == 0xE2 && byteAt(1) == 0x80 && (byteAt(2) == 0xA8 || byteAt(2) == 0xA9))
        return {3, 0x2000 + (byteAt(2) - 0x80)};
    return {};
}

void appendMessage(std::string &line, std::string_view message) {
    while (!message.empty()) {
        const auto character = static_cast<unsigned char>(message.front());
        if (const EncodedControl control = longControlAtStart(message); control.length != 0) {
            std::array<char, 8> text = {};
            std::snprintf(text.data(), text.size(), "\\u%04x", control.scalar);
            line += text.data();
            message.remove_prefix(control.length);
            continue;
        }
        if (character < 0x20 || character == 0x7F) {
            appendEscaped(line, character);
        } else {
            line += message.front();
        }
        message.remove_prefix(1);
    }
}

} // namespace

std::string escapedLogMessage(std::string_view message) {
    std::string line;
    appendMessage(line, message);
    return line;
}

std::string formatLogLine(std::chrono::system_clock::time_point time, std::string_view programName,
                          pid_t processId, std::string_view message) {
    // Rounded down, so that times before 1970 have a sensible number of milliseconds too.
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(time);
    const auto seconds = std::chrono::floor<std::chrono::seconds>(milliseconds);
    const std::time_t secondsCount = std::chrono::system_clock::to_time_t(seconds);
    std::tm local = {};
    ::localtime_r(&secondsCount, &local);
    std::array<char, 64> date = {};
    std::strftime(date.data(), date.size(), "%Y-%m-%d %H:%M:%S", &local);
    std::array<char, 16> fraction = {};
    std::snprintf(fraction.data(), fraction.size(), ".%03d ",
                  static_cast<int>((milliseconds - seconds).count()));

    std::string line = date.data();
    line += fraction.data();
    appendMessage(line, programName);
    line += '[' + std::to_string(processId) + "] ";
    appendMessage(line, message);
    return line;
}

std::string writeLogLine(std::string_view message) {
    const int saved = errno;
    std::string line =
        formatLogLine(std::chrono::system_clock::now(), programName(), ::getpid(), message);
    line += '\n';
    // A remainder after a short write is dropped: completing it later could mix two lines.
    static_cast<void>(
        retryInterrupted([&] { return ::write(STDERR_FILENO, line.data(), line.size()); }));
    errno = saved;
    line.pop_back();
    return line;
}

} // namespace zt
