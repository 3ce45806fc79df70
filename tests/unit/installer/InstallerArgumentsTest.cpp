// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerArguments.h"

#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "tests/fakes/FakePlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class InstallerArgumentsTest : public testing::Test {
protected:
    static QVariantMap parse(const QStringList &arguments) {
        return InstallerArguments::parse(QStringList{u"/x/installer"_s} + arguments);
    }

    FakePlatform platform;
};

struct ParseRow {
    const char *reason;
    QStringList arguments;
    QVariantMap expected; // beside the program's path under the empty key
};

TEST_F(InstallerArgumentsTest, keysTakeTheValuesBehindThem) {
    const ParseRow rows[] = {
        {"nothing", {}, {}},
        {"one value", {u"-version"_s, u"2.0"_s}, {{u"version"_s, u"2.0"_s}}},
        {"the last of several values",
         {u"-version"_s, u"1.0"_s, u"2.0"_s},
         {{u"version"_s, u"2.0"_s}}},
        {"codes collect",
         {u"-productCode"_s, u"ABCD"_s, u"EFGH"_s},
         {{u"productCode"_s, QStringList{u"ABCD"_s, u"EFGH"_s}}}},
        {"codes collect over several keys",
         {u"-productCode"_s, u"ABCD"_s, u"-productCode"_s, u"EFGH"_s},
         {{u"productCode"_s, QStringList{u"ABCD"_s, u"EFGH"_s}}}},
        {"any key that ends in Code collects",
         {u"-anyCode"_s, u"a"_s, u"b"_s, u"-Code"_s, u"c"_s},
         {{u"anyCode"_s, QStringList{u"a"_s, u"b"_s}}, {u"Code"_s, QStringList{u"c"_s}}}},
        {"the ending is case-sensitive",
         {u"-productcode"_s, u"a"_s, u"b"_s},
         {{u"productcode"_s, u"b"_s}}},
        {"a key without a value stores nothing",
         {u"-productName"_s, u"-version"_s, u"2.0"_s},
         {{u"version"_s, u"2.0"_s}}},
        {"a key given twice keeps the last value",
         {u"-version"_s, u"1"_s, u"-version"_s, u"2"_s},
         {{u"version"_s, u"2"_s}}},
        {"unknown keys are kept",
         {u"-AppleLanguages"_s, u"(de)"_s},
         {{u"AppleLanguages"_s, u"(de)"_s}}},
        {"two dashes leave one in the key", {u"--help"_s, u"x"_s}, {{u"-help"_s, u"x"_s}}},
        {"an empty value is a value", {u"-version"_s, u""_s}, {{u"version"_s, u""_s}}},
    };
    for (const ParseRow &row : rows) {
        QVariantMap expected = row.expected;
        expected[u""_s] = u"/x/installer"_s;
        EXPECT_EQ(parse(row.arguments), expected) << row.reason;
    }
}

TEST_F(InstallerArgumentsTest, valuesBeforeTheFirstKeyAreUnderTheEmptyKey) {
    EXPECT_EQ(parse({u"one"_s, u"two"_s}), (QVariantMap{{u""_s, u"two"_s}}));
    EXPECT_EQ(parse({u"-"_s, u"lone"_s}), (QVariantMap{{u""_s, u"lone"_s}}));
}

TEST_F(InstallerArgumentsTest, theWholeVectorIsLogged) {
    parse({u"-version"_s, u"2 0"_s});
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"arguments: (\"/x/installer\", \"-version\", \"2 0\")"_s});
}

TEST_F(InstallerArgumentsTest, theSourceIsTheInnermostBundleAroundTheInstaller) {
    QVariantMap arguments;
    EXPECT_TRUE(InstallerArguments::completeSourcePath(
        arguments, u"/d/Outer.app/Inner.app/Contents/Resources/Installer.app"_s));
    EXPECT_EQ(arguments.value(ZTInstallerKeySourcePath), u"/d/Outer.app/Inner.app"_s);
    EXPECT_EQ(platform.log.lines(),
              (QStringList{u"shortened path = /d/Outer.app/Inner.app/Contents"_s,
                           u"shortened path = /d/Outer.app/Inner.app"_s}));
}

TEST_F(InstallerArgumentsTest, anInstallerInNoBundleHasNoSource) {
    QVariantMap arguments;
    EXPECT_FALSE(InstallerArguments::completeSourcePath(arguments, u"/d/Installer.app"_s));
    EXPECT_FALSE(InstallerArguments::completeSourcePath(arguments, u"/Installer.app"_s));
    EXPECT_FALSE(InstallerArguments::completeSourcePath(arguments, u""_s));
    EXPECT_TRUE(arguments.isEmpty());
}

