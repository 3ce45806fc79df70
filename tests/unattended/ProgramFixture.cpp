// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unattended/ProgramFixture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <grp.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;

// Root may write everywhere, which an ordinary run of the installer may not.
void becomeOrdinaryUser() {
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setresgid(nobody, nobody, nobody) != 0 ||
                           setresuid(nobody, nobody, nobody) != 0))
        _exit(126);
}

} // namespace

ProgramFixture::ProgramFixture() {
    makeFolder(u"home"_s);
    makeFolder(u"Applications"_s);
    makeProduct(u"Disk/Demo.app"_s, "2.0");
}

void ProgramFixture::makeFolder(const QString &relative) const {
    ASSERT_TRUE(QDir().mkpath(path(relative)));
}

void ProgramFixture::makeFile(const QString &relative, const QByteArray &content) const {
    makeFolder(QFileInfo(relative).path());
    QFile file(path(relative));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray ProgramFixture::signature() {
    constexpr int fourDigits = 36 * 36 * 36 * 36;
    return QByteArray::number(getpid() % fourDigits, 36).rightJustified(4, '_');
}

QString ProgramFixture::makeProduct(const QString &relative, const QByteArray &version) const {
    makeFile(relative + u"/Contents/Info.plist"_s,
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>"
             "<key>CFBundleName</key><string>Demo</string>"
             "<key>CFBundleIdentifier</key><string>org.example.Demo</string>"
             "<key>CFBundleExecutable</key><string>Demo</string>"
             "<key>CFBundleSignature</key><string>" +
                 signature() +
                 "</string>"
                 "<key>CFBundleShortVersionString</key><string>" +
                 version + "</string></dict></plist>");
    makeFolder(relative + u"/Contents/Linux"_s);
    const QString program = path(relative + u"/Contents/Linux/Demo"_s);
    EXPECT_TRUE(QFile::copy(QStandardPaths::findExecutable(u"sleep"_s), program));
    return path(relative);
}

void ProgramFixture::handOver() const {
    if (geteuid() != 0)
        return;
    const auto give = [](const QString &item) {
        EXPECT_EQ(lchown(QFile::encodeName(item).constData(), nobody, nobody), 0);
    };
    give(m_world.path());
    QDirIterator items(m_world.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (items.hasNext())
        give(items.next());
}

std::unique_ptr<QProcess> ProgramFixture::program(const QString &file,
                                                  const QStringList &arguments) const {
    auto process = std::make_unique<QProcess>();
    process->setProgram(file);
    process->setArguments(arguments);
    process->setWorkingDirectory(m_world.path());
    QProcessEnvironment environment;
    environment.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
    environment.insert(u"HOME"_s, path(u"home"_s));
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    // What sanitizers have been told.
    for (const char *name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS"}) {
        if (qEnvironmentVariableIsSet(name))
            environment.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    }
    process->setProcessEnvironment(environment);
    process->setChildProcessModifier(becomeOrdinaryUser);
    return process;
}

std::unique_ptr<QProcess> ProgramFixture::installer(const QStringList &arguments) const {
    return program(QStringLiteral(INSTALLER), arguments);
}

ProgramFixture::Run ProgramFixture::finish(QProcess &process) {
    EXPECT_TRUE(process.waitForFinished(-1)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

ProgramFixture::Run ProgramFixture::run(const QStringList &arguments) const {
    handOver();
    const auto process = installer(arguments);
    process->start();
    return finish(*process);
}

QByteArray ProgramFixture::log() const {
    QFile file(path(u"home/Library/Logs/VelmoraInstaller.log"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
