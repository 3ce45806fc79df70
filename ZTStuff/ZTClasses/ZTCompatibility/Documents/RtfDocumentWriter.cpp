// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfDocumentWriter.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <QTextBlockFormat>
#include <QTextTableFormat>

#include <algorithm>
#include <cstdlib>
#include <span>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// A table is laid out anew whenever it grows; a long one is continued by another.
constexpr int maximumRows = 200;
constexpr int maximumColumns = 63;

// Lengths on the screen are in pixels of 1/96 inch, at any resolution.
qreal pixels(int twips) {
    constexpr int farthest = 31'680; // 22 inches, the largest page
    return std::clamp(twips, -farthest, farthest) / 15.0;
}

QColor colorAt(const RtfTables &tables, int index) {
    return index >= 0 && index < tables.colors.size() ? tables.colors[index] : QColor();
}

QTextCharFormat::VerticalAlignment verticalAlignment(int script) {
    if (script == 0)
        return QTextCharFormat::AlignNormal;
    return script > 0 ? QTextCharFormat::AlignSuperScript : QTextCharFormat::AlignSubScript;
}

void setFont(QTextCharFormat &format, const RtfFont &font) {
    if (!font.families.isEmpty())
        format.setFontFamilies(font.families);
    if (font.styleHint != QFont::AnyStyle)
        format.setFontStyleHint(font.styleHint);
    if (font.styleHint == QFont::Monospace)
        format.setFontFixedPitch(true);
}

QTextCharFormat makeFormat(const RtfCharacterState &character, const RtfTables &tables) {
    constexpr int largestHalfPoints = 400;
    QTextCharFormat format;
    const bool isDefaultFont = character.font == RtfCharacterState::defaultFont;
    setFont(format, tables.fonts.value(isDefaultFont ? tables.defaultFont : character.font));
    format.setFontPointSize(std::clamp(character.halfPoints, 2, largestHalfPoints) / 2.0);
    format.setFontWeight(character.isBold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(character.isItalic);
    format.setFontUnderline(character.isUnderlined);
    format.setFontStrikeOut(character.isStruckOut);
    format.setFontCapitalization(character.capitalization);
    format.setVerticalAlignment(verticalAlignment(character.script));
    const QColor foreground = colorAt(tables, character.foreground);
    format.setForeground(foreground.isValid() ? foreground : QColor(Qt::black));
    if (const QColor background = colorAt(tables, character.background); background.isValid())
        format.setBackground(background);
    if (character.link >= 0 && character.link < tables.links.size()) {
        format.setAnchor(true);
        format.setAnchorHref(tables.links[character.link]);
    }
    return format;
}

void setLineSpacing(QTextBlockFormat &format, const RtfParagraphState &paragraph) {
    constexpr int oneLine = 240;
    if (paragraph.lineSpacing == 0)
        return;
    if (paragraph.lineSpacingIsMultiple && paragraph.lineSpacing > 0) {
        const int spacing = std::clamp(paragraph.lineSpacing, oneLine / 2, oneLine * 4);
        format.setLineHeight(spacing * 100.0 / oneLine, QTextBlockFormat::ProportionalHeight);
    } else if (!paragraph.lineSpacingIsMultiple) {
        // A negative number is the exact height, but lines shall never overlap.
        format.setLineHeight(std::abs(pixels(paragraph.lineSpacing)),
                             QTextBlockFormat::MinimumHeight);
    }
}

// Tab stops count from the page's edge there, and from the start of the first line here.
QList<QTextOption::Tab> tabStops(const RtfParagraphState &paragraph, int leftIndent) {
    const int lineStart = leftIndent + std::max(paragraph.firstIndent, -leftIndent);
    const std::span stops(paragraph.tabStops.data(), paragraph.tabStopCount);
    std::vector<int> positions(stops.begin(), stops.end());
    // Where the first line stands out, the indent of the others is a tab stop of its own.
    if (lineStart < leftIndent)
        positions.push_back(leftIndent);
    std::ranges::sort(positions);
    QList<QTextOption::Tab> tabs;
    for (const int position : positions) {
        if (position > lineStart)
            tabs.append(QTextOption::Tab(pixels(position - lineStart), QTextOption::LeftTab));
    }
    return tabs;
}

QTextBlockFormat makeFormat(const RtfParagraphState &paragraph) {
    constexpr int deepestHeading = 6;
    QTextBlockFormat format;
    const int leftIndent = std::max(paragraph.leftIndent, 0);
    format.setAlignment(paragraph.alignment);
    format.setLayoutDirection(paragraph.direction);
    format.setLeftMargin(pixels(leftIndent));
    format.setRightMargin(pixels(std::max(paragraph.rightIndent, 0)));
    // The first line may stand out to the left, but not of the page.
    format.setTextIndent(pixels(std::max(paragraph.firstIndent, -leftIndent)));
    format.setTopMargin(pixels(std::max(paragraph.spaceBefore, 0)));
    format.setBottomMargin(pixels(std::max(paragraph.spaceAfter, 0)));
    setLineSpacing(format, paragraph);
    if (paragraph.outlineLevel >= 0 && paragraph.outlineLevel < deepestHeading)
        format.setHeadingLevel(paragraph.outlineLevel + 1);
    format.setTabPositions(tabStops(paragraph, leftIndent));
    return format;
}

// The shares that the columns have of the table's width; empty when the edges make no sense.
QList<QTextLength> columnWidths(const QList<int> &edges) {
    QList<QTextLength> widths;
    int left = 0;
    for (const int edge : edges) {
        if (edge <= left)
            return {};
        widths.append(
            QTextLength(QTextLength::PercentageLength, 100.0 * (edge - left) / edges.last()));
        left = edge;
    }
    return widths;
}

} // namespace

