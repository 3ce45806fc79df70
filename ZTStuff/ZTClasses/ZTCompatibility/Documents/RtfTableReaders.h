#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The font table and the colour table in the head of a rich text, read entry by entry.

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfState.h"

#include <QString>

// The families to try for a font's name as it is written there: "Georgia-Bold" is "Georgia",
// "TimesNewRomanPSMT" is "Times New Roman". Empty where the reader's own font is to be taken: for
// the names of a system's hidden fonts, and for the fonts of text that nobody chose a font for.
// Thread: any.
QStringList rtfFontFamilies(const QString &name);

// Gathers the entries of a font table: number, kind and name, each ended by a semicolon.
class RtfFontTableReader {
public:
    void begin(int number);
    void setStyle(QFont::StyleHint hint) { m_font.styleHint = hint; }
    void setCodePage(int codePage) { m_font.codePage = codePage; }
    // 0 while none is known.
    int codePage() const { return m_font.codePage; }
    void addText(const QString &text, RtfTables &tables);
    // Ends an entry that has no semicolon.
    void end(RtfTables &tables);

private:
    int m_number = 0;
    RtfFont m_font;
    QString m_name;
};

// Gathers the entries of a colour table: red, green and blue, each ended by a semicolon. An entry
// without any is the usual colour.
class RtfColorTableReader {
public:
    void setRed(int value) { set(m_red, value); }
    void setGreen(int value) { set(m_green, value); }
    void setBlue(int value) { set(m_blue, value); }
    void addText(const QString &text, RtfTables &tables);

private:
    void set(int &component, int value);

    int m_red = 0;
    int m_green = 0;
    int m_blue = 0;
    bool m_isSet = false;
};
