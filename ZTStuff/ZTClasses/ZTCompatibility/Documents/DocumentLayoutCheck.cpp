// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLayoutCheck.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Half of what is known to work.
constexpr qreal tallest = 4'000'000;

// A line of the usual font, and what larger sizes of HTML multiply it by at most.
constexpr qreal usualLine = 20;
constexpr qreal largestAdjustment = 3;

// The largest single length that a document can sensibly have, and the deepest tables.
constexpr qreal largestLength = 5000;
constexpr int deepestTables = 8;

// One frame that is to be looked at, with what lies around it.
struct Place {
    const QTextFrame *frame;
    qreal sideSpace; // that indents and margins take away from the lines
    int tables;      // that enclose it
};

// The lengths in the formats of a document.
struct Lengths {
    bool areSensible = true;
    qreal largestOfCells = 0;
};

Lengths lengthsOf(const SelfContainedDocument &document) {
    Lengths lengths;
    const QList<QTextFormat> formats = document.allFormats();
    for (const QTextFormat &format : formats) {
        const auto properties = format.properties();
        for (const QVariant &value : properties) {
            const bool isLength = value.metaType() == QMetaType::fromType<QTextLength>();
            if (!isLength && value.metaType() != QMetaType::fromType<double>())
                continue;
            const qreal length =
                std::abs(isLength ? value.value<QTextLength>().rawValue() : value.toDouble());
            // What is no number is not sensible either.
            lengths.areSensible = lengths.areSensible && length <= largestLength;
            if (format.isTableCellFormat())
                lengths.largestOfCells = std::max(lengths.largestOfCells, length);
        }
    }
    return lengths;
}

qreal lineHeight(const QTextCharFormat &format) {
    constexpr qreal pixelsOfPoint = 96.0 / 72 * 1.25;
    const qreal bySize = format.fontPointSize() * pixelsOfPoint;
    const qreal byPixels = format.doubleProperty(QTextFormat::FontPixelSize) * 1.25;
    const int adjustment = format.intProperty(QTextFormat::FontSizeAdjustment);
    const qreal byAdjustment = adjustment > 0 ? usualLine * largestAdjustment : usualLine;
    return std::max({bySize, byPixels, byAdjustment});
}

qreal pictureHeight(const SelfContainedDocument &document, const QTextImageFormat &format) {
    const QSize size = document.pictureSize(format.name());
    if (format.height() > 0)
        return format.height();
    if (format.width() > 0 && !size.isEmpty())
        return format.width() * size.height() / size.width();
    return size.height();
}

// How many characters stand in a line at least.
qreal charactersInLine(const Place &place, const QTextBlockFormat &format, qreal height) {
    constexpr qreal narrowestPage = 400;
    constexpr qreal indentWidth = 40;
    const qreal sides = place.sideSpace + format.leftMargin() + format.rightMargin() +
                        std::max(format.textIndent(), 0.0) + format.indent() * indentWidth;
    if (place.tables > 0)
        return 1;
    return std::clamp((narrowestPage - sides) / (2.5 * height), 1.0, 8.0);
}

qreal heightOfLines(const QTextBlockFormat &format, qreal lines, qreal height) {
    const qreal number = std::abs(format.lineHeight());
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        return lines * height * number / 100;
    case QTextBlockFormat::FixedHeight:
    case QTextBlockFormat::MinimumHeight:
        return lines * std::max(height, number);
    case QTextBlockFormat::LineDistanceHeight:
        return lines * (height + number);
    default:
        return lines * height;
    }
}

qreal heightOf(const SelfContainedDocument &document, const Place &place, const QTextBlock &block) {
    qreal height = lineHeight(block.charFormat());
    qreal pictures = 0;
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        height = std::max(height, lineHeight(format));
        if (format.isImageFormat())
            pictures += part.fragment().length() * pictureHeight(document, format.toImageFormat());
    }
    const QTextBlockFormat format = block.blockFormat();
    const qreal lines = block.length() / charactersInLine(place, format, height) + 1 +
                        static_cast<qreal>(block.text().count(QChar::LineSeparator));
    return heightOfLines(format, lines, height) + pictures + std::abs(format.topMargin()) +
           std::abs(format.bottomMargin());
}

// What a frame adds to the height of its content. A negative margin is no less absurd than a large
// one.
qreal ownHeight(const QTextFrame &frame, const Lengths &lengths) {
    const QTextFrameFormat format = frame.frameFormat();
    qreal height = std::abs(format.topMargin()) + std::abs(format.bottomMargin()) +
                   2 * std::abs(format.padding() + format.border()) +
                   std::abs(format.height().rawValue());
    if (const auto *table = qobject_cast<const QTextTable *>(&frame)) {
        const QTextTableFormat tableFormat = table->format();
        height += (table->rows() + 1) *
                  (2 * std::abs(tableFormat.cellPadding()) + std::abs(tableFormat.cellSpacing()) +
                   2 * std::abs(tableFormat.border()) + 4 * lengths.largestOfCells);
    }
    return height;
}

} // namespace

bool canBeLaidOut(const SelfContainedDocument &document) {
    const Lengths lengths = lengthsOf(document);
    if (!lengths.areSensible)
        return false;
    std::vector<Place> places = {{document.rootFrame(), 0, 0}};
    qreal height = 0;
    while (!places.empty() && height <= tallest) {
        Place place = places.back();
        places.pop_back();
        const QTextFrameFormat format = place.frame->frameFormat();
        place.sideSpace +=
            format.leftMargin() + format.rightMargin() + 2 * (format.padding() + format.border());
        if (qobject_cast<const QTextTable *>(place.frame))
            ++place.tables;
        if (place.tables > deepestTables)
            return false;
        height += ownHeight(*place.frame, lengths);
        for (auto child = place.frame->begin(); !child.atEnd(); ++child) {
            if (child.currentFrame())
                places.push_back({child.currentFrame(), place.sideSpace, place.tables});
            else
                height += heightOf(document, place, child.currentBlock());
        }
    }
    return height <= tallest;
}