RtfDocumentWriter::RtfDocumentWriter(SelfContainedDocument &document, const RtfTables &tables)
    : m_tables(tables)
    , m_cursor(&document)
    , m_charactersLeft(maximumShownCharacters)
    , m_paragraphsLeft(maximumShownParagraphs) {
    // The usual distance of tab stops is half an inch.
    constexpr qreal tabStopDistance = 48;
    QTextOption option = document.defaultTextOption();
    option.setTabStopDistance(tabStopDistance);
    document.setDefaultTextOption(option);
    // Outside of an edit block, every insertion would lay its whole paragraph out.
    m_cursor.beginEditBlock();
}

void RtfDocumentWriter::insertText(const QString &text, const RtfState &state) {
    if (text.isEmpty() || !prepareInsertion(state.paragraph))
        return;
    const QTextCharFormat &format = characterFormat(state.character);
    if (text.size() <= m_charactersLeft) {
        m_charactersLeft -= text.size();
        m_cursor.insertText(text, format);
        return;
    }
    qsizetype length = m_charactersLeft;
    if (length > 0 && text[length - 1].isHighSurrogate())
        --length;
    m_cursor.insertText(text.left(length), format);
    stopWriting();
}

void RtfDocumentWriter::insertPicture(const QString &name, int width, int height,
                                      const RtfState &state) {
    if (!prepareInsertion(state.paragraph))
        return;
    QTextImageFormat format;
    format.setName(name);
    if (width > 0)
        format.setWidth(pixels(width));
    if (height > 0)
        format.setHeight(pixels(height));
    m_cursor.insertImage(format);
}

void RtfDocumentWriter::endParagraph(const RtfParagraphState &paragraph) {
    if (!prepareInsertion(paragraph))
        return;
    m_cursor.setBlockFormat(makeFormat(paragraph));
    m_paragraphHasEnded = true;
}

void RtfDocumentWriter::finish(const RtfParagraphState &paragraph) {
    if (!m_paragraphHasEnded && !m_table)
        m_cursor.setBlockFormat(makeFormat(paragraph));
    m_cursor.endEditBlock();
}

void RtfDocumentWriter::startRow() {
    m_cellEdges.clear();
    m_hasBorder = false;
}

