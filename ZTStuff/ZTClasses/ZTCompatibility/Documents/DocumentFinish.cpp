// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentFinish.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// The usual colour of links on white paper.
const QColor linkColor(0x06, 0x45, 0xAD);

// One change of the text at a position: another format, or another text in place of a picture.
struct Change {
    int position;
    int length;
    QTextCharFormat format;
    std::optional<QString> replacement;
};

bool isSafeLink(const QString &address) {
    const QUrl url(address);
    const QString scheme = url.scheme().toLower();
    if (scheme == "mailto"_L1)
        return url.isValid() && !url.path().isEmpty();
    return (scheme == "http"_L1 || scheme == "https"_L1) && url.isValid() && !url.host().isEmpty();
}

void finishLink(QTextCharFormat &format) {
    if (format.isAnchor() && isSafeLink(format.anchorHref())) {
        format.setForeground(linkColor);
        format.setFontUnderline(true);
        return;
    }
    // The colour and the line under it belong to the link that it no longer is.
    if (!format.anchorHref().isEmpty()) {
        format.clearForeground();
        format.setFontUnderline(false);
    }
    format.setAnchor(false);
    format.setAnchorHref(QString());
    format.clearProperty(QTextFormat::AnchorName);
}

void finishColor(QTextCharFormat &format) {
    if (!format.hasProperty(QTextFormat::ForegroundBrush))
        format.setForeground(Qt::black);
}

// Takes the picture in; answers its description when it cannot be shown.
std::optional<QString> finishPicture(SelfContainedDocument &document, QTextCharFormat &format) {
    constexpr qreal longestSide = 4096;
    QTextImageFormat image = format.toImageFormat();
    if (!document.hasPicture(image.name())) {
        const auto name = document.addPictureAt(image.name());
        if (!name)
            return image.stringProperty(QTextFormat::ImageAltText);
        image.setName(*name);
    }
    if (image.hasProperty(QTextFormat::ImageWidth))
        image.setWidth(std::clamp(image.width(), 1.0, longestSide));
    if (image.hasProperty(QTextFormat::ImageHeight))
        image.setHeight(std::clamp(image.height(), 1.0, longestSide));
    format = image;
    return std::nullopt;
}

Change changeOf(SelfContainedDocument &document, const QTextFragment &fragment) {
    Change change = {.position = fragment.position(),
                     .length = fragment.length(),
                     .format = fragment.charFormat(),
                     .replacement = {}};
    if (change.format.isImageFormat()) {
        change.replacement = finishPicture(document, change.format);
        if (change.replacement) {
            change.format = QTextCharFormat();
            change.format.setForeground(Qt::black);
        }
    }
    if (change.format.hasProperty(QTextFormat::IsAnchor))
        finishLink(change.format);
    finishColor(change.format);
    return change;
}

void apply(QTextCursor &cursor, const Change &change) {
    cursor.setPosition(change.position);
    cursor.setPosition(change.position + change.length, QTextCursor::KeepAnchor);
    if (change.replacement) {
        cursor.insertText(*change.replacement, change.format);
    } else {
        cursor.setCharFormat(change.format);
    }
}

void finishFragments(SelfContainedDocument &document, QTextCursor &cursor) {
    std::vector<Change> changes;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            Change change = changeOf(document, fragment.fragment());
            if (change.replacement || change.format != fragment.fragment().charFormat())
                changes.push_back(std::move(change));
        }
    }
    // From the end on, so that the positions of the changes to come stay right.
    std::ranges::reverse(changes);
    for (const Change &change : changes)
        apply(cursor, change);
}

// The marks of list items are drawn in the format of their paragraph.
void finishParagraphColors(const SelfContainedDocument &document, QTextCursor &cursor) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCharFormat format = block.charFormat();
        if (format.hasProperty(QTextFormat::ForegroundBrush))
            continue;
        format.setForeground(Qt::black);
        cursor.setPosition(block.position());
        cursor.setBlockCharFormat(format);
    }
}

// Where a paragraph of this text is to be broken, from the end on: after blanks if there are any.
std::vector<int> breaksOf(const QString &text) {
    std::vector<int> breaks;
    qsizetype start = 0;
    while (text.size() - start > maximumParagraphLength) {
        const qsizetype limit = start + maximumParagraphLength;
        qsizetype end = text.lastIndexOf(u' ', limit - 1) + 1;
        if (end <= start + maximumParagraphLength / 2)
            end = text[limit - 1].isHighSurrogate() ? limit - 1 : limit;
        breaks.push_back(static_cast<int>(end));
        start = end;
    }
    std::ranges::reverse(breaks);
    return breaks;
}

void breakLongParagraphs(const SelfContainedDocument &document, QTextCursor &cursor) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.length() <= maximumParagraphLength)
            continue;
        const int position = block.position();
        for (const int offset : breaksOf(block.text())) {
            cursor.setPosition(position + offset);
            cursor.insertBlock();
        }
        block = document.findBlock(position);
    }
}

} // namespace

void finishDocument(SelfContainedDocument &document) {
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    finishFragments(document, cursor);
    finishParagraphColors(document, cursor);
    breakLongParagraphs(document, cursor);
    cursor.endEditBlock();
}
