// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/LogRedirection.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <sys/wait.h>
#include <unistd.h> // fork

using namespace Qt::StringLiterals;

namespace {

// Redirects in a process of its own, since the test needs its streams, and writes a line to each.
void writeRedirected(const QString &path) {
    const pid_t child = fork();
    if (child == 0) {
        redirectStandardStreams(path);
        std::fputs("to output\n", stdout);
        std::fflush(stdout);
        std::fputs("to error\n", stderr);
        _exit(fileno(stderr) == STDERR_FILENO ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

TEST(LogRedirectionTest, itTakesTwoArgumentsThatDoNotBeginWithALanguage) {
    EXPECT_FALSE(shouldRedirectLog({}));
    EXPECT_FALSE(shouldRedirectLog({u"x"_s}));
    EXPECT_FALSE(shouldRedirectLog({u"x"_s, u"-productName"_s}));
    EXPECT_TRUE(shouldRedirectLog({u"x"_s, u"-productName"_s, u"Demo"_s}));
    EXPECT_FALSE(shouldRedirectLog({u"x"_s, u"-AppleLanguages"_s, u"(de)"_s}));
    EXPECT_TRUE(shouldRedirectLog({u"x"_s, u"-version"_s, u"-AppleLanguages"_s}));
}

TEST(LogRedirectionTest, bothStreamsAreAppendedToTheFileInFoldersThatAreMade) {
    const QTemporaryDir folder;
    const QString log = folder.filePath(u"Library/Logs/Test.log"_s);
    writeRedirected(log);
    writeRedirected(log);
    EXPECT_EQ(contentOf(log), "to output\nto error\nto output\nto error\n");
}

TEST(LogRedirectionTest, aFileThatCannotBeWrittenDropsTheLines) {
    const QTemporaryDir folder;
    writeRedirected(folder.path());
    EXPECT_TRUE(QFile::exists(folder.path()));
}
