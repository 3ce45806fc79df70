#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A text document that never reaches outside of what it may show.

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QTextDocument>
#include <QUrl>

#include <optional>

// Loads nothing on its own but pictures that lie in its folder or below. Everything else that its
// content refers to - remote addresses, style sheets, files elsewhere - is as if it did not exist.
// Pictures are held by the document under names of its own ("picture:1").
// Thread: main.
class SelfContainedDocument final : public QTextDocument {
public:
    // No pictures are loaded from files when the folder is empty.
    explicit SelfContainedDocument(const QString &folder);

    // Each of these takes in one picture and answers its name; no value when it is refused: not a
    // PNG, JPEG, GIF, BMP, TIFF or WebP picture, damaged, too large, or outside of the folder.
    std::optional<QString> addPicture(const QByteArray &content);
    std::optional<QString> addPictureFile(const QString &relativePath);
    // The address as the content writes it: relative, or a "data:" address.
    std::optional<QString> addPictureAt(const QString &address);

    // Whether the name is one of those that were answered.
    bool hasPicture(const QString &name) const;

    // The picture's size in pixels; empty when there is none of the name.
    QSize pictureSize(const QString &name) const;

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    QString m_folder;                // canonical
    QHash<QString, QString> m_files; // names of pictures by canonical path
    QHash<QString, QSize> m_pictures;
    qint64 m_pixelsLeft;
};
