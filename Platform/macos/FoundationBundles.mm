// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/FoundationBundles.h"

#include "Platform/macos/BundleFolder.h"
#include "Platform/macos/CFValues.h"
#include "Platform/macos/FoundationText.h"

#include <QDir>
#include <QFileInfo>

namespace zt {

namespace {

// Read from the disk each time: an object of Foundation goes on answering with what it read first,
// though the bundle may have been replaced since.
QVariantMap informationOf(const QString &bundlePath) {
    const CFOwner<CFURLRef> url = makeFileUrl(bundlePath);
    const CFOwner dictionary(url ? CFBundleCopyInfoDictionaryForURL(url.get()) : nullptr);
    return mapOf(dictionary.get());
}

Bundle::Layout layoutOf(NSBundle *bundle, QVariantMap information) {
    return {.path = textOf(bundle.bundlePath),
            .resourcesPath = textOf(bundle.resourcePath),
            .executablePath = textOf(bundle.executablePath),
            .information = std::move(information)};
}

Bundle readMainBundle() {
    @autoreleasepool {
        NSBundle *const bundle = [NSBundle mainBundle];
        const QString path = textOf(bundle.bundlePath);
        return Bundle(
            layoutOf(bundle, informationFileOf(path) ? informationOf(path) : QVariantMap()));
    }
}

} // namespace

FoundationBundles::FoundationBundles() : m_mainBundle(readMainBundle()) {}

std::optional<Bundle> FoundationBundles::bundleAtPath(const QString &path) const {
    if (path.isEmpty())
        return std::nullopt;
    const QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (!informationFileOf(folder))
        return std::nullopt;
    @autoreleasepool {
        QVariantMap information = informationOf(folder);
        NSBundle *const bundle = [NSBundle bundleWithPath:nativeTextOf(folder)];
        if (information.isEmpty() || !bundle)
            return std::nullopt;
        return Bundle(layoutOf(bundle, std::move(information)));
    }
}

const Bundle &FoundationBundles::mainBundle() const {
    return m_mainBundle;
}

} // namespace zt