TEST_F(InstallerArgumentsTest, aGivenSourceIsUsedAsItIs) {
    QVariantMap arguments{{ZTInstallerKeySourcePath, u"/d/folder"_s}};
    EXPECT_TRUE(InstallerArguments::completeSourcePath(arguments, u"/d/A.app/Installer.app"_s));
    EXPECT_EQ(arguments.value(ZTInstallerKeySourcePath), u"/d/folder"_s);
}

TEST_F(InstallerArgumentsTest, theNameIsTheSourcesWithoutItsExtension) {
    QVariantMap arguments{{ZTInstallerKeySourcePath, u"/d/Sample Notes.app"_s}};
    EXPECT_TRUE(InstallerArguments::completeProductName(arguments));
    EXPECT_EQ(arguments.value(ZTInstallerKeyProductName), u"Sample Notes"_s);
    QVariantMap nameless{{ZTInstallerKeySourcePath, u""_s}};
    EXPECT_FALSE(InstallerArguments::completeProductName(nameless));
}

TEST_F(InstallerArgumentsTest, versionsComeFromTheArgumentsThenFromTheProduct) {
    platform.bundles.add(u"/d/A.app"_s, {{u"CFBundleShortVersionString"_s, u"1.0"_s},
                                         {u"LSMinimumSystemVersion"_s, u"11"_s}});
    const auto product = platform.bundles.bundleAtPath(u"/d/A.app"_s);
    EXPECT_EQ(InstallerArguments::version({}, product), u"1.0"_s);
    EXPECT_EQ(InstallerArguments::minimumSystemVersion({}, product), u"11"_s);
    const QVariantMap given{{ZTInstallerKeyVersion, u"2"_s},
                            {ZTInstallerKeyMinSystemVersion, u"12"_s}};
    EXPECT_EQ(InstallerArguments::version(given, product), u"2"_s);
    EXPECT_EQ(InstallerArguments::minimumSystemVersion(given, product), u"12"_s);
    EXPECT_EQ(InstallerArguments::version({}, std::nullopt), std::nullopt);
}

class InstallerDestinationTest : public InstallerArgumentsTest {
protected:
    InstallerDestinationTest() {
        QDir().mkpath(folder.filePath(u"Disk/Product"_s));
        QDir().mkpath(folder.filePath(u"Applications"_s));
        QDir().mkpath(folder.filePath(u"Elsewhere"_s));
        arguments = {{ZTInstallerKeySourcePath, path(u"Disk/Product/Product.app"_s)},
                     {ZTInstallerKeyProductName, u"Product"_s}};
    }
    QString path(const QString &relative) const { return folder.filePath(relative); }
    QString complete() {
        InstallerArguments::completeDestination(
            arguments, {.preferredDestination =
                            [this](const QString &name) {
                                asked << name;
                                return preferred;
                            },
                        .applicationsDirectory = [this] { return path(u"Applications"_s); }});
        return arguments.value(ZTInstallerKeyDestinationPath).toString();
    }

    QTemporaryDir folder;
    QVariantMap arguments;
    std::optional<QString> preferred;
    QStringList asked;
};

