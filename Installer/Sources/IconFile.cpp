// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/IconFile.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPixmap>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Larger images add nothing to an icon but the time to decode them.
constexpr int largestUsefulSize = 512;

// Containers are a few megabytes at most; what is behind that is left out.
constexpr qint64 largestContainer = qint64(64) << 20; // bytes

// What the window and the desktop's task switcher show at most, in pixels.
int sufficientSize() {
    constexpr int largestShownSize = 128;
    return static_cast<int>(std::ceil(largestShownSize * qApp->devicePixelRatio()));
}

// Adds the image in a size that is useful. Whether no larger one is needed beside it.
bool addImage(QIcon &icon, QImage image) {
    const bool largeEnough = image.width() >= sufficientSize();
    if (image.width() > largestUsefulSize || image.height() > largestUsefulSize) {
        image = image.scaled(largestUsefulSize, largestUsefulSize, Qt::KeepAspectRatio,
                             Qt::SmoothTransformation);
    }
    icon.addPixmap(QPixmap::fromImage(std::move(image)));
    return largeEnough;
}

// The PNG images of an ICNS container, which are all that containers of the last decade hold. The
// general reader would find them too, but it looks at a dozen libraries for each of them, and that
// is seen in how long the window takes to appear. A null icon when there is none.
QIcon iconOfPngEntries(QByteArrayView container) {
    constexpr qsizetype headerSize = 8; // a type and a length that counts the header in
    QIcon icon;
    if (!container.startsWith("icns"))
        return icon;
    for (container = container.sliced(std::min(headerSize, container.size()));
         container.size() > headerSize;) {
        const qsizetype length = qFromBigEndian<quint32>(container.data() + 4);
        if (length < headerSize || length > container.size())
            break;
        const QByteArrayView entry = container.first(length).sliced(headerSize);
        container = container.sliced(length);
        if (!entry.startsWith("\x89PNG"))
            continue;
        QByteArray bytes = QByteArray::fromRawData(entry.data(), entry.size());
        QBuffer buffer(&bytes);
        QImageReader reader(&buffer, "png");
        reader.setAutoDetectImageFormat(false);
        QImage image = reader.read();
        if (!image.isNull() && addImage(icon, std::move(image)))
            break;
    }
    return icon;
}

// The images of any file that can be read.
QIcon iconOfImages(QImageReader &reader) {
    QIcon icon;
    // A container may hold entries in encodings that cannot be read; those that can are enough, and
    // once one is large enough there is no use in larger ones.
    for (int i = 0; i == 0 || i < reader.imageCount(); ++i) {
        if (i > 0 && !reader.jumpToImage(i))
            continue;
        QImage image = reader.read();
        if (!image.isNull() && addImage(icon, std::move(image)))
            break;
    }
    return icon;
}

} // namespace

std::optional<QIcon> loadIcon(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (file.peek(4) == "icns") {
        QIcon icon = iconOfPngEntries(file.read(largestContainer));
        if (!icon.isNull())
            return icon;
    }
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
    QIcon icon = iconOfImages(reader);
    return icon.isNull() ? std::nullopt : std::optional(icon);
}
