#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Resource forks made for tests.

#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"

#include <QByteArray>
#include <QList>

#include <cstdint>

struct TestResource {
    FourCharCode type = 0;
    std::int16_t number = 0;
    QByteArray data;
    std::uint8_t attributes = 0;
};

// A fork with these resources; those of one type stand together.
QByteArray makeResourceFork(const QList<TestResource> &resources);

// An AppleDouble file with the fork, behind an entry of another kind.
QByteArray makeAppleDouble(const QByteArray &fork);