TEST_F(InstallerDestinationTest, aGivenDestinationStaysWhenItsParentExists) {
    arguments[ZTInstallerKeyDestinationPath] = path(u"Elsewhere/Other.app"_s);
    EXPECT_EQ(complete(), path(u"Elsewhere/Other.app"_s));
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(InstallerDestinationTest, thePreferredDestinationIsAskedForByName) {
    preferred = path(u"Elsewhere/Product.app"_s);
    EXPECT_EQ(complete(), path(u"Elsewhere/Product.app"_s));
    EXPECT_EQ(asked, QStringList{u"Product"_s});
}

TEST_F(InstallerDestinationTest, theApplicationsFolderStandsInForAllElse) {
    const QString fallback = path(u"Applications/Product.app"_s);
    EXPECT_EQ(complete(), fallback);
    arguments[ZTInstallerKeyDestinationPath] = path(u"Missing/Product.app"_s);
    EXPECT_EQ(complete(), fallback);
    QFile file(path(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    arguments[ZTInstallerKeyDestinationPath] = path(u"file/Product.app"_s);
    EXPECT_EQ(complete(), fallback);
    arguments[ZTInstallerKeyDestinationPath] = u"Product.app"_s;
    EXPECT_EQ(complete(), fallback);
    arguments[ZTInstallerKeyDestinationPath] = u""_s;
    EXPECT_EQ(complete(), fallback);
}

TEST_F(InstallerDestinationTest, aWrapperIsRecreatedAroundTheProduct) {
    arguments[ZTInstallerKeyWrapperPath] = path(u"Disk/Product"_s);
    EXPECT_EQ(complete(), path(u"Applications/Product/Product.app"_s));
    EXPECT_EQ(arguments.value(ZTInstallerKeyWrapperPath), path(u"Disk/Product"_s));
    EXPECT_EQ(platform.log.lines(), QStringList{u"wrapper = "_s + path(u"Disk/Product"_s)});
}

TEST_F(InstallerDestinationTest, aDestinationInsideTheWrapperStays) {
    QDir().mkpath(path(u"Applications/Product"_s));
    arguments[ZTInstallerKeyWrapperPath] = path(u"Disk/Product"_s);
    arguments[ZTInstallerKeyDestinationPath] = path(u"Applications/Product/Product.app"_s);
    EXPECT_EQ(complete(), path(u"Applications/Product/Product.app"_s));
}

TEST_F(InstallerDestinationTest, aWrapperElsewhereOrMissingIsDroppedSilently) {
    for (const QString &wrapper : {path(u"Elsewhere"_s), path(u"Disk/Product/missing"_s), u""_s}) {
        arguments[ZTInstallerKeyWrapperPath] = wrapper;
        EXPECT_EQ(complete(), path(u"Applications/Product.app"_s)) << wrapper.toStdString();
        EXPECT_FALSE(arguments.contains(ZTInstallerKeyWrapperPath));
    }
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(InstallerDestinationTest, documentationThatDoesNotExistIsDropped) {
    arguments[ZTInstallerKeyDocumentationPath] = path(u"Missing.html"_s);
    InstallerArguments::completeDocumentation(arguments);
    EXPECT_FALSE(arguments.contains(ZTInstallerKeyDocumentationPath));
    arguments[ZTInstallerKeyDocumentationPath] = path(u"Elsewhere"_s);
    InstallerArguments::completeDocumentation(arguments);
    EXPECT_TRUE(arguments.contains(ZTInstallerKeyDocumentationPath));
}

class InstallerCodesTest : public InstallerArgumentsTest {
protected:
    std::optional<zt::Bundle> product(const QVariantMap &information) {
        platform.bundles.add(u"/d/A.app"_s, information);
        return platform.bundles.bundleAtPath(u"/d/A.app"_s);
    }
};

TEST_F(InstallerCodesTest, givenCodesComeBeforeTheProductsSignature) {
    QVariantMap arguments =
        parse({u"-productCode"_s, u"ABCD"_s, u"EFGH"_s, u"-quitCode"_s, u"WXYZ"_s});
    EXPECT_TRUE(InstallerArguments::completeProductCodes(
        arguments, product({{u"CFBundleSignature"_s, u"QRST"_s}})));
    InstallerArguments::completeQuitCodes(arguments);
    EXPECT_EQ(arguments.value(ZTInstallerKeyProductCode), (QStringList{u"ABCD"_s, u"EFGH"_s}));
    EXPECT_EQ(arguments.value(ZTInstallerKeyQuitCode),
              (QStringList{u"WXYZ"_s, u"ABCD"_s, u"EFGH"_s}));
}

TEST_F(InstallerCodesTest, theSignatureStandsInForCodes) {
    QVariantMap arguments;
    EXPECT_TRUE(InstallerArguments::completeProductCodes(
        arguments, product({{u"CFBundleSignature"_s, u"QRST"_s}})));
    InstallerArguments::completeQuitCodes(arguments);
    EXPECT_EQ(arguments.value(ZTInstallerKeyProductCode), QStringList{u"QRST"_s});
    EXPECT_EQ(arguments.value(ZTInstallerKeyQuitCode), QStringList{u"QRST"_s});
    EXPECT_EQ(
        platform.log.lines(),
        QStringList{
            u"Updated arguments: {\"productCode\" = (\"QRST\"); \"quitCode\" = (\"QRST\"); }"_s});
}

TEST_F(InstallerCodesTest, duplicateQuitCodesStay) {
    QVariantMap arguments = parse({u"-productCode"_s, u"ABCD"_s, u"-quitCode"_s, u"ABCD"_s});
    InstallerArguments::completeQuitCodes(arguments);
    EXPECT_EQ(arguments.value(ZTInstallerKeyQuitCode), (QStringList{u"ABCD"_s, u"ABCD"_s}));
}

TEST_F(InstallerCodesTest, withoutCodesAndSignatureThereIsNone) {
    QVariantMap arguments;
    EXPECT_FALSE(InstallerArguments::completeProductCodes(arguments, std::nullopt));
    EXPECT_FALSE(InstallerArguments::completeProductCodes(arguments, product({})));
    EXPECT_FALSE(InstallerArguments::completeProductCodes(
        arguments, product({{u"CFBundleSignature"_s, 1234}})));
}
