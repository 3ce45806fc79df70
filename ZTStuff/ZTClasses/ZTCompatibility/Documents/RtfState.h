#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What holds at one place of a rich text: how its text looks and where it goes.

#include <QColor>
#include <QFont>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

// Where the text of a group goes.
enum class RtfDestination : std::uint8_t {
    Body,
    Skipped,
    FontTable,
    ColorTable,
    FieldInstruction,
    Picture,
    Attachment
};

// Plain values only: it is copied at the start of every group.
struct RtfCharacterState {
    static constexpr int defaultFont = -1; // the font that the document's head names
    static constexpr int noLink = -1;

    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    bool isHidden = false;
    QFont::Capitalization capitalization = QFont::MixedCase;
    int script = 0; // 1 superscript, -1 subscript
    int font = defaultFont;
    int halfPoints = 24;
    int foreground = 0; // index of a colour; 0 is the usual one
    int background = 0;
    int link = noLink; // index into RtfTables::links

    bool operator==(const RtfCharacterState &) const = default;
};

// Lengths are in twips, the twentieth part of a point.
struct RtfParagraphState {
    Qt::Alignment alignment = Qt::AlignLeading;
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstIndent = 0;
    int spaceBefore = 0;
    int spaceAfter = 0;
    int lineSpacing = 0;
    bool lineSpacingIsMultiple = false;
    int outlineLevel = -1; // 0 is the highest heading
    bool isInTable = false;
    std::array<int, 16> tabStops = {};
    std::size_t tabStopCount = 0;
};

struct RtfState {
    RtfDestination destination = RtfDestination::Body;
    bool beginsDestination = false; // ends with this group
    int unicodeSkip = 1;            // characters after \uN that say the same for old readers
    RtfCharacterState character;
    RtfParagraphState paragraph;
};

struct RtfFont {
    QStringList families;
    QFont::StyleHint styleHint = QFont::AnyStyle;
    int codePage = 0; // 0: that of the document
};

// What the document's head declares, and the links that were met.
struct RtfTables {
    QHash<int, RtfFont> fonts;
    int defaultFont = 0;
    QList<QColor> colors; // an invalid colour is the usual one
    QStringList links;
};
