// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/TestBundles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QByteArray xmlDictionary(const QVariantMap &information) {
    QByteArray text = "<plist version=\"1.0\"><dict>";
    for (auto entry = information.cbegin(); entry != information.cend(); ++entry)
        text += "<key>" + entry.key().toUtf8() + "</key><string>" +
                entry.value().toString().toHtmlEscaped().toUtf8() + "</string>";
    return text + "</dict></plist>";
}

QByteArray oldTextDictionary(const QVariantMap &information) {
    QByteArray text = "{\n";
    for (auto entry = information.cbegin(); entry != information.cend(); ++entry)
        text +=
            '"' + entry.key().toUtf8() + "\" = \"" + entry.value().toString().toUtf8() + "\";\n";
    return text + "}\n";
}

} // namespace

QString TestBundles::folder() const {
    return QFileInfo(m_folder.path()).canonicalFilePath();
}

QString TestBundles::path(const QString &relative) const {
    return folder() + u'/' + relative;
}

QString TestBundles::write(const QString &relative, const QByteArray &content) const {
    QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile file(absolute);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        std::abort();
    return absolute;
}

void TestBundles::makeExecutable(const QString &path) const {
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString TestBundles::add(const QString &name, const QVariantMap &information, Layout layout) const {
    QString bundle = name + u".app"_s;
    QVariantMap complete = information;
    complete.insert(u"CFBundleExecutable"_s, u"program"_s);
    QString programFolder = bundle;
    switch (layout) {
    case Layout::Contents:
        write(bundle + u"/Contents/Info.plist"_s, xmlDictionary(complete));
        programFolder += u"/Contents/Linux"_s;
        break;
    case Layout::Flat:
        write(bundle + u"/Info.plist"_s, xmlDictionary(complete));
        break;
    case Layout::OldText:
        write(bundle + u"/Resources/Info-gnustep.plist"_s, oldTextDictionary(complete));
        break;
    }
    QDir().mkpath(path(programFolder));
    if (!QFile::copy(u"/bin/sleep"_s, path(programFolder + u"/program"_s)))
        std::abort();
    return path(bundle);
}

std::string TestBundles::program(const QString &bundlePath) {
    return QFile::encodeName(bundlePath + u"/Contents/Linux/program"_s).toStdString();
}
