// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentTestSupport.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentFinish.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfInterpreter.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfTableReaders.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextTable>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

using Document = std::unique_ptr<SelfContainedDocument>;

Document readContent(const QByteArray &content, const QString &folder = {}) {
    auto document = std::make_unique<SelfContainedDocument>(folder);
    RtfInterpreter({content.constData(), static_cast<std::size_t>(content.size())}, *document)
        .run();
    finishDocument(*document);
    return document;
}

// A western document with two fonts and two colours.
Document read(const QByteArray &body, const QString &folder = {}) {
    return readContent(R"({\rtf1\ansi\ansicpg1252\deff0)"
                       R"({\fonttbl{\f0\fswiss\fcharset0 Helvetica;})"
                       R"({\f1\fmodern\fcharset0 CourierNewPSMT;}{\f2\fnil\fcharset2 Symbol;}})"
                       R"({\colortbl;\red255\green0\blue0;\red0\green0\blue255;})" +
                           body + '}',
                       folder);
}

struct Row {
    const char *reason;
    QByteArray body;
    std::string expected;
};

void PrintTo(const Row &row, std::ostream *stream) {
    *stream << row.reason;
}

std::string rowName(const testing::TestParamInfo<Row> &row) {
    return row.param.reason;
}

class RtfText : public testing::TestWithParam<Row> {};

