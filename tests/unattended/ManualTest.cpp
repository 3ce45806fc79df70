// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString outputOf(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(-1)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitCode(), 0);
    return QString::fromUtf8(process.readAll());
}

QString manual() {
    QFile file(QStringLiteral(MANUAL));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

} // namespace

TEST(ManualTest, everyKeyIsInTheManualAndInTheHelp) {
    const QString page = manual();
    const QString help = outputOf(QStringLiteral(INSTALLER), {u"--help"_s});
    for (const QString &key :
         {ZTInstallerKeyProductName, ZTInstallerKeyVersion, ZTInstallerKeyMinSystemVersion,
          ZTInstallerKeySourcePath, ZTInstallerKeyDestinationPath, ZTInstallerKeyDocumentationPath,
          ZTInstallerKeyReadMePath, ZTInstallerKeyProductCode, ZTInstallerKeyQuitCode,
          ZTInstallerKeyIconPath, ZTInstallerKeyWrapperPath, ZTInstallerCompletionSound,
          ZTInstallerCompletionQuit, ZTInstallerUnattended, ZTInstallerCheck, u"nosound"_s}) {
        EXPECT_TRUE(page.contains(u".It Fl "_s + key + u' ')) << key.toStdString();
        EXPECT_TRUE(help.contains(u'-' + key + u' ')) << key.toStdString();
    }
}

TEST(ManualTest, everyExitStatusIsInTheManual) {
    const QString statuses = manual().section(u".Sh EXIT STATUS"_s, 1).section(u".Sh "_s, 0, 0);
    for (int status = 0; status <= 6; ++status)
        EXPECT_TRUE(statuses.contains(u".It %1\n"_s.arg(status))) << status;
}

TEST(ManualTest, itIsFormattedWithoutAWarning) {
    const QString groff = QStandardPaths::findExecutable(u"groff"_s);
    if (groff.isEmpty())
        GTEST_SKIP() << "groff, which formats manual pages, is not installed";
    EXPECT_EQ(outputOf(groff, {u"-mandoc"_s, u"-ww"_s, u"-rLL=90n"_s, u"-Tutf8"_s, u"-z"_s,
                               QStringLiteral(MANUAL)}),
              u""_s);
}
