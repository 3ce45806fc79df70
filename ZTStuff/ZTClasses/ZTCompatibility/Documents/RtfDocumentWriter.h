#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The text document that a rich text becomes, written from its beginning to its end.

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfState.h"

#include <QPointer>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextTable>

#include <optional>

class SelfContainedDocument;

// Turns states into formats, and rows and cells into tables. Stops to write when the document is as
// long as it may become. Thread: main.
class RtfDocumentWriter {
public:
    // Both must outlive it; the tables may grow meanwhile.
    RtfDocumentWriter(SelfContainedDocument &document, const RtfTables &tables);

    void insertText(const QString &text, const RtfState &state);
    // Zero or less stands for the picture's own width or height; lengths in twips.
    void insertPicture(const QString &name, int width, int height, const RtfState &state);
    // The paragraph gets the properties that hold at its end.
    void endParagraph(const RtfParagraphState &paragraph);
    // Gives the last paragraph its properties, when no other ended it. To be called once, at last.
    void finish(const RtfParagraphState &paragraph);

    // A row's cells are announced before its text, each by its right edge.
    void startRow();
    void addCellEdge(int edge);
    void addBorder();
    void endCell(const RtfState &state);
    void endRow(const RtfParagraphState &paragraph);

    bool isFull() const { return m_isFull; }

private:
    bool prepareInsertion(const RtfParagraphState &paragraph);
    void stopWriting();
    void openTable();
    void openRow();
    void openCell();
    void closeTable();
    const QTextCharFormat &characterFormat(const RtfCharacterState &character);

    const RtfTables &m_tables;
    QTextCursor m_cursor;
    bool m_paragraphHasEnded = false; // the next text begins a new one
    bool m_isFull = false;
    qsizetype m_charactersLeft;
    int m_paragraphsLeft;

    QPointer<QTextTable> m_table; // while text goes into one
    bool m_rowIsOpen = false;
    bool m_cellIsOpen = false;
    int m_row = 0;
    int m_column = 0;
    QList<int> m_cellEdges; // of the announced cells
    bool m_hasBorder = false;

    // The format made last, and what for: most texts follow one of the same state.
    std::optional<RtfCharacterState> m_formatState;
    QTextCharFormat m_format;
};
