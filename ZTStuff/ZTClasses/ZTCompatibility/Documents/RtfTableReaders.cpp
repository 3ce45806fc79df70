// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfTableReaders.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestFontName = 128;
constexpr qsizetype mostFonts = 4096;
constexpr qsizetype mostColors = 4096;

// Drops a style such as "-BoldItalic" and the marks "PS" and "MT" of PostScript names.
QString withoutStyle(const QString &name) {
    static const std::array styles = {"bold"_L1,  "italic"_L1, "oblique"_L1,  "regular"_L1,
                                      "light"_L1, "medium"_L1, "semibold"_L1, "roman"_L1,
                                      "heavy"_L1, "thin"_L1,   "demibold"_L1, "book"_L1};
    QString family = name;
    if (const qsizetype dash = family.indexOf(u'-'); dash > 0) {
        const QString style = family.mid(dash + 1).toLower();
        const auto begins = [&](QLatin1StringView start) { return style.startsWith(start); };
        if (std::ranges::any_of(styles, begins))
            family.truncate(dash);
    }
    for (const QLatin1StringView mark : {"MT"_L1, "PS"_L1}) {
        if (family.size() > mark.size() && family.endsWith(mark))
            family.chop(mark.size());
    }
    return family;
}

// "TimesNewRoman" is "Times New Roman".
QString withBlanks(const QString &name) {
    if (name.contains(u' '))
        return name;
    QString spaced;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (i > 0 && name[i].isUpper() && name[i - 1].isLower())
            spaced += u' ';
        spaced += name[i];
    }
    return spaced;
}

// What a text editor's documents say when nobody chose a font. Where the family is not installed,
// its stand-in is often an old font that has few scripts.
bool isFontOfUnstyledText(const QString &family) {
    static const std::array families = {"Helvetica"_L1, "Helvetica Neue"_L1, "Lucida Grande"_L1};
    return std::ranges::find(families, family) != families.end();
}

} // namespace

QStringList rtfFontFamilies(const QString &name) {
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || trimmed.startsWith(u'.') || trimmed.size() > longestFontName)
        return {};
    QStringList families = {trimmed};
    const QString family = withoutStyle(trimmed);
    if (isFontOfUnstyledText(withBlanks(family)))
        return {};
    for (const QString &candidate : {family, withBlanks(family)}) {
        if (!families.contains(candidate))
            families.append(candidate);
    }
    // A family is found more surely than the name of one of its faces.
    std::ranges::reverse(families);
    return families;
}

void RtfFontTableReader::begin(int number) {
    m_number = number;
    m_font = {};
    m_name.clear();
}

void RtfFontTableReader::addText(const QString &text, RtfTables &tables) {
    for (const QChar character : text) {
        if (character == u';') {
            end(tables);
        } else if (m_name.size() <= longestFontName) {
            m_name += character;
        }
    }
}

void RtfFontTableReader::end(RtfTables &tables) {
    if (m_name.isEmpty())
        return;
    m_font.families = rtfFontFamilies(m_name);
    if (tables.fonts.size() < mostFonts)
        tables.fonts.insert(m_number, m_font);
    m_name.clear();
}

void RtfColorTableReader::addText(const QString &text, RtfTables &tables) {
    for (qsizetype count = text.count(u';'); count > 0; --count) {
        if (tables.colors.size() < mostColors)
            tables.colors.append(m_isSet ? QColor(m_red, m_green, m_blue) : QColor());
        *this = {};
    }
}

void RtfColorTableReader::set(int &component, int value) {
    constexpr int largest = 255;
    component = std::clamp(value, 0, largest);
    m_isSet = true;
}
