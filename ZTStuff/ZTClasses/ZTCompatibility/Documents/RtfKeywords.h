#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The control words of rich text that mean something here.

#include <cstdint>
#include <optional>
#include <string_view>

enum class RtfAction : std::uint8_t {
    // Text and its destinations; `value` is the character or the RtfDestination.
    InsertCharacter,
    BeginDestination,
    Unicode,
    UnicodeSkip,
    // The document's head.
    SetCodePage,
    DefaultFont,
    FontCharacterSet,
    FontCodePage,
    FontStyle,
    Red,
    Green,
    Blue,
    // Characters; `value` is what a word without a choice of its own sets.
    PlainCharacters,
    Bold,
    Italic,
    Underline,
    StrikeOut,
    Hidden,
    Capitalization,
    Script,
    Font,
    FontSize,
    Foreground,
    Background,
    // Paragraphs.
    EndParagraph,
    PlainParagraph,
    Alignment,
    Direction,
    LeftIndent,
    RightIndent,
    FirstIndent,
    SpaceBefore,
    SpaceAfter,
    LineSpacing,
    LineSpacingMultiple,
    OutlineLevel,
    TabStop,
    // Tables.
    InTable,
    StartRow,
    CellEdge,
    Border,
    EndCell,
    EndRow,
    // Pictures.
    PictureFormat,
    PictureWidth,
    PictureHeight,
    PictureScaleX,
    PictureScaleY
};

struct RtfKeyword {
    std::string_view name;
    RtfAction action;
    int value = 0;
};

// No value for a word that is unknown. Thread: any.
std::optional<RtfKeyword> findRtfKeyword(std::string_view name);
