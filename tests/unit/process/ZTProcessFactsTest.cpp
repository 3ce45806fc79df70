// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ZTProcessFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString bundlePath = QStringLiteral("/Applications/Sample.app");

class ZTProcessFactsTest : public ZTProcessFixture {
protected:
    // A process that runs from a bundle with that dictionary.
    ZTProcess::Pointer startBundle(const QVariantMap &information) {
        platform.bundles.add(bundlePath, information);
        return start(
            10,
            {.name = u"Sample"_s, .location = bundlePath, .informationDictionary = information});
    }
};

TEST_F(ZTProcessFactsTest, factsComeFromTheSystem) {
    const auto process = start(10, {.name = u"Sample"_s,
                                    .signature = fourCharCode("smPL"),
                                    .displayName = u"The Sample"_s,
                                    .location = bundlePath,
                                    .informationDictionary = {{u"k"_s, u"v"_s}}});
    EXPECT_EQ(process->name(), u"Sample"_s);
    EXPECT_EQ(process->displayName(), u"The Sample"_s);
    EXPECT_EQ(process->signature(), fourCharCode("smPL"));
    EXPECT_EQ(process->signatureString(), u"smPL"_s);
    EXPECT_EQ(process->path(), bundlePath);
    EXPECT_EQ(process->infoDictionary(), (QVariantMap{{u"k"_s, u"v"_s}}));
    EXPECT_EQ(process->unixPID(), 10);
    EXPECT_TRUE(process->isStillRunning());
}

TEST_F(ZTProcessFactsTest, aProcessThatHasEndedHasNoFacts) {
    const auto process = start(10, {.name = u"Sample"_s, .location = bundlePath});
    manager.end(10);
    EXPECT_EQ(process->name(), std::nullopt);
    EXPECT_EQ(process->displayName(), std::nullopt);
    EXPECT_EQ(process->signature(), 0U);
    EXPECT_EQ(process->signatureString(), QString());
    EXPECT_EQ(process->path(), std::nullopt);
    EXPECT_FALSE(process->bundle());
    EXPECT_TRUE(process->infoDictionary().isEmpty());
    EXPECT_EQ(process->identifier(), QString());
    EXPECT_TRUE(process->icon().isNull());
    EXPECT_FALSE(process->isCocoa());
    EXPECT_EQ(process->platform(), ZTPlatformCarbon);
    EXPECT_FALSE(process->isBackgroundOnly());
    EXPECT_EQ(process->version(), u"1.0"_s);
    EXPECT_EQ(process->carbonVersion(), std::nullopt);
    EXPECT_EQ(process->unixPID(), 0);
}

TEST_F(ZTProcessFactsTest, aFactIsKeptOnceItIsKnown) {
    const FakeProcess before = {.name = u"A"_s,
                                .signature = fourCharCode("aaaa"),
                                .displayName = u"A!"_s,
                                .location = u"/A.app"_s,
                                .informationDictionary = {{u"k"_s, 1}}};
    const auto process = start(10, before);
    const auto facts = [&] {
        return std::tuple(process->name(), process->signature(), process->displayName(),
                          process->path(), process->infoDictionary(), process->version());
    };
    const auto known = facts();
    manager.change(10, {.name = u"B"_s});
    EXPECT_EQ(facts(), known);
    manager.end(10);
    EXPECT_EQ(facts(), known);
}

TEST_F(ZTProcessFactsTest, aFactThatCouldNotBeHadIsAskedForAgain) {
    const auto process = start(10, {.name = u"A"_s});
    EXPECT_EQ(process->path(), std::nullopt);
    EXPECT_TRUE(process->infoDictionary().isEmpty());
    manager.change(
        10, {.name = u"A"_s, .location = u"/A.app"_s, .informationDictionary = {{u"k"_s, 1}}});
    EXPECT_EQ(process->path(), u"/A.app"_s);
    EXPECT_FALSE(process->infoDictionary().isEmpty());
}

TEST_F(ZTProcessFactsTest, theNameStandsInForTheOneThatTheSystemShows) {
    EXPECT_EQ(start(10, {.name = u"A"_s})->displayName(), u"A"_s);
}

