// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the control words do.

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfInterpreter.h"

#include <algorithm>

namespace {

// A word such as \b switches on, \b0 off.
bool isOn(const RtfToken &token) {
    return !token.hasParameter || token.parameter != 0;
}

} // namespace

void RtfInterpreter::apply(const RtfKeyword &keyword, const RtfToken &token) {
    switch (keyword.action) {
    case RtfAction::InsertCharacter:
        addCharacter(static_cast<char16_t>(keyword.value));
        return;
    case RtfAction::Unicode:
        addUnicode(token.parameter);
        return;
    default:
        break;
    }
    flush();
    if (applyToHead(keyword, token) || applyToCharacters(keyword, token) ||
        applyToTable(keyword, token) || applyToPicture(keyword, token))
        return;
    applyToParagraph(keyword, token);
}

bool RtfInterpreter::applyToHead(const RtfKeyword &keyword, const RtfToken &token) {
    const bool isFontTable = m_state.destination == RtfDestination::FontTable;
    switch (keyword.action) {
    case RtfAction::BeginDestination:
        beginDestination(static_cast<RtfDestination>(keyword.value));
        return true;
    case RtfAction::UnicodeSkip: {
        constexpr int most = 255;
        m_state.unicodeSkip = std::clamp(token.hasParameter ? token.parameter : 1, 0, most);
        return true;
    }
    case RtfAction::SetCodePage:
        if (const int codePage = token.hasParameter ? token.parameter : keyword.value; codePage > 0)
            m_documentCodePage = codePage;
        return true;
    case RtfAction::DefaultFont:
        m_tables.defaultFont = token.parameter;
        return true;
    case RtfAction::FontCharacterSet:
        if (isFontTable)
            m_fontReader.setCodePage(codePageOfCharacterSet(token.parameter).value_or(0));
        return true;
    case RtfAction::FontCodePage:
        if (isFontTable)
            m_fontReader.setCodePage(std::max(token.parameter, 0));
        return true;
    case RtfAction::FontStyle:
        if (isFontTable)
            m_fontReader.setStyle(static_cast<QFont::StyleHint>(keyword.value));
        return true;
    case RtfAction::Red:
        m_colorReader.setRed(token.parameter);
        return true;
    case RtfAction::Green:
        m_colorReader.setGreen(token.parameter);
        return true;
    case RtfAction::Blue:
        m_colorReader.setBlue(token.parameter);
        return true;
    default:
        return false;
    }
}

bool RtfInterpreter::applyToCharacters(const RtfKeyword &keyword, const RtfToken &token) {
    RtfCharacterState &character = m_state.character;
    switch (keyword.action) {
    case RtfAction::PlainCharacters: {
        const int link = character.link; // it belongs to the field around
        character = {};
        character.link = link;
        return true;
    }
    case RtfAction::Bold:
        character.isBold = isOn(token);
        return true;
    case RtfAction::Italic:
        character.isItalic = isOn(token);
        return true;
    case RtfAction::Underline:
        character.isUnderlined = keyword.value >= 0 && isOn(token);
        return true;
    case RtfAction::StrikeOut:
        character.isStruckOut = isOn(token);
        return true;
    case RtfAction::Hidden:
        character.isHidden = isOn(token);
        return true;
    case RtfAction::Capitalization:
        character.capitalization =
            isOn(token) ? static_cast<QFont::Capitalization>(keyword.value) : QFont::MixedCase;
        return true;
    case RtfAction::Script:
        character.script = isOn(token) ? keyword.value : 0;
        return true;
    case RtfAction::Font:
        selectFont(token.parameter);
        return true;
    case RtfAction::FontSize:
        character.halfPoints = token.parameter > 0 ? token.parameter : 24;
        return true;
    case RtfAction::Foreground:
        character.foreground = token.parameter;
        return true;
    case RtfAction::Background:
        character.background = token.parameter;
        return true;
    default:
        return false;
    }
}

void RtfInterpreter::selectFont(int number) {
    if (m_state.destination == RtfDestination::FontTable) {
        m_fontReader.end(m_tables);
        m_fontReader.begin(number);
    } else {
        m_state.character.font = std::max(number, 0);
    }
}

bool RtfInterpreter::applyToParagraph(const RtfKeyword &keyword, const RtfToken &token) {
    RtfParagraphState &paragraph = m_state.paragraph;
    switch (keyword.action) {
    case RtfAction::EndParagraph:
        if (m_state.destination == RtfDestination::Body)
            m_writer.endParagraph(paragraph);
        return true;
    case RtfAction::PlainParagraph:
        paragraph = {};
        return true;
    case RtfAction::Alignment:
        paragraph.alignment = static_cast<Qt::Alignment>(keyword.value);
        return true;
    case RtfAction::Direction:
        paragraph.direction = static_cast<Qt::LayoutDirection>(keyword.value);
        return true;
    case RtfAction::LeftIndent:
        paragraph.leftIndent = token.parameter;
        return true;
    case RtfAction::RightIndent:
        paragraph.rightIndent = token.parameter;
        return true;
    case RtfAction::FirstIndent:
        paragraph.firstIndent = token.parameter;
        return true;
    case RtfAction::SpaceBefore:
        paragraph.spaceBefore = token.parameter;
        return true;
    case RtfAction::SpaceAfter:
        paragraph.spaceAfter = token.parameter;
        return true;
    case RtfAction::LineSpacing:
        paragraph.lineSpacing = token.parameter;
        return true;
    case RtfAction::LineSpacingMultiple:
        paragraph.lineSpacingIsMultiple = token.parameter != 0;
        return true;
    case RtfAction::OutlineLevel:
        paragraph.outlineLevel = token.hasParameter ? token.parameter : -1;
        return true;
    case RtfAction::TabStop:
        if (paragraph.tabStopCount < paragraph.tabStops.size())
            paragraph.tabStops.at(paragraph.tabStopCount++) = token.parameter;
        return true;
    default:
        return false;
    }
}

bool RtfInterpreter::applyToTable(const RtfKeyword &keyword, const RtfToken &token) {
    switch (keyword.action) {
    case RtfAction::InTable:
        m_state.paragraph.isInTable = true;
        return true;
    case RtfAction::StartRow:
        m_writer.startRow();
        return true;
    case RtfAction::CellEdge:
        m_writer.addCellEdge(token.parameter);
        return true;
    case RtfAction::Border:
        m_writer.addBorder();
        return true;
    case RtfAction::EndCell:
        if (m_state.destination == RtfDestination::Body)
            m_writer.endCell(m_state);
        return true;
    case RtfAction::EndRow:
        if (m_state.destination == RtfDestination::Body)
            m_writer.endRow(m_state.paragraph);
        return true;
    default:
        return false;
    }
}

bool RtfInterpreter::applyToPicture(const RtfKeyword &keyword, const RtfToken &token) {
    switch (keyword.action) {
    case RtfAction::PictureFormat:
        m_picture.isSupported = true;
        return true;
    case RtfAction::PictureWidth:
        m_picture.width = token.parameter;
        return true;
    case RtfAction::PictureHeight:
        m_picture.height = token.parameter;
        return true;
    case RtfAction::PictureScaleX:
        m_picture.scaleX = token.parameter;
        return true;
    case RtfAction::PictureScaleY:
        m_picture.scaleY = token.parameter;
        return true;
    default:
        return false;
    }
}
