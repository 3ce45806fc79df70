// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Opening documents and bundles without waiting for them.

#include "Platform/linux/DesktopWorkspace.h"

#include "ZTStuff/ZTClasses/ZTUtilities.h"
#include "tests/Waiting.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class OpenFileTest : public testing::Test {
protected:
    QString file(const QString &path, const QByteArray &content, bool isProgram = false) const {
        QDir().mkpath(QFileInfo(path).path());
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        if (isProgram)
            out.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    // A program that writes its arguments down.
    QString recorder(const QString &path) const {
        return file(path,
                    "#!/bin/sh\nprintf '%s' \"$*\" >'" + record.toUtf8() + ".new'\nmv '" +
                        record.toUtf8() + ".new' '" + record.toUtf8() + "'\n",
                    true);
    }

    QString recorded() const {
        EXPECT_TRUE(eventually([&] { return QFile::exists(record); }));
        QFile in(record);
        EXPECT_TRUE(in.open(QIODevice::ReadOnly));
        return QString::fromUtf8(in.readAll());
    }

    QTemporaryDir folder;
    QString record = folder.filePath(u"record"_s);
    FakePlatform platform;
    zt::DesktopWorkspace workspace{
        {QString(), QDir::homePath(), {}, {}},
        {platform.bundles, platform.windowSystem, platform.clock, platform.log}};
};

} // namespace

TEST_F(OpenFileTest, aDocumentIsOpenedByItsHandler) {
    const QString program = recorder(folder.filePath(u"viewer"_s));
    const QString data = QDir::homePath() + u"/.local/share/applications/"_s;
    file(data + u"viewer.desktop"_s,
         "[Desktop Entry]\nType=Application\nName=Viewer\nMimeType=text/plain;\nExec=" +
             program.toUtf8() + " %f\n");
    file(QDir::homePath() + u"/.config/mimeapps.list"_s,
         "[Default Applications]\ntext/plain=viewer.desktop\n");
    const QString document = file(folder.filePath(u"my letter.txt"_s), "Dear\n");
    workspace.startOpening(document);
    EXPECT_EQ(recorded(), document);
}

TEST_F(OpenFileTest, aBundleIsOpenedByItsProgram) {
    const QString bundle = folder.filePath(u"Demo.app"_s);
    recorder(bundle + u"/Contents/Linux/Demo"_s);
    platform.bundles.add(bundle, {{u"CFBundleExecutable"_s, u"Demo"_s}});
    workspace.startOpening(bundle);
    EXPECT_EQ(recorded(), u""_s);
    // Nobody waits for its windows.
    EXPECT_TRUE(platform.clock.sleeps.empty());
}
