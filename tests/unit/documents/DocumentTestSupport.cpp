// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentTestSupport.h"

#include <QBuffer>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

template <typename Visitor>
void forEachFragment(const QTextDocument &document, Visitor visit) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            visit(fragment.fragment());
    }
}

} // namespace

QByteArray pictureBytes(int width, int height, const char *format) {
    // One bit for each pixel: large pictures are made in no time.
    QImage image(width, height, QImage::Format_Mono);
    image.fill(0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

std::string textOf(const QTextDocument &document) {
    return document.toPlainText()
        .replace(QString(QChar::ObjectReplacementCharacter), u"[picture]"_s)
        .toStdString();
}

QTextCharFormat formatOf(const QTextDocument &document, const QString &text) {
    const QTextCursor found = document.find(text, 0, QTextDocument::FindCaseSensitively);
    EXPECT_FALSE(found.isNull()) << text.toStdString();
    return found.charFormat();
}

QStringList pictureNames(const QTextDocument &document) {
    QStringList names;
    forEachFragment(document, [&](const QTextFragment &fragment) {
        // Pictures of equal formats side by side are one fragment.
        for (int i = 0; fragment.charFormat().isImageFormat() && i < fragment.length(); ++i)
            names.append(fragment.charFormat().toImageFormat().name());
    });
    return names;
}

QStringList linksOf(const QTextDocument &document) {
    QStringList links;
    forEachFragment(document, [&](const QTextFragment &fragment) {
        const QString address = fragment.charFormat().anchorHref();
        if (fragment.charFormat().isAnchor() || !address.isEmpty())
            links.append(address);
    });
    return links;
}