void RtfDocumentWriter::addCellEdge(int edge) {
    if (m_cellEdges.size() < maximumColumns)
        m_cellEdges.append(edge);
}

void RtfDocumentWriter::addBorder() {
    m_hasBorder = true;
}

void RtfDocumentWriter::endCell(const RtfState &state) {
    if (!state.paragraph.isInTable) {
        insertText(u"\t"_s, state); // a cell of no table
        return;
    }
    if (!prepareInsertion(state.paragraph))
        return;
    m_cursor.setBlockFormat(makeFormat(state.paragraph));
    m_cellIsOpen = false;
    // A row that is too wide is continued by the next one.
    if (++m_column >= maximumColumns)
        m_rowIsOpen = false;
}

void RtfDocumentWriter::endRow(const RtfParagraphState &paragraph) {
    if (!m_table) {
        endParagraph(paragraph);
        return;
    }
    m_rowIsOpen = false;
    m_paragraphHasEnded = false;
}

// Brings the cursor to where the next text of a paragraph with these properties belongs. Answers
// whether anything may still be written.
bool RtfDocumentWriter::prepareInsertion(const RtfParagraphState &paragraph) {
    if (m_isFull)
        return false;
    const bool tableIsLong = m_table && !m_rowIsOpen && m_row + 1 >= maximumRows;
    if (m_table && (!paragraph.isInTable || tableIsLong))
        closeTable();
    if (paragraph.isInTable && !m_table)
        openTable();
    if (m_table && !m_rowIsOpen)
        openRow();
    if (m_table && !m_cellIsOpen)
        openCell();
    if (std::exchange(m_paragraphHasEnded, false)) {
        m_cursor.insertBlock(QTextBlockFormat());
        --m_paragraphsLeft;
    }
    if (m_paragraphsLeft < 0)
        stopWriting();
    return !m_isFull;
}

void RtfDocumentWriter::stopWriting() {
    m_cursor.insertText(u"\u2026"_s);
    m_isFull = true;
}

void RtfDocumentWriter::openRow() {
    m_rowIsOpen = true;
    m_cellIsOpen = false;
    m_column = 0;
    if (++m_row >= m_table->rows()) {
        m_table->appendRows(1);
        m_paragraphsLeft -= m_table->columns();
    }
}

void RtfDocumentWriter::openCell() {
    m_cellIsOpen = true;
    m_paragraphHasEnded = false;
    // A row can have more cells than were announced.
    if (m_column >= m_table->columns()) {
        m_table->appendColumns(1);
        m_paragraphsLeft -= m_table->rows();
    }
    m_cursor = m_table->cellAt(m_row, m_column).lastCursorPosition();
}

void RtfDocumentWriter::openTable() {
    constexpr qreal cellPadding = 4;
    QTextTableFormat format;
    format.setCellSpacing(0);
    format.setCellPadding(cellPadding);
    format.setBorderCollapse(true);
    format.setBorder(m_hasBorder ? 1 : 0);
    format.setBorderBrush(Qt::lightGray);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setColumnWidthConstraints(columnWidths(m_cellEdges));
    if (!format.columnWidthConstraints().isEmpty())
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    const int columns = std::max(static_cast<int>(m_cellEdges.size()), 1);
    m_table = m_cursor.insertTable(1, columns, format);
    m_row = -1;
    m_rowIsOpen = false;
    m_paragraphHasEnded = false;
    m_paragraphsLeft -= columns + 1;
}

void RtfDocumentWriter::closeTable() {
    m_cursor.setPosition(m_table->lastPosition() + 1);
    m_cursor.setBlockFormat(QTextBlockFormat());
    m_table = nullptr;
    m_rowIsOpen = false;
    m_paragraphHasEnded = false;
}

const QTextCharFormat &RtfDocumentWriter::characterFormat(const RtfCharacterState &character) {
    if (m_formatState != character) {
        m_format = makeFormat(character, m_tables);
        m_formatState = character;
    }
    return m_format;
}
