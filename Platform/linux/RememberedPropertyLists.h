#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Reading the same property lists again and again.

#include "Platform/PropertyList.h"

#include <QHash>
#include <QString>

#include <sys/stat.h>

#include <ctime>
#include <functional>
#include <mutex>

namespace zt {

// Reads property lists, and takes one that was read before from memory as long as its file is the
// same and unchanged. A file that changed only a moment ago is read each time: it may change once
// more without showing it. Thread: any.
class RememberedPropertyLists {
public:
    // `now` answers the time in seconds since 1970.
    explicit RememberedPropertyLists(std::function<std::time_t()> now = currentTime);

    // As readPropertyList().
    Result<QVariant> read(const QString &path);

private:
    struct Remembered {
        struct stat status;
        QVariant content;
    };

    static std::time_t currentTime() { return std::time(nullptr); }

    const std::function<std::time_t()> m_now;
    std::mutex m_mutex;
    QHash<QString, Remembered> m_remembered;
};

} // namespace zt
