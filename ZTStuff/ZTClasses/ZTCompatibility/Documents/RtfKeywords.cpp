// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfKeywords.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfState.h"

#include <algorithm>
#include <array>

namespace {

using enum RtfAction;

constexpr RtfKeyword character(std::string_view name, char16_t value) {
    return {name, InsertCharacter, value};
}

constexpr RtfKeyword destination(std::string_view name, RtfDestination value) {
    return {name, BeginDestination, static_cast<int>(value)};
}

constexpr RtfKeyword skipped(std::string_view name) {
    return destination(name, RtfDestination::Skipped);
}

constexpr std::array unsortedKeywords = {
    // The document's head and what is not part of its text.
    RtfKeyword{"ansi", SetCodePage, 1252}, RtfKeyword{"mac", SetCodePage, 10000},
    RtfKeyword{"pc", SetCodePage, 437}, RtfKeyword{"pca", SetCodePage, 850},
    RtfKeyword{"ansicpg", SetCodePage}, RtfKeyword{"deff", DefaultFont},
    destination("fonttbl", RtfDestination::FontTable), RtfKeyword{"fcharset", FontCharacterSet},
    RtfKeyword{"cpg", FontCodePage}, RtfKeyword{"froman", FontStyle, QFont::Serif},
    RtfKeyword{"fswiss", FontStyle, QFont::SansSerif},
    RtfKeyword{"fmodern", FontStyle, QFont::Monospace},
    RtfKeyword{"fscript", FontStyle, QFont::Cursive},
    RtfKeyword{"fdecor", FontStyle, QFont::Decorative},
    destination("colortbl", RtfDestination::ColorTable), RtfKeyword{"red", Red},
    RtfKeyword{"green", Green}, RtfKeyword{"blue", Blue}, skipped("stylesheet"), skipped("info"),
    skipped("header"), skipped("headerl"), skipped("headerr"), skipped("headerf"),
    skipped("footer"), skipped("footerl"), skipped("footerr"), skipped("footerf"),
    skipped("filetbl"), skipped("listtable"), skipped("listoverridetable"), skipped("rsidtbl"),
    skipped("revtbl"), skipped("nonshppict"), skipped("objdata"), skipped("xe"), skipped("tc"),
    skipped("tcn"), skipped("private"),

    // Destinations whose text is shown, and whose mark "ignore me" is therefore ignored.
    destination("shppict", RtfDestination::Body),
    destination("fldinst", RtfDestination::FieldInstruction),
    destination("listtext", RtfDestination::Body), destination("pntext", RtfDestination::Body),
    destination("NeXTGraphic", RtfDestination::Attachment),

    // Characters by name.
    character("tab", u'\t'), character("line", u'\u2028'), character("softline", u'\u2028'),
    character("lbr", u'\u2028'), character("emdash", u'\u2014'), character("endash", u'\u2013'),
    character("bullet", u'\u2022'), character("lquote", u'\u2018'), character("rquote", u'\u2019'),
    character("ldblquote", u'\u201C'), character("rdblquote", u'\u201D'),
    character("emspace", u'\u2003'), character("enspace", u'\u2002'),
    character("qmspace", u'\u2005'), character("zwbo", u'\u200B'), character("zwnbo", u'\u2060'),
    character("zwj", u'\u200D'), character("zwnj", u'\u200C'), character("ltrmark", u'\u200E'),
    character("rtlmark", u'\u200F'), character("nestcell", u'\t'), character("nestrow", u'\u2028'),
    RtfKeyword{"u", Unicode}, RtfKeyword{"uc", UnicodeSkip},

    // How characters look.
    RtfKeyword{"plain", PlainCharacters}, RtfKeyword{"b", Bold}, RtfKeyword{"i", Italic},
    RtfKeyword{"ul", Underline}, RtfKeyword{"uld", Underline}, RtfKeyword{"uldash", Underline},
    RtfKeyword{"uldb", Underline}, RtfKeyword{"ulth", Underline}, RtfKeyword{"ulw", Underline},
    RtfKeyword{"ulwave", Underline}, RtfKeyword{"ulnone", Underline, -1},
    RtfKeyword{"strike", StrikeOut}, RtfKeyword{"striked", StrikeOut}, RtfKeyword{"v", Hidden},
    RtfKeyword{"deleted", Hidden}, RtfKeyword{"caps", Capitalization, QFont::AllUppercase},
    RtfKeyword{"scaps", Capitalization, QFont::SmallCaps}, RtfKeyword{"super", Script, 1},
    RtfKeyword{"sub", Script, -1}, RtfKeyword{"nosupersub", Script, 0}, RtfKeyword{"f", Font},
    RtfKeyword{"fs", FontSize}, RtfKeyword{"cf", Foreground}, RtfKeyword{"cb", Background},
    RtfKeyword{"chcbpat", Background}, RtfKeyword{"highlight", Background},

    // Paragraphs.
    RtfKeyword{"par", EndParagraph}, RtfKeyword{"sect", EndParagraph},
    RtfKeyword{"page", EndParagraph}, RtfKeyword{"column", EndParagraph},
    RtfKeyword{"pard", PlainParagraph}, RtfKeyword{"ql", Alignment, Qt::AlignLeft},
    RtfKeyword{"qr", Alignment, Qt::AlignRight}, RtfKeyword{"qc", Alignment, Qt::AlignHCenter},
    RtfKeyword{"qj", Alignment, Qt::AlignJustify},
    RtfKeyword{"qnatural", Alignment, Qt::AlignLeading},
    RtfKeyword{"ltrpar", Direction, Qt::LeftToRight},
    RtfKeyword{"rtlpar", Direction, Qt::RightToLeft}, RtfKeyword{"li", LeftIndent},
    RtfKeyword{"ri", RightIndent}, RtfKeyword{"fi", FirstIndent}, RtfKeyword{"sb", SpaceBefore},
    RtfKeyword{"sa", SpaceAfter}, RtfKeyword{"sl", LineSpacing},
    RtfKeyword{"slmult", LineSpacingMultiple}, RtfKeyword{"outlinelevel", OutlineLevel},
    RtfKeyword{"tx", TabStop},

    // Tables.
    RtfKeyword{"intbl", InTable}, RtfKeyword{"trowd", StartRow}, RtfKeyword{"cellx", CellEdge},
    RtfKeyword{"brdrs", Border}, RtfKeyword{"brdrth", Border}, RtfKeyword{"brdrdb", Border},
    RtfKeyword{"brdrhair", Border}, RtfKeyword{"cell", EndCell}, RtfKeyword{"row", EndRow},

    // Pictures; "width" and "height" are those of an attached one.
    destination("pict", RtfDestination::Picture), RtfKeyword{"pngblip", PictureFormat},
    RtfKeyword{"jpegblip", PictureFormat}, RtfKeyword{"picwgoal", PictureWidth},
    RtfKeyword{"pichgoal", PictureHeight}, RtfKeyword{"width", PictureWidth},
    RtfKeyword{"height", PictureHeight}, RtfKeyword{"picscalex", PictureScaleX},
    RtfKeyword{"picscaley", PictureScaleY}};

template <std::size_t size>
constexpr auto sorted(std::array<RtfKeyword, size> keywords) {
    std::ranges::sort(keywords, {}, &RtfKeyword::name);
    return keywords;
}

constexpr auto keywords = sorted(unsortedKeywords);

static_assert(std::ranges::adjacent_find(keywords, {}, &RtfKeyword::name) == keywords.end(),
              "a control word stands twice in the table");

} // namespace

std::optional<RtfKeyword> findRtfKeyword(std::string_view name) {
    const auto *found = std::ranges::lower_bound(keywords, name, {}, &RtfKeyword::name);
    if (found == keywords.end() || found->name != name)
        return std::nullopt;
    return *found;
}
