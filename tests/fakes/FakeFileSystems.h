#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Volumes for unit tests.

#include "Platform/FileSystems.h"

#include <QMap>

#include <atomic>

// Knows the items that the test puts in.
class FakeFileSystems final : public zt::FileSystems {
public:
    zt::Result<QString> typeNameFor(const QString &path) const override {
        const auto found = typeNames.constFind(path);
        if (found == typeNames.cend())
            return zt::Error::fromErrno("statfs", path.toStdString(), ENOENT);
        return *found;
    }

    zt::Result<std::uint64_t> availableBytesFor(const QString &path) const override {
        ++spaceQuestions;
        const auto found = availableBytes.constFind(path);
        if (found == availableBytes.cend())
            return zt::Error::fromErrno("statvfs", path.toStdString(), ENOENT);
        return *found;
    }

    QMap<QString, QString> typeNames;            // by path
    QMap<QString, std::uint64_t> availableBytes; // by path
    mutable std::atomic<int> spaceQuestions = 0; // how often somebody asked for them
};
