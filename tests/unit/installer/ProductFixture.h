#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Made-up services, with a product of the test's own on the disk.

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class ProductFixture : public testing::Test {
protected:
    ProductFixture() {
        using namespace Qt::StringLiterals;
        ZTProcess::platformChanged();
        makeFile(u"Disk/Demo.app/Contents/Linux/Demo"_s, "program");
        makeFolder(u"Applications"_s);
        makeFolder(u"Trash"_s);
        product = path(u"Disk/Demo.app"_s);
        platform.bundles.add(product, {{u"CFBundleSignature"_s, u"DEMO"_s},
                                       {u"CFBundleShortVersionString"_s, u"2.0"_s}});
        platform.bundles.setMainBundle(product + u"/Contents/Resources/VelmoraInstaller.app"_s);
        platform.workspace.localApplications = {path(u"Applications"_s)};
        QPixmap picture(16, 16);
        picture.fill(Qt::green);
        platform.workspace.icon = QIcon(picture);
        platform.trash.folder = path(u"Trash"_s).toStdString();
    }

    QString path(const QString &relative) const { return folder.filePath(relative); }

    void makeFolder(const QString &relative) { QDir().mkpath(path(relative)); }

    void makeFile(const QString &relative, const QByteArray &content) {
        QDir().mkpath(QFileInfo(path(relative)).path());
        QFile file(path(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    // Makes the bundle the installer's own, with the sound "Done" in it.
    static void addDoneSound(FakePlatform &services, const QString &installer) {
        const QString sound = installer + QStringLiteral("/Contents/Resources/Done.wav");
        QDir().mkpath(QFileInfo(sound).path());
        QFile file(sound);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        services.bundles.setMainBundle(installer);
        services.sounds.files.insert(sound, {1000, 1, std::vector<float>(300, 0.1F)});
    }

    QTemporaryDir folder;
    FakePlatform platform;
    QString product;
};
