// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ZTUtilitiesDistributionTest : public testing::Test {
protected:
    ZTUtilitiesDistributionTest() {
        platform.workspace.volumes << disk.path();
        platform.bundles.setMainBundle(disk.filePath(u"Folder/Product.app"_s));
    }

    void addMarker(const QString &path) const {
        QFile marker(disk.filePath(path));
        EXPECT_TRUE(marker.open(QIODevice::WriteOnly));
    }

    QTemporaryDir disk;
    FakePlatform platform;
};

TEST_F(ZTUtilitiesDistributionTest, aVisibleMarkerTellsTheDistributionDisk) {
    addMarker(u"launchlock"_s);
    EXPECT_TRUE(ZTUtilities::runningFromDistributionDisk());
    EXPECT_TRUE(ZTUtilities::installationMode());
}

TEST_F(ZTUtilitiesDistributionTest, aHiddenMarkerTellsItToo) {
    addMarker(u".launchlock"_s);
    EXPECT_TRUE(ZTUtilities::runningFromDistributionDisk());
}

TEST_F(ZTUtilitiesDistributionTest, aDiskWithoutMarkerIsAnyDisk) {
    EXPECT_FALSE(ZTUtilities::runningFromDistributionDisk());
    EXPECT_FALSE(ZTUtilities::installationMode());
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTUtilitiesDistributionTest, aMarkerIsLookedForAtTheTopAlone) {
    QDir(disk.path()).mkpath(u"Folder/Product.app"_s);
    addMarker(u"Folder/launchlock"_s);
    EXPECT_FALSE(ZTUtilities::runningFromDistributionDisk());
}

TEST_F(ZTUtilitiesDistributionTest, aLinkThatLeadsNowhereIsNoMarker) {
    QFile::link(u"/missing/file"_s, disk.filePath(u"launchlock"_s));
    EXPECT_FALSE(ZTUtilities::runningFromDistributionDisk());
}

TEST_F(ZTUtilitiesDistributionTest, withoutADiskThereIsNothingToLookAt) {
    platform.workspace.volumes.clear();
    addMarker(u"launchlock"_s);
    EXPECT_FALSE(ZTUtilities::runningFromDistributionDisk());
}

struct PlaceRow {
    const char *reason;
    QString path;
    bool isInstallationMode;
};

TEST_F(ZTUtilitiesDistributionTest, foldersForTemporaryItemsAreNoInstallation) {
    const PlaceRow rows[] = {
        {"the system moved it aside", u"/private/x/AppTranslocation/1/Product.app"_s, true},
        {"temporary items", u"/var/tmp/Product.app"_s, true},
        {"deeper in a tree", u"/data/var/tmp/x/Product.app"_s, true},
        {"applications", u"/Applications/Product.app"_s, false},
        {"a name that only begins so", u"/x/AppTranslocations/Product.app"_s, false},
        {"other case", u"/x/apptranslocation/Product.app"_s, false},
        {"the folder itself", u"/x/AppTranslocation"_s, false},
        {"other temporary items", u"/tmp/Product.app"_s, false},
    };
    for (const PlaceRow &row : rows) {
        platform.bundles.setMainBundle(row.path);
        EXPECT_EQ(ZTUtilities::installationMode(), row.isInstallationMode) << row.reason;
    }
}

TEST_F(ZTUtilitiesDistributionTest, anAliasIsResolved) {
    platform.workspace.aliases.insert(u"/a"_s, u"/b"_s);
    EXPECT_EQ(ZTUtilities::resolvedAlias(u"/a"_s), u"/b"_s);
}

TEST_F(ZTUtilitiesDistributionTest, whatIsNoAliasIsTheIdenticalText) {
    const QString path = u"/b/"_s + disk.path();
    EXPECT_EQ(ZTUtilities::resolvedAlias(path).constData(), path.constData());
}
