// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LinuxBundles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

// One way to lay out a bundle; all paths are relative to the bundle's folder.
struct LayoutRule {
    QString dictionary;
    QStringList resourceFolders; // the first that exists; the last one if none does
    QStringList programFolders;  // searched in this order
};

const QList<LayoutRule> &layoutRules() {
    static const QList<LayoutRule> rules = {
        {u"/Contents/Info.plist"_s,
         {u"/Contents/Resources"_s},
         {u"/Contents/Linux"_s, u"/Contents/MacOS"_s}},
        {u"/Info.plist"_s, {u"/Resources"_s, QString()}, {QString()}},
        {u"/Resources/Info-gnustep.plist"_s, {u"/Resources"_s}, {QString()}},
    };
    return rules;
}

// Absolute, without "." and ".." and without a slash at the end.
QString cleanPath(const QString &path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString resourcesPath(const QString &bundlePath, const LayoutRule &rule) {
    for (const QString &folder : rule.resourceFolders) {
        if (QFileInfo(bundlePath + folder).isDir())
            return bundlePath + folder;
    }
    return bundlePath + rule.resourceFolders.last();
}

// The name as the dictionary gives it; no value when it gives none.
std::optional<QString> executableName(const QVariantMap &information) {
    for (const QString &key : {u"CFBundleExecutable"_s, u"NSExecutable"_s}) {
        const QVariant name = information.value(key);
        if (name.metaType() == QMetaType::fromType<QString>() && !name.toString().isEmpty())
            return name.toString();
    }
    return std::nullopt;
}

QString executablePath(const QString &bundlePath, const LayoutRule &rule,
                       const QVariantMap &information) {
    const QString name =
        executableName(information).value_or(QFileInfo(bundlePath).completeBaseName());
    // A program outside of the bundle is not the bundle's program.
    if (name.isEmpty() || name.contains(u'/') || name.contains(".."_L1) || name.contains(QChar()))
        return {};
    for (const QString &folder : rule.programFolders) {
        QString path = bundlePath + folder + u'/' + name;
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString runningExecutable() {
    return QFile::symLinkTarget(u"/proc/self/exe"_s);
}

} // namespace

LinuxBundles::LinuxBundles(const QString &executablePath) : m_mainBundle(Bundle::Layout()) {
    const QString program =
        executablePath.isEmpty() ? runningExecutable() : cleanPath(executablePath);
    const QString folder = QFileInfo(program).path();
    const Bundle none(
        {.path = folder, .resourcesPath = folder, .executablePath = program, .information = {}});
    m_mainBundle = bundleEnclosing(program).value_or(none);
}

std::optional<Bundle> LinuxBundles::bundleAtPath(const QString &path) const {
    if (path.isEmpty())
        return std::nullopt;
    const QString bundlePath = cleanPath(path);
    for (const LayoutRule &rule : layoutRules()) {
        const QString dictionaryPath = bundlePath + rule.dictionary;
        if (!QFileInfo::exists(dictionaryPath))
            continue;
        const Result<QVariant> dictionary = m_dictionaries.read(dictionaryPath);
        if (!dictionary || dictionary->metaType() != QMetaType::fromType<QVariantMap>())
            return std::nullopt;
        const QVariantMap information = dictionary->toMap();
        return Bundle({.path = bundlePath,
                       .resourcesPath = resourcesPath(bundlePath, rule),
                       .executablePath = executablePath(bundlePath, rule, information),
                       .information = information});
    }
    return std::nullopt;
}

const Bundle &LinuxBundles::mainBundle() const {
    return m_mainBundle;
}

} // namespace zt
