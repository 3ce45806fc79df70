// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ZTProcessFixture.h"

using namespace Qt::StringLiterals;

namespace {

class ZTProcessLookupTest : public ZTProcessFixture {};

QStringList namesOf(const QList<ZTProcess::Pointer> &processes) {
    QStringList names;
    for (const ZTProcess::Pointer &process : processes)
        names << process->name().value_or(QString());
    return names;
}

TEST_F(ZTProcessLookupTest, oneProcessHasOneObject) {
    manager.start(10, {.name = u"A"_s, .signature = fourCharCode("aaaa")});
    const auto byPid = ZTProcess::processWithPID(10);
    const auto bySignature = ZTProcess::processWithSignature(fourCharCode("aaaa"));
    ASSERT_TRUE(byPid);
    EXPECT_EQ(byPid, bySignature);
    EXPECT_TRUE(byPid->isEqual(bySignature.get()));
    EXPECT_EQ(byPid, ZTProcess::processWithSerialNumber(byPid->serialNumber()));
    EXPECT_EQ(ZTProcess::allProcesses(), QList{byPid});
}

TEST_F(ZTProcessLookupTest, anIdThatNobodyHasGivesNone) {
    EXPECT_FALSE(ZTProcess::processWithPID(10));
}

TEST_F(ZTProcessLookupTest, aSignatureThatNobodyHasGivesNone) {
    manager.start(10, {.name = u"A"_s, .signature = fourCharCode("aaaa")});
    EXPECT_FALSE(ZTProcess::processWithSignature(fourCharCode("bbbb")));
    EXPECT_FALSE(ZTProcess::processWithSignature(0));
}

TEST_F(ZTProcessLookupTest, ofSeveralWithTheSignatureTheFirstIsGiven) {
    for (const int pid : {30, 10, 20})
        manager.start(pid, {.name = QString::number(pid), .signature = fourCharCode("aaaa")});
    EXPECT_EQ(ZTProcess::processWithSignature(fourCharCode("aaaa"))->unixPID(), 30);
}

TEST_F(ZTProcessLookupTest, anIdentifierIsComparedExactly) {
    manager.start(
        10, {.name = u"A"_s, .informationDictionary = {{u"CFBundleIdentifier"_s, u"example.a"_s}}});
    manager.start(
        11, {.name = u"B"_s, .informationDictionary = {{u"CFBundleIdentifier"_s, u"example.A"_s}}});
    EXPECT_EQ(ZTProcess::processWithIdentifier(u"example.A"_s)->unixPID(), 11);
    EXPECT_FALSE(ZTProcess::processWithIdentifier(u"example"_s));
}

TEST_F(ZTProcessLookupTest, allProcessesAreListedInTheSystemsOrder) {
    manager.start(30, {.name = u"C"_s});
    manager.start(10, {.name = u"A"_s});
    manager.start(20, {.name = u"daemon"_s, .isApplication = false});
    EXPECT_EQ(namesOf(ZTProcess::allProcesses()), (QStringList{u"C"_s, u"A"_s}));
}

TEST_F(ZTProcessLookupTest, thisProcessIsAskedForUntilItIsKnown) {
    EXPECT_FALSE(ZTProcess::currentProcess());
    manager.start(10, {.name = u"A"_s});
    manager.setCurrent(10);
    const auto current = ZTProcess::currentProcess();
    ASSERT_TRUE(current);
    manager.setCurrent(99);
    EXPECT_EQ(ZTProcess::currentProcess(), current);
}

TEST_F(ZTProcessLookupTest, thisProcessIsKeptAfterTheCacheWasCleaned) {
    manager.start(10, {.name = u"A"_s});
    manager.setCurrent(10);
    const auto current = ZTProcess::currentProcess();
    manager.end(10);
    ZTProcess::cleanupCache();
    EXPECT_EQ(ZTProcess::currentProcess(), current);
}

TEST_F(ZTProcessLookupTest, theFrontProcessIsTheSystems) {
    EXPECT_FALSE(ZTProcess::frontProcess());
    const auto first = start(10, {.name = u"A"_s});
    const auto second = start(11, {.name = u"B"_s});
    manager.bringToFront(11);
    EXPECT_EQ(ZTProcess::frontProcess(), second);
    EXPECT_TRUE(second->isFrontProcess());
    EXPECT_FALSE(first->isFrontProcess());
}

TEST_F(ZTProcessLookupTest, nobodyIsInFrontWhenTheSystemCannotTell) {
    EXPECT_FALSE(start(10, {.name = u"A"_s})->isFrontProcess());
}

TEST_F(ZTProcessLookupTest, anIdThatIsUsedAgainHasAnotherObject) {
    const auto first = start(10, {.name = u"A"_s});
    manager.end(10);
    const auto second = start(10, {.name = u"B"_s});
    EXPECT_NE(first, second);
    EXPECT_FALSE(first->isEqual(second.get()));
    EXPECT_FALSE(first->isStillRunning());
    EXPECT_EQ(first->unixPID(), 0);
    EXPECT_EQ(ZTProcess::processWithPID(10), second);
}

TEST_F(ZTProcessLookupTest, objectsOfTheSameProcessAreEqual) {
    const auto cached = start(10, {.name = u"A"_s});
    const auto before = cached->serialNumber();
    ZTProcess::platformChanged();
    const auto another = ZTProcess::processWithSerialNumber(before);
    EXPECT_NE(cached, another);
    EXPECT_TRUE(cached->isEqual(another.get()));
    EXPECT_EQ(cached->hash(), another->hash());
    EXPECT_FALSE(cached->isEqual(nullptr));
}

TEST_F(ZTProcessLookupTest, theHashIsTheWrappedSumOfTheHalves) {
    const auto process =
        ZTProcess::processWithSerialNumber({.high = 0xFFFFFFFF, .low = 0x00000005});
    EXPECT_EQ(process->hash(), 4U);
}

TEST_F(ZTProcessLookupTest, noProcessIsTheSameAsNone) {
    const auto none = ZTProcess::processWithSerialNumber({});
    ASSERT_TRUE(none);
    EXPECT_FALSE(none->isSameProcess({}));
    EXPECT_TRUE(none->isEqual(none.get()));
    EXPECT_FALSE(none->isStillRunning());
}

} // namespace
