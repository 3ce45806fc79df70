#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every implementation of the file systems does. A case has `fileSystems`, and the `path` of
// an item whose file system is known to be called `typeName` and to have `availableBytes` left.

#include "Platform/FileSystems.h"

#include <QString>

#include <gtest/gtest.h>

#include <cerrno>

template <typename Case>
class FileSystemsContractTest : public testing::Test {
protected:
    Case implementation;
};

TYPED_TEST_SUITE_P(FileSystemsContractTest);

TYPED_TEST_P(FileSystemsContractTest, theTypeHasTheSystemsName) {
    const auto type = this->implementation.fileSystems.typeNameFor(this->implementation.path);
    ASSERT_TRUE(type);
    EXPECT_EQ(*type, this->implementation.typeName);
}

TYPED_TEST_P(FileSystemsContractTest, aMissingItemIsAFailure) {
    for (const QString &path : {QStringLiteral("/there/is/no/such/item"), QString()}) {
        const auto type = this->implementation.fileSystems.typeNameFor(path);
        ASSERT_FALSE(type) << path.toStdString();
        EXPECT_EQ(type.error().code, ENOENT);
        const auto space = this->implementation.fileSystems.availableBytesFor(path);
        ASSERT_FALSE(space) << path.toStdString();
        EXPECT_EQ(space.error().code, ENOENT);
    }
}

TYPED_TEST_P(FileSystemsContractTest, theSpaceOfAVolumeIsKnown) {
    const auto space =
        this->implementation.fileSystems.availableBytesFor(this->implementation.path);
    ASSERT_TRUE(space);
    EXPECT_EQ(*space, this->implementation.availableBytes);
}

REGISTER_TYPED_TEST_SUITE_P(FileSystemsContractTest, theTypeHasTheSystemsName,
                            aMissingItemIsAFailure, theSpaceOfAVolumeIsKnown);
