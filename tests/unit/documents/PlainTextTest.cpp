// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/MarkupChecks.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/PlainTextDecoder.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/TextConverter.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    const char *reason;
    QByteArray bytes;
    QString expected;
};

void PrintTo(const Row &row, std::ostream *stream) {
    *stream << row.reason;
}

std::string rowName(const testing::TestParamInfo<Row> &row) {
    return row.param.reason;
}

QByteArray encoded(const QString &text, QStringConverter::Encoding encoding,
                   QStringConverter::Flag flag = QStringConverter::Flag::Default) {
    return QStringEncoder(encoding, flag).encode(text);
}

class PlainText : public testing::TestWithParam<Row> {};

TEST_P(PlainText, isDecoded) {
    EXPECT_EQ(decodePlainText(GetParam().bytes).toStdString(), GetParam().expected.toStdString());
}

constexpr auto marked = QStringConverter::Flag::WriteBom;
const QString western = u"Café – 3 €\nsecond line\n"_s;
const QString japanese = u"日本語の説明書です。\n二行目。\n"_s;

INSTANTIATE_TEST_SUITE_P(
    Unicode, PlainText,
    testing::Values(
        Row{"nothing", "", u""_s}, Row{"ascii", "plain\n", u"plain\n"_s},
        Row{"utf8", western.toUtf8(), western},
        Row{"utf8WithMark", encoded(western, QStringConverter::Utf8, marked), western},
        Row{"utf16LittleEndian", encoded(western, QStringConverter::Utf16LE), western},
        Row{"utf16LittleEndianWithMark", encoded(western, QStringConverter::Utf16LE, marked),
            western},
        Row{"utf16BigEndian", encoded(western, QStringConverter::Utf16BE), western},
        Row{"utf16BigEndianWithMark", encoded(western, QStringConverter::Utf16BE, marked), western},
        Row{"utf16OfAnotherScript", encoded(japanese, QStringConverter::Utf16LE), japanese},
        Row{"utf32WithMark", encoded(western, QStringConverter::Utf32LE, marked), western},
        Row{"utf32BigEndianWithMark", encoded(western, QStringConverter::Utf32BE, marked), western},
        Row{"aStrayNullCharacter", QByteArray("Caf\xC3\xA9 a\0b!!", 11),
            QString::fromUtf16(u"Café a\0b!!", 10)}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    BeforeUnicode, PlainText,
    testing::Values(
        Row{"aShortWesternText", "Caf\xE9", u"Café"_s},
        Row{"latin1",
            "Ce fichier d\xE9"
            "crit les nouveaut\xE9s de cette version. Merci de le lire jusqu'\xE0 la fin.\n",
            u"Ce fichier décrit les nouveautés de cette version. Merci de le lire jusqu'à la fin.\n"_s},
        Row{"windowsWestern",
            "The \x93quoted\x94 words of the program \x96 and what it costs: 3 \x80.\n",
            u"The “quoted” words of the program – and what it costs: 3 €.\n"_s},
        Row{"macRomanByItsLineEnds", "Le caf\x8E est pr\x90t.\rDeuxi\x8Fme ligne.\r",
            u"Le café est prêt.\rDeuxième ligne.\r"_s},
        Row{"shiftJis",
            "\x82\xB1\x82\xCC\x90\xE0\x96\xBE\x8F\x91\x82\xF0\x82\xA8\x93\xC7\x82\xDD\x82\xAD\x82"
            "\xBE\x82\xB3\x82\xA2\x81\x42\n",
            u"この説明書をお読みください。\n"_s},
        Row{"koi8",
            "\xF0\xD2\xCF\xDE\xC9\xD4\xC1\xCA\xD4\xC5 \xDC\xD4\xCF\xD4 \xC6\xC1\xCA\xCC "
            "\xD0\xC5\xD2\xC5\xC4 \xD5\xD3\xD4\xC1\xCE\xCF\xD7\xCB\xCF\xCA "
            "\xD0\xD2\xCF\xC7\xD2\xC1\xCD\xCD\xD9.\n",
            u"Прочитайте этот файл перед установкой программы.\n"_s},
        Row{"iso2022", "\x1B$BF|K\\8l$N@bL@$G$9!#\x1B(B\nend\n", u"日本語の説明です。\nend\n"_s}),
    rowName);

TEST(PlainTextTest, anyBytesGiveSomeText) {
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i)
        bytes.append(static_cast<char>(i * 7919 >> 3));
    EXPECT_FALSE(decodePlainText(bytes).isEmpty());
    for (qsizetype length = 1; length < 300; ++length)
        decodePlainText(bytes.first(length));
    // An odd number of bytes is no UTF-16.
    EXPECT_FALSE(decodePlainText(QByteArray("a\0b\0c", 5)).isEmpty());
}

