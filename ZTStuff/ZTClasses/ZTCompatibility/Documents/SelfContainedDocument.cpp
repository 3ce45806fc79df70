// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentFile.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

qint64 pixelCount(const QSize &size) {
    return qint64(size.width()) * size.height();
}

// Formats that describe a raster and nothing else. SVG for one can refer to further files.
bool isPlainPictureFormat(const QByteArray &format) {
    static const QList<QByteArray> formats = {"png", "jpeg", "jpg", "gif", "bmp", "tiff", "webp"};
    return formats.contains(format);
}

QImage readPicture(const QByteArray &content, qint64 maximumPixels) {
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isPlainPictureFormat(reader.format()))
        return {};
    const QSize size = reader.size();
    if (size.isEmpty() || pixelCount(size) > maximumPixels)
        return {};
    return reader.read();
}

// "data:image/png;base64,..."
std::optional<QByteArray> inlineContent(const QString &address) {
    const qsizetype comma = address.indexOf(u',');
    if (!address.startsWith("data:image/"_L1, Qt::CaseInsensitive) || comma < 0 ||
        !address.left(comma).endsWith(";base64"_L1, Qt::CaseInsensitive))
        return std::nullopt;
    return QByteArray::fromBase64(address.mid(comma + 1).toLatin1());
}

} // namespace

SelfContainedDocument::SelfContainedDocument(const QString &folder)
    : m_folder(folder.isEmpty() ? QString() : QFileInfo(folder).canonicalFilePath())
    , m_pixelsLeft(maximumDocumentPixels) {
    setUndoRedoEnabled(false);
}

std::optional<QString> SelfContainedDocument::addPicture(const QByteArray &content) {
    const QImage image = readPicture(content, std::min(m_pixelsLeft, maximumPicturePixels));
    if (image.isNull())
        return std::nullopt;
    m_pixelsLeft -= pixelCount(image.size());
    QString name = u"picture:%1"_s.arg(m_pictures.size() + 1);
    m_pictures.insert(name, image.size());
    addResource(ImageResource, QUrl(name), image);
    return name;
}

std::optional<QString> SelfContainedDocument::addPictureFile(const QString &relativePath) {
    if (m_folder.isEmpty() || relativePath.isEmpty())
        return std::nullopt;
    // A link or ".." must not lead out of the folder.
    const QString path = QFileInfo(m_folder + u'/' + relativePath).canonicalFilePath();
    if (!path.startsWith(m_folder + u'/'))
        return std::nullopt;
    if (const auto known = m_files.constFind(path); known != m_files.constEnd())
        return known->isEmpty() ? std::nullopt : std::optional(*known);
    const zt::Result<QByteArray> content = readDocumentFile(path);
    std::optional<QString> name = content ? addPicture(*content) : std::nullopt;
    m_files.insert(path, name.value_or(QString()));
    return name;
}

std::optional<QString> SelfContainedDocument::addPictureAt(const QString &address) {
    if (const auto content = inlineContent(address))
        return addPicture(*content);
    const QUrl url(address);
    if (!url.isRelative() || !url.authority().isEmpty())
        return std::nullopt;
    return addPictureFile(url.path());
}

bool SelfContainedDocument::hasPicture(const QString &name) const {
    return m_pictures.contains(name);
}

QSize SelfContainedDocument::pictureSize(const QString &name) const {
    return m_pictures.value(name, QSize(0, 0));
}

QVariant SelfContainedDocument::loadResource(int type, const QUrl &name) {
    if (type != ImageResource)
        return {};
    if (const auto picture = addPictureAt(name.toString()))
        return resource(ImageResource, QUrl(*picture));
    // Without any picture the view would look for a file of that name by itself.
    static const QImage nothing = [] {
        QImage image(1, 1, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        return image;
    }();
    return nothing;
}