TEST_F(ZTProcessFactsTest, theSignatureIsPrintedInHexadecimal) {
    EXPECT_EQ(start(10, {.name = u"A"_s, .signature = 0x0A424344})->signatureHexString(),
              u"0A424344"_s);
    EXPECT_EQ(start(11, {.name = u"A"_s, .signature = 0x8A424344})->signatureHexString(),
              u"FFFFFF8A424344"_s);
    EXPECT_EQ(start(12, {.name = u"A"_s, .signature = 0x7F80FF00})->signatureHexString(),
              u"7FFFFFFF80FFFFFFFF00"_s);
}

TEST_F(ZTProcessFactsTest, theIconIsTheWorkspacesAndIsAskedForOnce) {
    const auto process = start(10, {.name = u"A"_s, .location = bundlePath});
    process->icon();
    process->icon();
    EXPECT_EQ(platform.workspace.iconRequests, QStringList{bundlePath});
}

TEST_F(ZTProcessFactsTest, aBundleWithAProgramAndAPrincipalClassIsCocoa) {
    const auto process = startBundle(
        {{u"CFBundleExecutable"_s, u"Sample"_s}, {u"NSPrincipalClass"_s, u"NSApplication"_s}});
    EXPECT_TRUE(process->isCocoa());
    EXPECT_EQ(process->platform(), ZTPlatformCocoa);
}

TEST_F(ZTProcessFactsTest, aPrincipalClassMustBeAString) {
    EXPECT_FALSE(startBundle({{u"CFBundleExecutable"_s, u"Sample"_s}, {u"NSPrincipalClass"_s, 5}})
                     ->isCocoa());
}

TEST_F(ZTProcessFactsTest, aBundleWithoutAProgramIsNotCocoa) {
    EXPECT_FALSE(startBundle({{u"NSPrincipalClass"_s, u"NSApplication"_s}})->isCocoa());
}

TEST_F(ZTProcessFactsTest, aProgramWithoutABundleIsNotCocoa) {
    EXPECT_FALSE(start(10, {.name = u"A"_s, .location = u"/usr/bin/a"_s})->isCocoa());
}

TEST_F(ZTProcessFactsTest, theCocoaTestIsMadeOnce) {
    const auto process = start(10, {.name = u"A"_s, .location = bundlePath});
    EXPECT_FALSE(process->isCocoa());
    platform.bundles.add(bundlePath, {{u"CFBundleExecutable"_s, u"Sample"_s},
                                      {u"NSPrincipalClass"_s, u"NSApplication"_s}});
    EXPECT_FALSE(process->isCocoa());
}

TEST_F(ZTProcessFactsTest, javaIsToldByTheIdentifier) {
    EXPECT_EQ(startBundle({{u"CFBundleIdentifier"_s, u"example.javatool"_s}})->platform(),
              ZTPlatformJava);
    const auto capital =
        start(11, {.name = u"B"_s,
                   .informationDictionary = {{u"CFBundleIdentifier"_s, u"example.Java"_s}}});
    EXPECT_EQ(capital->platform(), ZTPlatformCarbon);
}

struct BackgroundCase {
    const char *reason;
    QVariantMap dictionary;
    bool isBackgroundOnly;
};

class ZTProcessBackgroundTest : public ZTProcessFixture,
                                public testing::WithParamInterface<BackgroundCase> {};

TEST_P(ZTProcessBackgroundTest, theDictionarySaysWhetherItStaysInTheBackground) {
    const auto process =
        start(10, {.name = u"A"_s, .informationDictionary = GetParam().dictionary});
    EXPECT_EQ(process->isBackgroundOnly(), GetParam().isBackgroundOnly);
}

