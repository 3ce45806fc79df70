// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QString withoutTrailingSlashes(const QString &path) {
    qsizetype end = path.size();
    while (end > 1 && path.at(end - 1) == u'/')
        --end;
    return path.left(end);
}

} // namespace

QString lastPathComponent(const QString &path) {
    const QString trimmed = withoutTrailingSlashes(path);
    return trimmed == u'/' ? trimmed : trimmed.mid(trimmed.lastIndexOf(u'/') + 1);
}

QString deletingLastPathComponent(const QString &path) {
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype slash = trimmed.lastIndexOf(u'/');
    if (slash < 0)
        return {};
    return slash == 0 ? u"/"_s : withoutTrailingSlashes(trimmed.left(slash));
}

QString appendingPathComponent(const QString &path, const QString &component) {
    if (path.isEmpty())
        return component;
    const QString folder = withoutTrailingSlashes(path);
    return folder == u'/' ? folder + component : folder + u'/' + component;
}

QString deletingPathExtension(const QString &path) {
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype name = trimmed.lastIndexOf(u'/') + 1;
    const qsizetype dot = trimmed.lastIndexOf(u'.');
    return dot > name ? trimmed.left(dot) : trimmed;
}

QString pathExtension(const QString &path) {
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.mid(dot + 1) : QString();
}

QString expandingTilde(const QString &path) {
    return path == u'~' || path.startsWith(u"~/") ? QDir::homePath() + path.mid(1) : path;
}