TEST_P(RtfText, isRead) {
    EXPECT_EQ(textOf(*read(GetParam().body)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, RtfText,
    testing::Values(Row{"par", R"(a\par b)", "a\nb"}, Row{"emptyOnes", R"(a\par\par b)", "a\n\nb"},
                    Row{"theLastMarkAddsNone", R"(a\par b\par)", "a\nb"},
                    Row{"aBackslashBeforeALineEnd", "a\\\nb\\\n", "a\nb"},
                    Row{"pagesAndSections", R"(a\page b\sect c\column d)", "a\nb\nc\nd"},
                    Row{"lines", R"(a\line b)", "a\nb"}, Row{"tabs", "a\\tab b\tc", "a\tb\tc"},
                    Row{"lineEndsInTheFileAreNone", "a\r\nb\nc", "abc"},
                    Row{"blanksAreKept", R"(a  b\b  c)", "a  b c"},
                    Row{"aLineEndAsAByte", R"(a\'0ab)", "a\nb"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Characters, RtfText,
    testing::Values(Row{"escapes", R"(\{\\\})", R"({\})"},
                    Row{"spacesAndHyphens", R"(a\~b\-c\_d)", "a b\u00ADc\u2011d"},
                    Row{"dashesAndQuotes",
                        R"(\emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote)", "—–•‘’“”"},
                    Row{"spacesByName", R"(a\emspace\enspace b\zwj)", "a\u2003\u2002b\u200D"},
                    Row{"unicode", R"(\u233?\u26085?)", "é日"},
                    Row{"negativeUnicode", R"(\u-10179?)", "�"},
                    Row{"surrogatePairs", R"(\u-10179?\u-8704?)", "😀"},
                    Row{"surrogatePairsOfCocoa", R"(\uc0\u55357 \u56832 x)", "😀x"},
                    Row{"unicodeBeyondSixteenBits", R"(\u128512?)", "😀"},
                    Row{"unicodeOfNothing", R"(a\u0?b)", "ab"},
                    Row{"halfAPair", R"(a\u55357?b)", "a�b"},
                    Row{"twoCharactersRepeatIt", R"({\uc2\u233 ab}\u233 cd)", "ééd"},
                    Row{"aByteRepeatsIt", R"(\u233\'e9x)", "éx"},
                    Row{"aSymbolRepeatsIt", R"(\u8226\bullet x)", "•x"},
                    Row{"aTabDoesNotRepeatIt", R"(\u8226\tab x)", "•\tx"},
                    Row{"aParagraphDoesNotRepeatIt", R"(\u233\par x)", "é\nx"},
                    Row{"theEndOfTheGroupEndsTheRepetition", R"({\uc5\u233 a}bc)", "ébc"},
                    Row{"nothingRepeatsItWhenTold", R"(\uc0\u233 ab)", "éab"},
                    Row{"controlCharactersAreDropped", R"(a\'01\'7fb)", "ab"},
                    Row{"charactersOfDocumentsAreReplaced", R"(a\u64976?\u65532?b)", "a��b"},
                    Row{"bulletsOfSymbolFonts", R"({\f2\'b7\u-3913?})", "••"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Destinations, RtfText,
    testing::Values(
        Row{"unknownOnesWithStarAreSkipped", R"(a{\*\unknown b{c}}d)", "ad"},
        Row{"unknownOnesWithoutStarAreText", R"(a{\unknown b}c)", "abc"},
        Row{"styleSheetsAndInformation", R"({\stylesheet{\s1 Heading;}}{\info{\title T}}x)", "x"},
        Row{"headersAndFooters", R"({\header h}{\footerl f}x)", "x"},
        Row{"binaryInASkippedOne", "a{\\*\\data\\bin3 }}}b}c", "ac"},
        Row{"hiddenText", R"(a{\v b}\v c\v0 d)", "ad"},
        Row{"linksShowTheirResult",
            R"re({\field{\*\fldinst{HYPERLINK "http://a.b"}}{\fldrslt text}})re", "text"},
        Row{"otherFieldsShowTheirResult", R"({\field{\*\fldinst PAGE}{\fldrslt 7}})", "7"},
        Row{"listMarksOfCocoa", "{\\listtext\t\\uc0\\u8226 \t}Item", "\t•\tItem"},
        Row{"listMarksOfOlderPrograms", R"({\pntext\f2\'B7\tab}{\*\pn\pnlvlblt{\pntxtb\'B7}}Item)",
            "•\tItem"},
        Row{"whatFollowsTheDocument", R"(a}b{c)", "a"},
        Row{"aPictureOfAnUnknownFormat", R"(a{\pict\wmetafile8 010203}b)", "ab"},
        Row{"aBrokenPicture", R"(a{\pict\pngblip 0102zz}b)", "ab"},
        Row{"theSecondFormOfAPicture",
            "{\\*\\shppict{\\pict\\pngblip " + pictureBytes(2, 2).toHex() +
                "}}{\\nonshppict{\\pict\\pngblip " + pictureBytes(2, 2).toHex() + "}}",
            "[picture]"}),
    rowName);

TEST(RtfTextTest, spacesThatDoNotBreakStaySo) {
    EXPECT_EQ(read(R"(a\~b)")->toRawText(), u"a\u00A0b"_s);
}

// Documents of other code pages: the whole file stands in the row.
class RtfCodePage : public testing::TestWithParam<Row> {};

TEST_P(RtfCodePage, isRead) {
    EXPECT_EQ(textOf(*readContent(GetParam().body)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    RtfReader, RtfCodePage,
    testing::Values(
        Row{"western", R"({\rtf1\ansi\ansicpg1252 caf\'e9 \'93x\'94 \'80})", "café “x” €"},
        Row{"westernWhenNothingIsTold", R"({\rtf1 caf\'e9})", "café"},
        Row{"westernWhenUnknown", R"({\rtf1\ansi\ansicpg12345 caf\'e9})", "café"},
        Row{"westernAsRawBytes", "{\\rtf1\\ansi caf\xE9}", "café"},
        Row{"centralEuropean", R"({\rtf1\ansi\ansicpg1250 P\'f8\'edli\'9a})", "Příliš"},
        Row{"cyrillic", R"({\rtf1\ansi\ansicpg1251 \'cf\'f0\'e8\'e2\'e5\'f2})", "Привет"},
        Row{"japanese", R"({\rtf1\ansi\ansicpg932 \'93\'fa\'96\'7b\'8c\'ea})", "日本語"},
        Row{"japaneseWithASecondByteOfAscii", R"({\rtf1\ansi\ansicpg932 \'83e\'83X\'83g})",
            "テスト"},
        Row{"japaneseWithAnEscapedSecondByte", R"({\rtf1\ansi\ansicpg932 \'95\\\'8e\'a6})", "表示"},
        Row{"macintosh", R"({\rtf1\mac caf\'8e \'d2x\'d3})", "café “x”"},
        Row{"dos", R"({\rtf1\pc caf\'82})", "café"},
        Row{"dosWithMoreLetters", R"({\rtf1\pca \'d5})", "ı"},
        Row{"utf8", R"({\rtf1\ansi\ansicpg65001 \'e6\'97\'a5})", "日"},
        Row{"theOneOfTheFont",
            R"({\rtf1\ansi\ansicpg1252{\fonttbl\f0\fcharset0 A;\f1\fcharset204 B;}\f0\'e9\f1\'e9\f0\'e9})",
            "éйé"},
        Row{"theOneOfTheMacintoshFont", R"({\rtf1\ansi{\fonttbl\f0\fcharset77 A;}\f0\'8e})", "é"},
        Row{"theOneOfTheDefaultFont",
            R"({\rtf1\ansi\deff3{\fonttbl{\f3\fcharset238 A;}}\'f8\plain\'f8})", "řř"},
        Row{"theOneThatTheFontNames", R"({\rtf1\ansi{\fonttbl{\f0\cpg1253 A;}}\f0\'e1})", "α"}),
    rowName);

TEST(RtfFormatTest, wordsSetTheLookOfCharacters) {
    const Document document =
        read(R"(\b bold\b0 {\i italic}\ul under\ulnone {\strike struck}{\super high}{\sub low})"
             R"({\fs48 large}{\scaps caps}{\cf1 red}{\cf2\cb1 both}{\highlight2 marked} plain)");
    EXPECT_EQ(formatOf(*document, u"bold"_s).fontWeight(), QFont::Bold);
    EXPECT_TRUE(formatOf(*document, u"italic"_s).fontItalic());
    EXPECT_TRUE(formatOf(*document, u"under"_s).fontUnderline());
    EXPECT_TRUE(formatOf(*document, u"struck"_s).fontStrikeOut());
    EXPECT_EQ(formatOf(*document, u"high"_s).verticalAlignment(),
              QTextCharFormat::AlignSuperScript);
    EXPECT_EQ(formatOf(*document, u"low"_s).verticalAlignment(), QTextCharFormat::AlignSubScript);
    EXPECT_EQ(formatOf(*document, u"large"_s).fontPointSize(), 24);
    EXPECT_EQ(formatOf(*document, u"caps"_s).fontCapitalization(), QFont::SmallCaps);
    EXPECT_EQ(formatOf(*document, u"red"_s).foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatOf(*document, u"both"_s).foreground().color(), QColor(0, 0, 255));
    EXPECT_EQ(formatOf(*document, u"both"_s).background().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatOf(*document, u"marked"_s).background().color(), QColor(0, 0, 255));

    const QTextCharFormat plain = formatOf(*document, u"plain"_s);
    EXPECT_EQ(plain.fontWeight(), QFont::Normal);
    EXPECT_FALSE(plain.fontItalic() || plain.fontUnderline() || plain.fontStrikeOut());
    EXPECT_EQ(plain.fontPointSize(), 12);
    EXPECT_EQ(plain.foreground().color(), QColor(Qt::black));
    EXPECT_FALSE(plain.hasProperty(QTextFormat::FontFamilies));
}

TEST(RtfFormatTest, theEndOfAGroupRestoresTheLook) {
    const Document document = read(R"({\b\i x{\b0 y}z}w)");
    EXPECT_EQ(formatOf(*document, u"y"_s).fontWeight(), QFont::Normal);
    EXPECT_TRUE(formatOf(*document, u"y"_s).fontItalic());
    EXPECT_EQ(formatOf(*document, u"z"_s).fontWeight(), QFont::Bold);
    EXPECT_EQ(formatOf(*document, u"w"_s).fontWeight(), QFont::Normal);
}

TEST(RtfFormatTest, plainResetsTheLook) {
    EXPECT_EQ(formatOf(*read(R"(\b\fs40\plain x)"), u"x"_s).fontWeight(), QFont::Normal);
}

TEST(RtfFormatTest, fontsAreFoundByTheirFamily) {
    const QTextCharFormat format = formatOf(*read(R"(\f1 code)"), u"code"_s);
    EXPECT_EQ(format.fontFamilies().toStringList().first(), u"Courier New"_s);
    EXPECT_TRUE(format.fontFixedPitch());
}

TEST(RtfFormatTest, namesOfFacesBecomeNamesOfFamilies) {
    EXPECT_EQ(rtfFontFamilies(u"Georgia-BoldItalic"_s).first(), u"Georgia"_s);
    EXPECT_EQ(rtfFontFamilies(u"TimesNewRomanPS-BoldMT"_s).first(), u"Times New Roman"_s);
    EXPECT_EQ(rtfFontFamilies(u"ArialMT"_s).first(), u"Arial"_s);
    EXPECT_EQ(rtfFontFamilies(u"Arial-Black"_s).first(), u"Arial-Black"_s);
    EXPECT_EQ(rtfFontFamilies(u"DejaVu Sans"_s).first(), u"DejaVu Sans"_s);
}

TEST(RtfFormatTest, textThatNobodyChoseAFontForHasTheReadersOwn) {
    for (const QString &name : {u".SFNS-Regular"_s, u"Helvetica"_s, u"Helvetica-BoldOblique"_s,
                                u"HelveticaNeue"_s, u"Helvetica Neue"_s, u"LucidaGrande"_s})
        EXPECT_TRUE(rtfFontFamilies(name).isEmpty()) << name.toStdString();
    EXPECT_FALSE(rtfFontFamilies(u"Helvetica World"_s).isEmpty());
}

TEST(RtfFormatTest, wordsSetTheLookOfParagraphs) {
    const Document document =
        read(R"(\qc\li720\fi-360\sb240\sa120 a\par\pard\qr\outlinelevel0 b\par\pard\tx1440 c)");
    const QTextBlock first = document->begin();
    EXPECT_EQ(first.blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_EQ(first.blockFormat().leftMargin(), 48);
    EXPECT_EQ(first.blockFormat().textIndent(), -24);
    EXPECT_EQ(first.blockFormat().topMargin(), 16);
    EXPECT_EQ(first.blockFormat().bottomMargin(), 8);
    const QTextBlockFormat second = first.next().blockFormat();
    EXPECT_EQ(second.alignment(), Qt::AlignRight);
    EXPECT_EQ(second.leftMargin(), 0);
    EXPECT_EQ(second.headingLevel(), 1);
    const QTextBlockFormat third = first.next().next().blockFormat();
    ASSERT_EQ(third.tabPositions().size(), 1);
    EXPECT_EQ(third.tabPositions().first().position, 96);
}

TEST(RtfFormatTest, theIndentIsATabStopOfALineThatStandsOut) {
    const Document document = read(R"(\li720\fi-720\tx220 x)");
    const auto tabs = document->begin().blockFormat().tabPositions();
    ASSERT_EQ(tabs.size(), 2);
    EXPECT_NEAR(tabs[0].position, 220 / 15.0, 1e-6);
    EXPECT_EQ(tabs[1].position, 48);
}

TEST(RtfFormatTest, absurdNumbersAreBounded) {
    const Document document =
        read(R"(\li99999999\fi-99999999\sb-5\sl99999999\slmult1\fs99999999\cf99 x)");
    EXPECT_LE(document->begin().blockFormat().leftMargin(), 2112);
    EXPECT_GE(document->begin().blockFormat().textIndent(), -2112);
    EXPECT_EQ(document->begin().blockFormat().topMargin(), 0);
    EXPECT_LE(document->begin().blockFormat().lineHeight(), 400);
    EXPECT_LE(formatOf(*document, u"x"_s).fontPointSize(), 200);
    EXPECT_EQ(formatOf(*document, u"x"_s).foreground().color(), QColor(Qt::black));
}

Document readLink(const QByteArray &instruction) {
    return read(R"({\field{\*\fldinst{)" + instruction + R"(}}{\fldrslt link}} after)");
}

TEST(RtfLinkTest, linksToTheWebAndToMailAreKept) {
    EXPECT_EQ(linksOf(*readLink(R"(HYPERLINK "https://example.org/a?b=c")")),
              QStringList{u"https://example.org/a?b=c"_s});
    EXPECT_EQ(linksOf(*readLink(R"(HYPERLINK http://example.org)")),
              QStringList{u"http://example.org"_s});
    EXPECT_EQ(linksOf(*readLink(R"( hyperlink \\t "mailto:a@example.org")")),
              QStringList{u"mailto:a@example.org"_s});
    EXPECT_TRUE(formatOf(*readLink(R"(HYPERLINK "http://a.b")"), u"link"_s).fontUnderline());
    EXPECT_FALSE(formatOf(*readLink(R"(HYPERLINK "http://a.b")"), u"after"_s).isAnchor());
}

TEST(RtfLinkTest, otherLinksBecomePlainText) {
    for (const char *instruction :
         {R"(HYPERLINK "file:///etc/passwd")", R"(HYPERLINK "javascript:evil")",
          R"(HYPERLINK "smb://server/share")", R"(HYPERLINK \\l "place")", R"(HYPERLINK "")",
          R"(HYPERLINK "http:")", R"(INCLUDEPICTURE "http://example.org/a.png")"}) {
        const Document document = readLink(instruction);
        EXPECT_EQ(textOf(*document), "link after") << instruction;
        EXPECT_EQ(linksOf(*document), QStringList()) << instruction;
        EXPECT_FALSE(formatOf(*document, u"link"_s).fontUnderline()) << instruction;
    }
}

TEST(RtfTableTest, rowsAndCellsBecomeATable) {
    const Document document =
        read(R"(before\par\trowd\clbrdrt\brdrs\cellx1000\cellx4000\pard\intbl a\cell b\cell\row)"
             R"(\trowd\cellx1000\cellx4000\pard\intbl\cell d\par e\cell\row\pard after)");
    EXPECT_EQ(textOf(*document), "before\na\nb\n\nd\ne\nafter");
    QTextCursor cursor = document->find(u"d"_s);
    const QTextTable *table = cursor.currentTable();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rows(), 2);
    EXPECT_EQ(table->columns(), 2);
    EXPECT_EQ(table->cellAt(cursor).row(), 1);
    EXPECT_EQ(table->cellAt(cursor).column(), 1);
    EXPECT_EQ(table->format().columnWidthConstraints().at(0).rawValue(), 25);
    EXPECT_EQ(document->find(u"after"_s).currentTable(), nullptr);
}

TEST(RtfTableTest, cellsThatWereNotAnnouncedWidenTheTable) {
    const Document document = read(R"(\trowd\cellx1000\intbl a\cell b\cell c\cell\row)");
    const QTextTable *table = document->find(u"c"_s).currentTable();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->columns(), 3);
}

TEST(RtfTableTest, aRowOfTooManyCellsIsContinuedByTheNext) {
    const Document document = read(R"(\trowd\intbl )" + QByteArray(R"(x\cell )").repeated(100) +
                                   R"(\row\trowd\intbl last\cell\row)");
    const QTextTable *table = document->find(u"last"_s).currentTable();
    ASSERT_NE(table, nullptr);
    EXPECT_LT(table->columns(), 100);
    EXPECT_EQ(table->rows(), 3);
}

TEST(RtfTableTest, cellsOutsideOfATableAreDividedByTabs) {
    EXPECT_EQ(textOf(*read(R"(a\cell b\cell\row c)")), "a\tb\t\nc");
}

TEST(RtfTableTest, aLongTableIsContinuedByAnother) {
    QByteArray body;
    for (int row = 0; row < 450; ++row)
        body += R"(\trowd\cellx1000\intbl r)" + QByteArray::number(row) + R"(\cell\row)";
    const Document document = read(body);
    EXPECT_NE(document->find(u"r0"_s).currentTable(), document->find(u"r449"_s).currentTable());
    EXPECT_NE(document->find(u"r449"_s).currentTable(), nullptr);
}

TEST(RtfPictureTest, pngAndJpegPicturesAreShownAtTheirSize) {
    for (const char *format : {"png", "jpeg"}) {
        const QByteArray body = QByteArray(R"({\pict\)") + format +
                                R"(blip\picwgoal1500\pichgoal750\picscalex200 )" +
                                pictureBytes(4, 2, format).toHex() + '}';
        const Document document = read(body);
        ASSERT_EQ(pictureNames(*document).size(), 1) << format;
        EXPECT_EQ(document->pictureSize(pictureNames(*document).first()), QSize(4, 2));
        const QTextImageFormat image =
            document->begin().begin().fragment().charFormat().toImageFormat();
        EXPECT_EQ(image.width(), 200);
        EXPECT_EQ(image.height(), 50);
    }
}

TEST(RtfPictureTest, binaryPicturesAreRead) {
    const QByteArray picture = pictureBytes(3, 3);
    const Document document = read(R"({\pict\pngblip\bin)" + QByteArray::number(picture.size()) +
                                   ' ' + picture + "}after");
    EXPECT_EQ(textOf(*document), "[picture]after");
}

TEST(RtfPictureTest, attachedPicturesComeFromTheFolder) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a b.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(pictureBytes(5, 5));
    file.close();

    const Document document =
        read("x{{\\NeXTGraphic a b.png \\width200 \\height100 }\\'ac}y"
             "{{\\NeXTGraphic missing.png }\xAC}z{{\\NeXTGraphic ../up.png }\\u172 }w",
             folder.path());
    EXPECT_EQ(textOf(*document), "x[picture]yzw");
}

TEST(RtfPictureTest, allPicturesTogetherAreBounded) {
    // Each decodes to 25 million pixels of the 64 million that a document may have.
    const QByteArray picture = R"({\pict\pngblip )" + pictureBytes(5000, 5000).toHex() + '}';
    EXPECT_EQ(textOf(*read(picture.repeated(4))), "[picture][picture]");
    // And one alone is too large.
    EXPECT_EQ(textOf(*read(R"({\pict\pngblip )" + pictureBytes(8000, 5000).toHex() + '}')), "");
}

TEST(RtfBoundsTest, deepGroupsAreSkippedAndTheTextAfterThemIsRead) {
    constexpr int depth = 200'000;
    EXPECT_EQ(textOf(*read("a" + QByteArray("{\\b ").repeated(depth) + "deep" +
                           QByteArray("}").repeated(depth) + "b")),
              "ab");
    EXPECT_EQ(textOf(*read(QByteArray("{").repeated(depth))), "");
    EXPECT_EQ(textOf(*read("a" + QByteArray("}").repeated(depth))), "a");
}

TEST(RtfBoundsTest, aTextThatIsTooLongEndsWithAnEllipsis) {
    const Document byLength = read(QByteArray("x\\tab ").repeated(maximumShownCharacters));
    EXPECT_LE(byLength->characterCount(), maximumShownCharacters + maximumShownParagraphs);
    EXPECT_TRUE(byLength->toPlainText().endsWith(u'…'));
    const Document byParagraphs = read(QByteArray("\\par ").repeated(2LL * maximumShownParagraphs));
    EXPECT_LE(byParagraphs->blockCount(), maximumShownParagraphs + 2);
    EXPECT_TRUE(byParagraphs->toPlainText().endsWith(u'…'));
}

TEST(RtfBoundsTest, longParagraphsAreBroken) {
    const Document document = read(QByteArray("word ").repeated(20'000));
    EXPECT_EQ(document->toPlainText().remove(u'\n').size(), 100'000);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        EXPECT_LE(block.length(), maximumParagraphLength + 1);
}

const QByteArray cocoaSample =
    "{\\rtf1\\ansi\\ansicpg1252\\cocoartf2639\n"
    "\\cocoatextscaling0\\cocoaplatform0{\\fonttbl\\f0\\fswiss\\fcharset0 Helvetica-Bold;"
    "\\f1\\fswiss\\fcharset0 Helvetica;\\f2\\fnil\\fcharset128 HiraginoSans-W3;}\n"
    "{\\colortbl;\\red255\\green255\\blue255;\\red255\\green38\\blue0;}\n"
    "{\\*\\expandedcolortbl;;\\cssrgb\\c100000\\c14913\\c0;}\n"
    "{\\*\\listtable{\\list\\listtemplateid1{\\listlevel{\\leveltext\\'01\\uc0\\u8226 ;}"
    "{\\levelnumbers;}\\fi-360\\li720\\lin720 }{\\listname ;}\\listid1}}\n"
    "\\paperw11900\\paperh16840\\margl1440\\margr1440\\vieww11520\\viewh8400\\viewkind0\n"
    "\\pard\\tx566\\tx1133\\pardirnatural\\partightenfactor0\n\n"
    "\\f0\\b\\fs36 \\cf0 Read me\\\n"
    "\\pard\\tx220\\tx720\\li720\\fi-720\\pardirnatural\\partightenfactor0\n"
    "\\ls1\\ilvl0\n"
    "\\f1\\b0\\fs24 \\cf0 {\\listtext\t\\uc0\\u8226 \t}First\\expnd0\\expndtw0\\kerning0\n, "
    "caf\\'e9\\\n"
    "\\ls1\\ilvl0{\\listtext\t\\uc0\\u8226 \t}\\cf2 red\\cf0 \n\\f2 \\'93\\'fa\n\\f1 \\\n"
    "\\pard\\pardirnatural\\partightenfactor0\n"
    "\\cf0 See {\\field{\\*\\fldinst{HYPERLINK \"http://example.org/\"}}{\\fldrslt the page}}.\\\n"
    "}";

TEST(RtfSampleTest, whatAMacWritesIsReadAsItLooksThere) {
    const Document document = readContent(cocoaSample);
    EXPECT_EQ(textOf(*document), "Read me\n\t•\tFirst, café\n\t•\tred日\nSee the page.");
    EXPECT_EQ(formatOf(*document, u"Read"_s).fontWeight(), QFont::Bold);
    EXPECT_EQ(formatOf(*document, u"Read"_s).fontPointSize(), 18);
    EXPECT_EQ(formatOf(*document, u"red"_s).foreground().color(), QColor(255, 38, 0));
    EXPECT_EQ(linksOf(*document), QStringList{u"http://example.org/"_s});
}

TEST(RtfSampleTest, everyBeginningOfADocumentIsRead) {
    const std::string whole = textOf(*readContent(cocoaSample));
    for (qsizetype length = 0; length < cocoaSample.size(); ++length) {
        const std::string beginning = textOf(*readContent(cocoaSample.first(length)));
        EXPECT_LE(beginning.size(), whole.size() + 1) << length;
    }
}

} // namespace
