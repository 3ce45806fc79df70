// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensions.h"
#include "ZTStuff/ZTClasses/ZTRegularExpression.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

constexpr int threadCount = 4;

void runOnThreads(const std::function<void(int)> &body) {
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number)
        threads.emplace_back(body, number);
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace

TEST(TextThreadsTest, ligaturesMayBeDefinedWhileTheyAreUsed) {
    std::atomic<int> right = 0;
    constexpr int rounds = 2000;
    runOnThreads([&right](int number) {
        for (int round = 0; round < rounds; ++round) {
            if (number == 0)
                defineLigatures(round % 2 == 0 ? QStringList() : QStringList(u"ffi"_s));
            const QString text = stringWithUTF32Character(0xB0000);
            right += text == u"ffi" || text == u"\U000B0000" ? 1 : 0;
        }
    });
    EXPECT_EQ(right, threadCount * rounds);
    defineLigatures({});
}

TEST(TextThreadsTest, eachThreadHasItsOwnFlag) {
    std::atomic<int> right = 0;
    constexpr int rounds = 2000;
    runOnThreads([&right](int number) {
        for (int round = 0; round < rounds; ++round) {
            const char32_t *const flag = utf32CharactersForVirtualCharacter(0xA0000 + number);
            right += flag[0] == 0x1F1E6 && flag[1] == 0x1F1E6 + char32_t(number) ? 1 : 0;
        }
    });
    EXPECT_EQ(right, threadCount * rounds);
}

TEST(TextThreadsTest, theRegularExpressionClassIsLookedUpOnce) {
    static std::atomic<int> lookUps = 0;
    static const RegularExpressionClass *const native = ZTRegularExpression::regexClass();
    const ZTRegularExpression::ScopedClassLookUp counted([](const char * /*name*/) {
        ++lookUps;
        return native;
    });
    std::atomic<int> right = 0;
    runOnThreads(
        [&right](int /*number*/) { right += ZTRegularExpression::regexClass() == native ? 1 : 0; });
    EXPECT_EQ(right, threadCount);
    EXPECT_EQ(lookUps, 1);
}

TEST(TextThreadsTest, patternsAreReplacedOnAllThreads) {
    const FakePlatform platform;
    std::atomic<int> right = 0;
    constexpr int rounds = 100;
    runOnThreads([&right](int number) {
        for (int round = 0; round < rounds; ++round) {
            const QString text = u"a"_s + QString::number(number);
            right += stringByReplacingOccurrencesOfRegexPattern(text, u"[0-9]"_s, u"<$0>"_s) ==
                             u"a<"_s + QString::number(number) + u'>'
                         ? 1
                         : 0;
        }
    });
    EXPECT_EQ(right, threadCount * rounds);
}
