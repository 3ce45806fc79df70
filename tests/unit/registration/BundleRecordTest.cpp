// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/BundleRecord.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class BundleRecordTest : public testing::Test {
protected:
    void write(const QString &relative, const QByteArray &content) {
        const QString file = folder.filePath(u"Demo.app/Resources/"_s + relative);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }

    zt::ApplicationRecord record(const QVariantMap &information,
                                 const QString &installedPath = u"/Applications/Demo.app"_s) {
        const QString path = folder.filePath(u"Demo.app"_s);
        QDir().mkpath(path + u"/Resources"_s);
        const zt::Bundle bundle({.path = path,
                                 .resourcesPath = path + u"/Resources"_s,
                                 .executablePath = path + u"/Contents/Linux/Demo"_s,
                                 .information = information});
        auto result = zt::recordOfBundle(bundle, installedPath);
        EXPECT_TRUE(result) << result.error().text();
        return result ? *result : zt::ApplicationRecord();
    }

    static QVariantMap document(const QString &key, const QVariant &value) {
        return {{u"CFBundleDocumentTypes"_s, QVariantList{QVariantMap{{key, value}}}}};
    }

    QTemporaryDir folder;
};

TEST_F(BundleRecordTest, placesAndNamesComeFromTheBundle) {
    const auto made = record(
        {{u"CFBundleIdentifier"_s, u"com.example.Demo"_s}, {u"CFBundleName"_s, u"Demo One"_s}});
    EXPECT_EQ(made.identifier, "com.example.Demo");
    EXPECT_EQ(made.bundlePath, "/Applications/Demo.app");
    EXPECT_EQ(made.executable, "Contents/Linux/Demo");
    ASSERT_EQ(made.names.size(), 1U);
    EXPECT_EQ(made.names[0].text, "Demo One");
    EXPECT_FALSE(made.isBackgroundOnly);
}

TEST_F(BundleRecordTest, withoutAnIdentifierTheNameOfTheBundleStandsIn) {
    EXPECT_EQ(record({}, u"/Applications/My Démo.app"_s).identifier, "bundle-My-D-mo");
    EXPECT_EQ(record({{u"CFBundleIdentifier"_s, u"../../evil"_s}}).identifier, "bundle-Demo");
    EXPECT_EQ(record({}, u"/Applications/My Démo.app"_s).names[0].text, "My Démo");
}

TEST_F(BundleRecordTest, localizedNamesAreKept) {
    write(u"de.lproj/InfoPlist.strings"_s, "\"CFBundleDisplayName\" = \"Beispiel\";\n");
    write(u"zh-Hans.lproj/InfoPlist.strings"_s, "CFBundleName = \"\xe7\xa4\xba\xe4\xbe\x8b\";\n");
    write(u"French.lproj/InfoPlist.strings"_s, "CFBundleName = \"Exemple\";\n");
    write(u"pt-BR.lproj/InfoPlist.strings"_s, "garbage {{{");
    write(u"evil]name.lproj/InfoPlist.strings"_s, "CFBundleName = \"x\";\n");
    const auto names = record({{u"CFBundleName"_s, u"Demo"_s}}).names;
    std::vector<std::string> found;
    for (const auto &name : names)
        found.push_back(name.locale + '=' + name.text);
    EXPECT_THAT(
        found, ElementsAre("=Demo", "fr=Exemple", "de=Beispiel", "zh_CN=\xe7\xa4\xba\xe4\xbe\x8b"));
}

TEST_F(BundleRecordTest, documentTypesMayNameTypes) {
    const auto made = record(document(u"CFBundleTypeMIMETypes"_s,
                                      QStringList{u"text/plain"_s, u"IMAGE/PNG"_s, u"garbage"_s}));
    EXPECT_THAT(made.mimeTypes, ElementsAre("text/plain", "image/png"));
    EXPECT_THAT(made.newFileTypes, IsEmpty());
}

TEST_F(BundleRecordTest, documentTypesMayNameSuffixes) {
    QVariantMap information =
        document(u"CFBundleTypeExtensions"_s, QStringList{u"txt"_s, u".demodoc"_s, u"*"_s});
    information.insert(u"CFBundleIdentifier"_s, u"com.example.Demo"_s);
    const auto made = record(information);
    EXPECT_THAT(made.mimeTypes,
                ElementsAre("text/plain", "application/x-com.example.demo-demodoc"));
    ASSERT_EQ(made.newFileTypes.size(), 1U);
    EXPECT_THAT(made.newFileTypes[0].suffixes, ElementsAre("demodoc"));
}

TEST_F(BundleRecordTest, documentTypesMayNameDeclaredIdentifiers) {
    QVariantMap information =
        document(u"LSItemContentTypes"_s,
                 QStringList{u"public.html"_s, u"com.example.mime"_s, u"com.example.suffix"_s});
    const auto declare = [](const QString &identifier, const QVariantMap &tags) {
        return QVariant(QVariantMap{{u"UTTypeIdentifier"_s, identifier},
                                    {u"UTTypeDescription"_s, u"Demo document"_s},
                                    {u"tags"_s, tags}});
    };
    information.insert(
        u"UTExportedTypeDeclarations"_s,
        QVariantList{
            declare(u"com.example.mime"_s, {{u"public.mime-type"_s, u"application/x-demo"_s}}),
            declare(u"com.example.suffix"_s,
                    {{u"public.filename-extension"_s, QVariantList{u"unheard-of"_s}}})});
    const auto made = record(information);
    EXPECT_THAT(made.mimeTypes, ElementsAre("text/html", "application/x-demo"));
}

