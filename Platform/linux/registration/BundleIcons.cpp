// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/BundleIcons.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QList>

#include <algorithm>
#include <iterator>

namespace zt {

namespace {

constexpr qint64 largestDrawing = qint64(1) << 20; // bytes

QList<QImage> imagesOf(QImageReader &reader) {
    QList<QImage> images;
    for (int i = 0; i == 0 || i < reader.imageCount(); ++i) {
        if (i > 0 && !reader.jumpToImage(i))
            continue;
        const QImage image = reader.read();
        if (!image.isNull())
            images << image;
    }
    return images;
}

std::string pngOf(const QImage &image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes.toStdString() : std::string();
}

// The picture in that size, in the middle of a square.
QImage inSize(const QImage &image, int size) {
    const QImage scaled = image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_ARGB32);
    return scaled.copy((scaled.width() - size) / 2, (scaled.height() - size) / 2, size, size);
}

int sizeOf(const QImage &image) {
    return std::max(image.width(), image.height());
}

// The smallest image that need not be enlarged.
const QImage *bestFor(const QList<QImage> &images, int size) {
    const QImage *best = nullptr;
    for (const QImage &image : images) {
        if (sizeOf(image) >= size && (!best || sizeOf(image) < sizeOf(*best)))
            best = &image;
    }
    return best;
}

// Draws the drawing in each size; its own size says nothing.
QList<QImage> imagesOfDrawing(const QString &path) {
    QList<QImage> images;
    for (const unsigned size : iconSizes) {
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        const int side = static_cast<int>(size);
        reader.setScaledSize(reader.size().scaled(side, side, Qt::KeepAspectRatio));
        const QImage image = reader.read();
        if (!image.isNull())
            images << image;
    }
    return images;
}

} // namespace

std::vector<ApplicationRecord::Icon> iconsOfPicture(const QString &path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    std::vector<ApplicationRecord::Icon> icons;
    if (!reader.canRead())
        return icons;
    const bool isDrawing = reader.format().startsWith("svg");
    const QList<QImage> images = isDrawing ? imagesOfDrawing(path) : imagesOf(reader);
    if (QFile file(path); isDrawing && !images.isEmpty() && reader.format() == "svg" &&
                          file.open(QIODevice::ReadOnly) && file.size() <= largestDrawing)
        icons.push_back({ApplicationRecord::Icon::scalable, file.readAll().toStdString()});
    for (const unsigned size : iconSizes) {
        const int side = static_cast<int>(size);
        const QImage *const image = bestFor(images, side);
        if (std::string png = image ? pngOf(inSize(*image, side)) : std::string(); !png.empty())
            icons.push_back({size, std::move(png)});
    }
    // A picture smaller than all of them is still better than none.
    if (icons.empty() && !images.isEmpty())
        icons.push_back({iconSizes[0], pngOf(inSize(images.first(), int(iconSizes[0])))});
    return icons;
}

} // namespace zt
