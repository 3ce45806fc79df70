// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AutostartLoginItems.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class AutostartLoginItemsTest : public testing::Test {
protected:
    void entry(const QString &name, const QByteArray &lines) {
        QDir().mkpath(folder.filePath(u"autostart"_s));
        QFile file(folder.filePath(u"autostart/"_s + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\nName=Demo\n" + lines);
    }
    QString program(const QString &path) {
        const QString file = folder.filePath(path);
        QDir().mkpath(QFileInfo(file).path());
        QFile script(file);
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return QFileInfo(file).canonicalFilePath();
    }
    using Paths = std::vector<std::optional<QString>>;
    Paths paths() { return items.resolvedPaths().value_or(Paths{u"no list"_s}); }

    QTemporaryDir folder;
    FakePlatform platform;
    zt::AutostartLoginItems items{folder.path(), platform.bundles};
};

TEST_F(AutostartLoginItemsTest, withoutTheFolderThereIsNoList) {
    EXPECT_EQ(items.resolvedPaths(), std::nullopt);
}

TEST_F(AutostartLoginItemsTest, aProgramInABundleCountsAsTheBundle) {
    const QString path = program(u"Demo.app/Contents/Linux/Demo"_s);
    const QString bundle = path.chopped(QStringView(u"/Contents/Linux/Demo").size());
    platform.bundles.add(bundle, {});
    entry(u"demo.desktop"_s, "Exec=\"" + path.toUtf8() + "\" --hidden %U\n");
    EXPECT_EQ(paths(), Paths{bundle});
}

TEST_F(AutostartLoginItemsTest, aProgramInNoBundleCountsAsItself) {
    const QString path = program(u"bin/demo tool"_s);
    entry(u"demo.desktop"_s, "Exec=\"" + path.toUtf8() + "\"\n");
    EXPECT_EQ(paths(), Paths{path});
}

TEST_F(AutostartLoginItemsTest, variablesSetByEnvAreNotTheProgram) {
    const QString path = program(u"bin/demo"_s);
    entry(u"demo.desktop"_s, "Exec=env A=1 B=2 " + path.toUtf8() + "\n");
    EXPECT_EQ(paths(), Paths{path});
}

TEST_F(AutostartLoginItemsTest, entriesComeInTheOrderOfTheirFileNames) {
    const QString one = program(u"bin/one"_s);
    const QString two = program(u"bin/two"_s);
    entry(u"b.desktop"_s, "Exec=" + one.toUtf8() + "\n");
    entry(u"a.desktop"_s, "Exec=" + two.toUtf8() + "\n");
    EXPECT_EQ(paths(), (Paths{two, one}));
}

TEST_F(AutostartLoginItemsTest, entriesThatAreSwitchedOffAreLeftOut) {
    const QByteArray exec = "Exec=" + program(u"bin/demo"_s).toUtf8() + "\n";
    entry(u"hidden.desktop"_s, exec + "Hidden=true\n");
    entry(u"off.desktop"_s, exec + "X-GNOME-Autostart-enabled=false\n");
    entry(u"elsewhere.desktop"_s, exec + "OnlyShowIn=NoSuchDesktop;\n");
    EXPECT_EQ(paths(), Paths{});
    entry(u"on.desktop"_s, exec + "X-GNOME-Autostart-enabled=true\nHidden=false\n");
    EXPECT_EQ(paths().size(), 1U);
}

TEST_F(AutostartLoginItemsTest, anEntryWhoseProgramIsMissingIsUnresolved) {
    entry(u"gone.desktop"_s, "Exec=/no/such/program\n");
    entry(u"broken.desktop"_s, "Exec=\"unclosed\n");
    EXPECT_EQ(paths(), (Paths{std::nullopt, std::nullopt}));
}

TEST_F(AutostartLoginItemsTest, filesThatAreNoEntriesAreNoItems) {
    entry(u"notes.txt"_s, "Exec=/bin/true\n");
    EXPECT_EQ(paths(), Paths{});
}