TEST_F(BundleRecordTest, typesOfTheOlderKeyCount) {
    const auto made =
        record({{u"NSTypes"_s,
                 QVariantList{QVariantMap{{u"NSUnixExtensions"_s, QStringList{u"png"_s}}}}}});
    EXPECT_THAT(made.mimeTypes, ElementsAre("image/png"));
}

TEST_F(BundleRecordTest, whatCannotBeOpenedIsNotOffered) {
    QVariantMap information = document(u"CFBundleTypeMIMETypes"_s, QStringList{u"text/plain"_s});
    QVariantMap row = information.value(u"CFBundleDocumentTypes"_s).toList().first().toMap();
    row.insert(u"CFBundleTypeRole"_s, u"None"_s);
    information.insert(u"CFBundleDocumentTypes"_s, QVariantList{row});
    EXPECT_THAT(record(information).mimeTypes, IsEmpty());
}

TEST_F(BundleRecordTest, addressesAreTypesToo) {
    const auto made = record(
        {{u"CFBundleURLTypes"_s,
          QVariantList{QVariantMap{{u"CFBundleURLSchemes"_s, QStringList{u"demo"_s, u"a b"_s}}}}}});
    EXPECT_THAT(made.mimeTypes, ElementsAre("x-scheme-handler/demo"));
}

TEST_F(BundleRecordTest, backgroundProgramsAreMarked) {
    EXPECT_TRUE(record({{u"LSUIElement"_s, true}}).isBackgroundOnly);
    EXPECT_TRUE(record({{u"LSBackgroundOnly"_s, u"YES"_s}}).isBackgroundOnly);
    EXPECT_FALSE(record({{u"LSUIElement"_s, u"NO"_s}}).isBackgroundOnly);
}

TEST_F(BundleRecordTest, categoriesAreThoseOfMenus) {
    EXPECT_THAT(
        record({{u"LSApplicationCategoryType"_s, u"public.app-category.music"_s}}).categories,
        ElementsAre("AudioVideo", "Audio"));
    EXPECT_THAT(record({{u"LSApplicationCategoryType"_s, u"public.app-category.puzzle-games"_s}})
                    .categories,
                ElementsAre("Game"));
    EXPECT_THAT(record({{u"LSApplicationCategoryType"_s, u"garbage"_s}}).categories, IsEmpty());
}

TEST_F(BundleRecordTest, aPictureBecomesIconsUpToItsSize) {
    QImage picture(100, 60, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    QDir().mkpath(folder.filePath(u"Demo.app/Resources"_s));
    ASSERT_TRUE(picture.save(folder.filePath(u"Demo.app/Resources/Demo.png"_s)));
    const auto icons = record({{u"CFBundleIconFile"_s, u"Demo"_s}}).icons;
    std::vector<unsigned> sizes;
    for (const auto &icon : icons) {
        sizes.push_back(icon.size);
        const QImage image = QImage::fromData(QByteArray::fromStdString(icon.content));
        EXPECT_EQ(image.size(), QSize(int(icon.size), int(icon.size)));
        EXPECT_EQ(image.pixelColor(image.rect().center()), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(image.width() / 2, 0).alpha(), 0);
    }
    EXPECT_THAT(sizes, ElementsAre(16U, 24U, 32U, 48U, 64U));
}

TEST_F(BundleRecordTest, aDrawingIsKeptBesideItsPictures) {
    write(u"Demo.svg"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\">"
                         "<rect width=\"8\" height=\"8\" fill=\"#00ff00\"/></svg>");
    const auto icons = record({{u"CFBundleIconFile"_s, u"Demo.svg"_s}}).icons;
    ASSERT_EQ(icons.size(), 1 + std::size(zt::iconSizes));
    EXPECT_EQ(icons.front().size, zt::ApplicationRecord::Icon::scalable);
    const QImage largest = QImage::fromData(QByteArray::fromStdString(icons.back().content));
    EXPECT_EQ(largest.size(), QSize(512, 512));
}

TEST_F(BundleRecordTest, anIconThatIsGarbageIsLeftOut) {
    write(u"Demo.png"_s, "garbage");
    EXPECT_THAT(record({{u"CFBundleIconFile"_s, u"Demo"_s}}).icons, IsEmpty());
}

TEST_F(BundleRecordTest, aBundleWithoutAProgramCannotBeRegistered) {
    const zt::Bundle bundle({.path = folder.path(),
                             .resourcesPath = folder.path(),
                             .executablePath = QString(),
                             .information = {}});
    EXPECT_FALSE(zt::recordOfBundle(bundle, u"/Applications/Demo.app"_s));
}
