// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/IconFile.h"

#include <QImage>
#include <QImageReader>
#include <QPixmap>

namespace {

// Larger images add nothing to an icon but the time to decode them.
constexpr int largestUsefulSize = 512;

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
    // are enough.
    for (int i = 0; i == 0 || i < reader.imageCount(); ++i) {
        if (i > 0 && !reader.jumpToImage(i))
            continue;
        QImage image = reader.read();
        if (image.isNull())
            continue;
        if (image.width() > largestUsefulSize || image.height() > largestUsefulSize) {
            image = image.scaled(largestUsefulSize, largestUsefulSize, Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
        }
        icon.addPixmap(QPixmap::fromImage(std::move(image)));
    }
    return icon.isNull() ? std::nullopt : std::optional(icon);
}
