// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/FileAttributes.h"
#include "Platform/macos/FileReference.h"
#include "Platform/macos/VolumeFileSystems.h"

#include "tests/unit/macos/StandInTest.h"

using namespace Qt::StringLiterals;

class AliasFileTest : public StandInTest {};

TEST_F(AliasFileTest, anAliasLeadsToTheEndOfItsChain) {
    standin::files.aliases = {{u"/a"_s, u"/Applications/Sample.app"_s}};
    EXPECT_EQ(zt::targetOfAliasFile(u"/a"_s), u"/Applications/Sample.app"_s);
}

TEST_F(AliasFileTest, everythingElseHasNoTarget) {
    standin::files.aliases = {{u"/broken"_s, QString()}};
    standin::files.missing = {u"/missing"_s};
    EXPECT_EQ(zt::targetOfAliasFile(u"/ordinary"_s), std::nullopt);
    EXPECT_EQ(zt::targetOfAliasFile(u"/broken"_s), std::nullopt);
    EXPECT_EQ(zt::targetOfAliasFile(u"/missing"_s), std::nullopt);
    EXPECT_EQ(zt::targetOfAliasFile(QString()), std::nullopt);
}

class FileResourceTest : public StandInTest {
protected:
    static constexpr std::uint32_t vers = 0x76657273;
};

TEST_F(FileResourceTest, aResourceIsReadFromItsFile) {
    standin::files.resources = {{u"/old"_s, {{u"vers 1"_s, QByteArray("\1\2\0\3", 4)}}}};
    EXPECT_EQ(zt::readFileResource(u"/old"_s, vers, 1), QByteArray("\1\2\0\3", 4));
    EXPECT_EQ(zt::readFileResource(u"/old"_s, vers, 2), std::nullopt);
}

TEST_F(FileResourceTest, filesWithoutResourcesHaveNone) {
    standin::files.missing = {u"/missing"_s};
    EXPECT_EQ(zt::readFileResource(u"/plain"_s, vers, 1), std::nullopt);
    EXPECT_EQ(zt::readFileResource(u"/missing"_s, vers, 1), std::nullopt);
    EXPECT_EQ(zt::readFileResource(QString(), vers, 1), std::nullopt);
}

class FileAttributeTest : public StandInTest {};

TEST_F(FileAttributeTest, anAttributeIsReadByItsPlainName) {
    standin::volumes.attributes = {{"/a com.apple.TextEncoding", "utf-8;134217984"}};
    EXPECT_EQ(zt::readFileAttribute(u"/a"_s, "com.apple.TextEncoding"), "utf-8;134217984");
    EXPECT_EQ(zt::readFileAttribute(u"/b"_s, "com.apple.TextEncoding"), std::nullopt);
}

class VolumeFileSystemsTest : public StandInTest {};

TEST_F(VolumeFileSystemsTest, anInterruptedQuestionIsAskedAgain) {
    standin::volumes.typeNames = {{"/", "apfs"}};
    standin::volumes.interruptions = 2;
    EXPECT_EQ(*zt::VolumeFileSystems().typeNameFor(u"/"_s), u"apfs"_s);
}
