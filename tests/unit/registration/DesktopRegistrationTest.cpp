// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DesktopRegistration.h"

#include "Platform/linux/registration/DataFolder.h"
#include "Platform/posix/SystemCalls.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/registration/SampleRecord.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>

using namespace Qt::StringLiterals;

class DesktopRegistrationTest : public testing::Test {
protected:
    DesktopRegistrationTest() { QDir().mkpath(folder.filePath(u"system"_s)); }

    zt::UniqueFd open(const QString &name) const {
        return zt::openAt(AT_FDCWD, folder.filePath(name).toUtf8().constData(),
                          O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    }

    std::string programIn(const QString &name) const {
        const zt::UniqueFd data = open(name);
        return data ? zt::programOfEntry(data.get(), sampleRecord().identifier) : "";
    }

    QTemporaryDir folder;
    FakeLog log;
    zt::DesktopRegistration registration{
        {folder.filePath(u"user/made"_s),
         {folder.filePath(u"missing"_s), folder.filePath(u"system"_s)}},
        log};
    const std::string program = "/Applications/Notes.app/Contents/Linux/Notes";
};

TEST_F(DesktopRegistrationTest, theUsersFolderIsMadeWhenItIsMissing) {
    ASSERT_TRUE(registration.registerForUser(sampleRecord()));
    EXPECT_EQ(programIn(u"user/made"_s), program);
}

TEST_F(DesktopRegistrationTest, whatAllUsersHaveIsNotWrittenAgain) {
    ASSERT_TRUE(zt::writeRegistration(open(u"system"_s).get(), sampleRecord()));
    ASSERT_TRUE(registration.registerForUser(sampleRecord()));
    EXPECT_EQ(programIn(u"user/made"_s), "");
}

TEST_F(DesktopRegistrationTest, theUsersOwnEntryForAnOlderPlaceGoes) {
    zt::ApplicationRecord older = sampleRecord();
    older.bundlePath = "/home/me/Applications/Notes.app";
    ASSERT_TRUE(registration.registerForUser(older));
    ASSERT_TRUE(zt::writeRegistration(open(u"system"_s).get(), sampleRecord()));
    ASSERT_TRUE(registration.registerForUser(sampleRecord()));
    EXPECT_EQ(programIn(u"user/made"_s), "");
}

TEST_F(DesktopRegistrationTest, anEntryOfAllUsersForAnotherPlaceIsHiddenByTheUsersOwn) {
    zt::ApplicationRecord older = sampleRecord();
    older.bundlePath = "/opt/Notes.app";
    ASSERT_TRUE(zt::writeRegistration(open(u"system"_s).get(), older));
    ASSERT_TRUE(registration.registerForUser(sampleRecord()));
    EXPECT_EQ(programIn(u"user/made"_s), program);
}

TEST_F(DesktopRegistrationTest, aFolderThatCannotBeMadeIsToldWithItsPath) {
    QFile(folder.filePath(u"user"_s)).open(QIODevice::WriteOnly); // a file in the way
    const auto registered = registration.registerForUser(sampleRecord());
    ASSERT_FALSE(registered);
    EXPECT_NE(registered.error().text().find("user/made"), std::string::npos);
}