TEST(PlainTextTest, charactersThatCannotBeShownAreLeftOut) {
    EXPECT_EQ(cleanedText(QString::fromUtf16(u"a\0b\x1B"
                                             u"c",
                                             5)),
              u"abc"_s);
    EXPECT_EQ(cleanedText(u"a\r\nb\rc\fd\ve"_s), u"a\nb\nc\nd\ne"_s);
    EXPECT_EQ(cleanedText(u"a\tb"_s), u"a\tb"_s);
    EXPECT_EQ(cleanedText(u"\uFDD0\uFFFC"_s), u"\uFFFD\uFFFD"_s);
    EXPECT_EQ(cleanedText(u"\U0001F600"_s), u"\U0001F600"_s);
    EXPECT_EQ(cleanedText(QString(QChar(0xD83D)) + u'x'), u"\uFFFDx"_s);
}

class HtmlText : public testing::TestWithParam<Row> {};

TEST_P(HtmlText, isDecoded) {
    EXPECT_EQ(decodeHtml(GetParam().bytes).section(u'>', -1).toStdString(),
              GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Declared, HtmlText,
    testing::Values(
        Row{"byTheMetaElement", "<meta charset=\"windows-1251\"><p>\xCF\xF0", u"Пр"_s},
        Row{"byTheOldMetaElement",
            "<META http-equiv=Content-Type content=\"text/html; charset=KOI8-R\"><p>\xF0\xD2",
            u"Пр"_s},
        Row{"byTheXmlDeclaration", "<?xml version='1.0' encoding='Shift_JIS'?><p>\x93\xFA",
            u"日"_s},
        Row{"latin1IsWindows", "<meta charset=iso-8859-1><p>\x80", u"€"_s},
        Row{"notBeforeAMark", "\xEF\xBB\xBF<meta charset=windows-1251><p>\xC3\xA9", u"é"_s},
        Row{"utf8", "<meta charset=utf-8><p>\xC3\xA9", u"é"_s},
        Row{"utf8WrongSaid", "<meta charset=utf-8><p>caf\xE9", u"café"_s},
        Row{"anUnknownOne", "<meta charset=nonsense><p>\xC3\xA9", u"é"_s}),
    rowName);

TEST(TextConverterTest, anUnknownEncodingIsNone) {
    EXPECT_FALSE(TextConverter::named("no-such-encoding"));
}

TEST(TextConverterTest, bytesThatStandForNothingAreReplaced) {
    const auto converter = TextConverter::named("Shift_JIS");
    ASSERT_TRUE(converter);
    EXPECT_EQ(converter->toText("a\x93"), u"a\uFFFD"_s);
}

TEST(MarkupChecksTest, ordinaryHtmlIsNotTooComplex) {
    EXPECT_FALSE(isTooComplexHtml(u"<html><body><p>a<p>b<br><img src=x><ul><li>c<li>d</ul>"_s));
    EXPECT_FALSE(isTooComplexHtml(u"<p>a<td>b"_s.repeated(50'000)));
    EXPECT_FALSE(isTooComplexHtml(u"<div><b>a</b></div>"_s.repeated(50'000)));
    EXPECT_FALSE(isTooComplexHtml(u"<script>"_s + u"if (a<b) "_s.repeated(1000) + u"</script>"_s));
    EXPECT_FALSE(isTooComplexHtml(u" a < b < "_s.repeated(1000)));
}

TEST(MarkupChecksTest, endlessNestingIsTooComplex) {
    EXPECT_TRUE(isTooComplexHtml(u"<div>"_s.repeated(1000)));
    EXPECT_TRUE(isTooComplexHtml(u"<TABLE><tr><td>"_s.repeated(1000)));
    EXPECT_TRUE(isTooComplexHtml(u"<li>"_s.repeated(10'000)));
    EXPECT_TRUE(isTooComplexHtml(u"<img src=a>"_s.repeated(10'000)));
}

TEST(MarkupChecksTest, onlyVeryLongListsAndTablesOfMarkdownAreTooComplex) {
    EXPECT_FALSE(isTooComplexMarkdown(u"# Title\n\n- item\n- item\n\ntext\n"_s.repeated(500)));
    EXPECT_FALSE(isTooComplexMarkdown(u"words and words\n"_s.repeated(50'000)));
    EXPECT_TRUE(isTooComplexMarkdown(u"- item\n"_s.repeated(5000)));
    EXPECT_TRUE(isTooComplexMarkdown(u"> "_s.repeated(50'000)));
}

TEST(MarkupChecksTest, htmlIsKnownByItsBeginning) {
    EXPECT_TRUE(looksLikeHtml("\n <!DOCTYPE HTML><html>"));
    EXPECT_TRUE(looksLikeHtml("<HTML lang=en>"));
    EXPECT_TRUE(looksLikeHtml("<?xml version='1.0'?><!-- x --><html xmlns='y'>"));
    EXPECT_FALSE(looksLikeHtml("<notes>"));
    EXPECT_FALSE(looksLikeHtml("The element <html> is"));
}

} // namespace
