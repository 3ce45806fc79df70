#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How far the copy has come, in words for a terminal or for a record of the run.

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>

class ProgressLines {
public:
    enum class Target {
        Terminal, // one line that is written anew
        Record,   // a line for each tenth
    };

    // `write` gets bytes as they are to be written.
    ProgressLines(QString productName, Target target,
                  std::function<void(const QByteArray &)> write);

    void show(std::uint64_t bytesDone, std::uint64_t bytesInAll);

    // Nothing more is to come: what follows begins on a line of its own.
    void end();

private:
    QByteArray line(int percent) const;

    QString m_productName;
    Target m_target;
    std::function<void(const QByteArray &)> m_write;
    int m_shown = -1; // per cent
};