INSTANTIATE_TEST_SUITE_P(
    Dictionaries, ZTProcessBackgroundTest,
    testing::Values(BackgroundCase{"nothingSaid", {{u"k"_s, 1}}, false},
                    BackgroundCase{"backgroundOnly", {{u"LSBackgroundOnly"_s, true}}, true},
                    BackgroundCase{"agent", {{u"LSUIElement"_s, true}}, true},
                    BackgroundCase{"agentThoughNotBackgroundOnly",
                                   {{u"LSBackgroundOnly"_s, false}, {u"LSUIElement"_s, true}},
                                   true},
                    BackgroundCase{"neither",
                                   {{u"LSBackgroundOnly"_s, false}, {u"LSUIElement"_s, false}},
                                   false},
                    BackgroundCase{"aNumber", {{u"LSUIElement"_s, qlonglong(1)}}, true},
                    BackgroundCase{"zero", {{u"LSUIElement"_s, qlonglong(0)}}, false},
                    BackgroundCase{"yesAsText", {{u"LSUIElement"_s, u"YES"_s}}, true},
                    BackgroundCase{"oneAsText", {{u"LSUIElement"_s, u"1"_s}}, true},
                    BackgroundCase{"noAsText", {{u"LSUIElement"_s, u"NO"_s}}, false},
                    BackgroundCase{"zeroAsText", {{u"LSUIElement"_s, u"0"_s}}, false},
                    BackgroundCase{"emptyText", {{u"LSUIElement"_s, QString()}}, false}),
    [](const auto &information) { return std::string(information.param.reason); });

TEST_F(ZTProcessFactsTest, theHashSourceIsTheIdentifierBeforeAll) {
    const auto process =
        start(10, {.name = u"A"_s,
                   .signature = fourCharCode("aaaa"),
                   .informationDictionary = {{u"CFBundleIdentifier"_s, u"example.a"_s}}});
    EXPECT_EQ(process->hashStringSource(), u"id:example.a"_s);
    EXPECT_EQ(process->hashString(), u"e9504d28fab74105d53ffed6c63a62e0"_s);
}

TEST_F(ZTProcessFactsTest, theHashSourceIsTheSignatureWithoutAnIdentifier) {
    const auto process = start(10, {.name = u"A"_s, .signature = fourCharCode("aaaa")});
    EXPECT_EQ(process->identifier(), QString());
    EXPECT_EQ(process->hashStringSource(), u"sig:aaaa"_s);
}

TEST_F(ZTProcessFactsTest, theHashSourceIsTheNameWithoutASignature) {
    EXPECT_EQ(start(10, {.name = u"A"_s})->hashStringSource(), u"name:A"_s);
    const auto ended = ZTProcess::processWithSerialNumber({.high = 99, .low = 1});
    EXPECT_EQ(ended->hashStringSource(), u"name:"_s);
}

TEST_F(ZTProcessFactsTest, theHashIsTakenUpToTheFirstZero) {
    const auto whole = start(10, {.name = u"A"_s});
    const auto behindZero = start(11, {.name = QString(u"A"_s + QChar() + u"B"_s)});
    EXPECT_EQ(behindZero->hashString(), whole->hashString());
}

TEST_F(ZTProcessFactsTest, theDescriptionNamesProcessSignatureAndVersion) {
    EXPECT_EQ(start(10, {.name = u"A"_s, .signature = fourCharCode("aaaa")})->description(),
              u"Process \"A\" (aaaa) 1.0"_s);
    EXPECT_EQ(ZTProcess::processWithSerialNumber({.high = 99, .low = 1})->description(),
              u"Process \"(null)\" () 1.0"_s);
}

TEST_F(ZTProcessFactsTest, processesAreOrderedByNameWithoutRegardToCase) {
    const auto lower = start(10, {.name = u"beta"_s});
    const auto upper = start(11, {.name = u"BETA"_s});
    const auto first = start(12, {.name = u"Alpha"_s});
    EXPECT_EQ(lower->compare(*upper), Ordering::Same);
    EXPECT_EQ(first->compare(*lower), Ordering::Ascending);
    EXPECT_EQ(lower->compare(*first), Ordering::Descending);
}

TEST_F(ZTProcessFactsTest, valuesCanBeAttachedAndRemoved) {
    const auto process = start(10, {.name = u"A"_s});
    EXPECT_FALSE(process->infoForKey(u"key"_s).isValid());
    EXPECT_FALSE(process->info().isValid());
    process->setInfo(5, u"key"_s);
    process->setInfo(u"plain"_s);
    EXPECT_EQ(process->infoForKey(u"key"_s), 5);
    EXPECT_EQ(process->info(), u"plain"_s);
    EXPECT_EQ(process->infoForKey(QString()), u"plain"_s);
    process->setInfo({}, u"key"_s);
    process->setInfo({}, u"never stored"_s);
    EXPECT_FALSE(process->infoForKey(u"key"_s).isValid());
    EXPECT_EQ(process->info(), u"plain"_s);
}

} // namespace
