// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ZTProcessFixture.h"

using namespace Qt::StringLiterals;

namespace {

class ZTProcessCacheTest : public ZTProcessFixture {
protected:
    // Objects for processes with these ids, the last one in front.
    QList<ZTProcess::Pointer> cached(const QList<std::int32_t> &pids) {
        QList<ZTProcess::Pointer> processes;
        for (const std::int32_t pid : pids)
            processes << start(pid, {.name = QString::number(pid)});
        return processes;
    }

    static QList<std::int32_t> pidsInCache() {
        QList<std::int32_t> pids;
        for (const auto &process :
             ZTProcess::cachedProcessesEnumerator().value_or(QList<ZTProcess::Pointer>()))
            pids << static_cast<std::int32_t>(process->serialNumber().high);
        return pids;
    }
};

TEST_F(ZTProcessCacheTest, thereIsNoCacheBeforeTheFirstLookUp) {
    EXPECT_FALSE(ZTProcess::cachedProcessesEnumerator());
    manager.start(10, {.name = u"A"_s});
    EXPECT_FALSE(ZTProcess::cachedProcessesEnumerator());
    const auto process = ZTProcess::processWithPID(10);
    EXPECT_EQ(ZTProcess::cachedProcessesEnumerator(), QList{process});
}

TEST_F(ZTProcessCacheTest, anEmptiedCacheIsStillThere) {
    cached({10});
    manager.end(10);
    ZTProcess::cleanupCache();
    EXPECT_EQ(ZTProcess::cachedProcessesEnumerator(), QList<ZTProcess::Pointer>());
}

TEST_F(ZTProcessCacheTest, aNewObjectStandsInFront) {
    cached({10, 11, 12});
    EXPECT_EQ(pidsInCache(), (QList{12, 11, 10}));
}

TEST_F(ZTProcessCacheTest, aHitMovesToTheFront) {
    const auto processes = cached({10, 11, 12, 13});
    const auto third = processes[1];
    EXPECT_EQ(ZTProcess::cachedProcessWithSerialNumber(third->serialNumber()), third);
    EXPECT_EQ(pidsInCache(), (QList{11, 13, 12, 10}));
}

TEST_F(ZTProcessCacheTest, aHitInFrontChangesNothing) {
    const auto processes = cached({10, 11});
    ZTProcess::cachedProcessWithSerialNumber(processes[1]->serialNumber());
    EXPECT_EQ(pidsInCache(), (QList{11, 10}));
}

TEST_F(ZTProcessCacheTest, aMissIsNotCached) {
    cached({10});
    EXPECT_FALSE(ZTProcess::cachedProcessWithSerialNumber({.high = 99, .low = 1}));
    EXPECT_EQ(pidsInCache(), QList{10});
}

TEST_F(ZTProcessCacheTest, theIndexCountsFromTheFrontAndMovesNothing) {
    const auto processes = cached({10, 11, 12});
    EXPECT_EQ(ZTProcess::indexOfCachedProcessWithSerialNumber(processes[0]->serialNumber()), 2U);
    EXPECT_EQ(ZTProcess::indexOfCachedProcessWithSerialNumber(processes[2]->serialNumber()), 0U);
    EXPECT_EQ(ZTProcess::indexOfCachedProcessWithSerialNumber({.high = 99, .low = 1}),
              0x7FFFFFFFFFFFFFFFU);
    EXPECT_EQ(pidsInCache(), (QList{12, 11, 10}));
}

TEST_F(ZTProcessCacheTest, anObjectCanBePutInFrontAgain) {
    const auto processes = cached({10, 11, 12});
    processes[0]->addToCache();
    EXPECT_EQ(pidsInCache(), (QList{10, 12, 11}));
}

TEST_F(ZTProcessCacheTest, onlyWhatHasEndedIsCleanedUp) {
    const auto processes = cached({10, 11, 12});
    manager.end(11);
    EXPECT_EQ(pidsInCache(), (QList{12, 10}));
    EXPECT_TRUE(processes[0]->isStillRunning());
}

TEST_F(ZTProcessCacheTest, anObjectThatLeftTheCacheStaysGoodForItsOwners) {
    const auto process = cached({10}).front();
    EXPECT_EQ(process->name(), u"10"_s);
    manager.end(10);
    EXPECT_TRUE(pidsInCache().isEmpty());
    EXPECT_EQ(process->name(), u"10"_s);
    EXPECT_EQ(process->version(), u"1.0"_s);
}

TEST_F(ZTProcessCacheTest, anObjectThatNobodyOwnsGoesWithItsProcess) {
    std::weak_ptr<ZTProcess> process = cached({10}).front();
    EXPECT_FALSE(process.expired());
    manager.end(10);
    EXPECT_TRUE(process.expired());
}

TEST_F(ZTProcessCacheTest, valuesOfCallersSurviveBetweenLookUps) {
    manager.start(10, {.name = u"A"_s});
    ZTProcess::processWithPID(10)->setInfo(u"value"_s, u"key"_s);
    EXPECT_EQ(ZTProcess::processWithPID(10)->infoForKey(u"key"_s), u"value"_s);
}

} // namespace
