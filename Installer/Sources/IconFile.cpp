// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/IconFile.h"

#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPixmap>

#include <cmath>

namespace {

// Larger images add nothing to an icon but the time to decode them.
constexpr int largestUsefulSize = 512;

// What the window and the desktop's task switcher show at most, in pixels.
int sufficientSize() {
    constexpr int largestShownSize = 128;
    return static_cast<int>(std::ceil(largestShownSize * qApp->devicePixelRatio()));
}

} // namespace

std::optional<QIcon> loadIcon(const QString &path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return std::nullopt;
    if (reader.supportsOption(QImageIOHandler::ScaledSize) && reader.format().startsWith("svg")) {
        if (!reader.size().isValid())
            return std::nullopt;
        if (path.endsWith(u".svg") || path.endsWith(u".svgz"))
            return QIcon(path);
        reader.setScaledSize(
            reader.size().scaled(largestUsefulSize, largestUsefulSize, Qt::KeepAspectRatio));
    }
    QIcon icon;
    // A container such as ICNS may hold entries in encodings that cannot be read; those that can
    // are enough, and once one is large enough there is no use in larger ones.
    for (int i = 0; i == 0 || i < reader.imageCount(); ++i) {
        if (i > 0 && !reader.jumpToImage(i))
            continue;
        QImage image = reader.read();
        if (image.isNull())
            continue;
        const bool largeEnough = image.width() >= sufficientSize();
        if (image.width() > largestUsefulSize || image.height() > largestUsefulSize) {
            image = image.scaled(largestUsefulSize, largestUsefulSize, Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
        }
        icon.addPixmap(QPixmap::fromImage(std::move(image)));
        if (largeEnough)
            break;
    }
    return icon.isNull() ? std::nullopt : std::optional(icon);
}
