// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsHtml.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/HtmlReferenceNames.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

QByteArray utf16(const QString &text) {
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

struct Row {
    const char *reason;
    QString html;
    QString text;
};

} // namespace

TEST(StringHtmlTest, theDeclaredCharacterSetDecodesTheSource) {
    const FakePlatform platform;
    struct {
        const char *reason;
        QByteArray meta;
        bool isUtf8;
    } const rows[] = {
        {"behind an equals sign", "<meta charset=utf-8>", true},
        {"in a content type", "<meta content=\"text/html; charset=UTF-8\">", true},
        {"blanks and equals signs", "<META charset \t== \r\n utf-8>", true},
        {"in any case", "<MeTa ChArSeT=uTf-8>", true},
        {"behind other elements", "<meta name=x><b></b><meta charset=utf-8>", true},
        {"not in a meta element at all", "<meta name=x> charset=utf-8", true},
        {"right behind the word", "<meta charsetutf-8>", true},
        {"a control character in front", "<meta charset\x7Futf-8>", true},
        {"in quotes", "<meta charset=\"utf-8\">", false},
        {"cut off at an underscore", "<meta charset=utf_8>", false},
        {"another character in front", "<meta charset:utf-8>", false},
        {"before the meta element", "charset=utf-8 <meta name=x>", false},
        {"no meta element", "<p charset=utf-8>", false},
        {"unknown", "<meta charset=utf-88>", false},
        {"Latin-1", "<meta charset=iso-8859-1>", false},
        {"nothing behind the word", "<meta charset", false},
        {"nothing behind the equals sign", "<meta charset=", false},
    };
    for (const auto &row : rows) {
        const QByteArray html = "<html>\xC3\xA9" + row.meta;
        EXPECT_EQ(stringWithHTML(html),
                  row.isUtf8 ? QString::fromUtf8(html) : QString::fromLatin1(html))
            << row.reason;
    }
    EXPECT_EQ(stringWithHTML("<HTML><meta charset=koi8-r>\xC4"),
              u"<HTML><meta charset=koi8-r>\u0434"_s);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST(StringHtmlTest, bytesThatAreNotValidInTheDeclaredSetAreLatin1) {
    const QByteArray html = "<html><meta charset=utf-8>\xE9";
    EXPECT_EQ(stringWithHTML(html), QString::fromLatin1(html));
}

TEST(StringHtmlTest, sourcesInUtf16AreSeen) {
    const FakePlatform platform;
    const QString source = u"<HtMl>\u4E00"_s;
    EXPECT_EQ(stringWithHTML(utf16(QChar(0xFEFF) + source)), source);
    EXPECT_EQ(platform.log.lines(), QStringList(u"no HTML in Latin"_s));
    EXPECT_EQ(stringWithHTML(utf16(source)), source) << "without a mark";
}

TEST(StringHtmlTest, bytesThatAreNoHtmlAreLatin1) {
    const FakePlatform platform;
    EXPECT_EQ(stringWithHTML("<p>caf\xE9"), u"<p>caf\u00E9"_s);
    EXPECT_EQ(stringWithHTML(""), u""_s);
    const QStringList both = {u"no HTML in Latin"_s, u"no HTML in Unicode"_s};
    EXPECT_EQ(platform.log.lines(), both + both);
}

TEST(StringHtmlTest, entitiesAreExpanded) {
    const Row rows[] = {
        {"the basic ones", u"&lt;a&gt; &amp; &quot;b&apos;"_s, u"<a> & \"b'"_s},
        {"numbers", u"&#233;&#xE9;&#XE9;&#x1F600;"_s, u"\u00E9\u00E9\u00E9\U0001F600"_s},
        {"names of HTML 4", u"&eacute;&euro;&Alpha;&hearts;"_s, u"\u00E9\u20AC\u0391\u2665"_s},
        {"names of HTML 5", u"&CounterClockwiseContourIntegral;&NotEqualTilde;"_s,
         u"\u2233\u2242\u0338"_s},
        {"the semicolon forgotten", u"&copy2020 &ampx &#65 "_s, u"\u00A92020 &x A"_s},
        {"names that need their semicolon", u"&euro &hearts"_s, u"&euro &hearts"_s},
        {"the longest name counts", u"&notin; &notit;"_s, u"\u2209 \u00ACit;"_s},
        {"unknown names stay", u"&nosuch; & &; &#; &#x;"_s, u"&nosuch; & &; &#; &#x;"_s},
        {"expanded once", u"&amp;lt;"_s, u"&lt;"_s},
        {"numbers of windows-1252", u"&#150;&#128;"_s, u"\u2013\u20AC"_s},
        {"no characters", u"a&#0;&#xD800;&#x110000;&#99999999999;"_s,
         u"a\uFFFD\uFFFD\uFFFD\uFFFD"_s},
        {"a no-break space is none that runs together", u"a&nbsp;&nbsp;b"_s, u"a\u00A0\u00A0b"_s},
        {"in an attribute", u"<a title=\"&gt;&lt;\">x</a>"_s, u"x"_s},
        {"in a comment", u"a<!-- &#45;-&gt; x -->b"_s, u"ab"_s},
        {"at the end", u"a&amp"_s, u"a&"_s},
        {"lone surrogates", u"&lt;\xD83D"_s, u"<\uFFFD"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringByExpandingHTMLEntities(row.html), row.text) << row.reason;
}

TEST(StringHtmlTest, everyNameOfACharacterIsKnown) {
    EXPECT_EQ(htmlReferenceText("amp;"), u"&");
    EXPECT_EQ(htmlReferenceText("amp"), u"&");
    EXPECT_EQ(htmlReferenceText("euro"), std::nullopt);
    EXPECT_EQ(htmlReferenceText(""), std::nullopt);
    EXPECT_EQ(htmlReferenceText("zzzz"), std::nullopt);
    EXPECT_EQ(htmlReferenceText("AElig"), u"\u00C6") << "the first";
    EXPECT_EQ(htmlReferenceText("zwnj;"), u"\u200C") << "the last";
    EXPECT_EQ(htmlReferenceText("CounterClockwiseContourIntegral;").has_value(), true)
        << "the longest";
}

TEST(StringHtmlTest, markupIsDropped) {
    const Row rows[] = {
        {"inline elements", u"a <b>bold</b> <i>word</i>"_s, u"a bold word"_s},
        {"inside a word", u"w<b>or</b>d"_s, u"word"_s},
        {"comments", u"a<!-- x -->b"_s, u"ab"_s},
        {"scripts and style sheets", u"a<script>if (x < 1) y()</script><style>p{}</style>b"_s,
         u"ab"_s},
        {"the head", u"<html><head><title>t</title></head><body>b</body></html>"_s, u"b"_s},
        {"a document type", u"<!DOCTYPE html><p>x"_s, u"x"_s},
        {"no tag", u"1 < 2"_s, u"1 < 2"_s},
        {"white space runs together", u"  a \r\n\t b  "_s, u"a b"_s},
        {"also across elements", u"a <b> b</b>"_s, u"a b"_s},
        {"paragraphs", u"<p>a</p><p>b</p>"_s, u"a\nb"_s},
        {"nested blocks", u"<div><div>a</div></div><div>b"_s, u"a\nb"_s},
        {"line ends", u"a<br>b<br/><br>c<br>"_s, u"a\nb\n\nc"_s},
        {"a line end before a block", u"a<br><p>b"_s, u"a\nb"_s},
        {"no space at a line's start", u"a<br> b"_s, u"a\nb"_s},
        {"none at the start", u"<br><br>a"_s, u"a"_s},
        {"lists", u"<ul><li>a<li>b</ul>c"_s, u"a\nb\nc"_s},
        {"tables", u"<table><tr><td>a<td>b<tr><td>c</table>"_s, u"a\tb\nc"_s},
        {"preformatted text", u"<pre>a  b\n c\n</pre>d"_s, u"a  b\n c\nd"_s},
        {"nothing shown", u"<b></b>"_s, u""_s},
        {"tags in capitals", u"<P>a<BR>b</P>"_s, u"a\nb"_s},
        {"null characters", u"a\0<b>b</b>"_s, u"ab"_s},
        {"control characters", u"a\u0001<\u0002&#1;&#xFFFF;b"_s, u"a<b"_s},
        {"form feeds", u"a\f&#12;b"_s, u"a b"_s},
        {"beyond ASCII", u"<b>\u00E9\u4E00\U0001F600</b>"_s, u"\u00E9\u4E00\U0001F600"_s},
        {"a declared encoding is not that of a text", u"<meta charset=koi8-r>\u00E9"_s,
         u"\u00E9"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringByExpandingHTMLEntities(row.html), row.text) << row.reason;
}

TEST(StringHtmlTest, aPlainTextIsTheReceiverItself) {
    for (const QString &text :
         {u"plain text"_s, u""_s, u"a > b"_s, u"\u00E9\u4E00"_s, u"a\u00A0 b"_s})
        EXPECT_TRUE(isSameObject(stringByExpandingHTMLEntities(text), text)) << unitsOf(text);
}

TEST(StringHtmlTest, textThatIsEscapedComesBack) {
    forRandomCases([](RandomText &random) {
        QString text = models::withoutLoneSurrogates(random.text(u"a&;#lt<>\"' \u00E9amp"));
        // What HTML cannot hold, or runs together.
        QString kept;
        for (const QChar unit : text.simplified()) {
            if (unit.unicode() >= 0x20 && (unit.unicode() < 0x7F || unit.unicode() > 0x9F) &&
                unit.unicode() < 0xFFFE)
                kept += unit;
        }
        kept = kept.simplified();
        QString html;
        for (const QChar unit : kept)
            html += unit.isSurrogate() ? QString(unit) : u"&#%1;"_s.arg(unit.unicode());
        EXPECT_EQ(stringByExpandingHTMLEntities(html).simplified(), kept) << unitsOf(kept);
        EXPECT_EQ(stringByExpandingHTMLEntities(kept.toHtmlEscaped()), kept) << unitsOf(kept);
    });
}

TEST(StringHtmlTest, anyDepthOfNestingIsRead) {
    constexpr int depth = 3000;
    EXPECT_EQ(stringByExpandingHTMLEntities(u"<div>"_s.repeated(depth) + u"a"_s +
                                            u"</div>"_s.repeated(depth) + u"b"_s),
              u"a\nb"_s);
    QString words;
    QString nested;
    for (int number = 0; number < depth; ++number) {
        nested += u"<i title='>'><b >w"_s + QString::number(number) + u' ';
        words += u"w"_s + QString::number(number) + u' ';
    }
    EXPECT_EQ(stringByExpandingHTMLEntities(nested).toStdString(), words.trimmed().toStdString());
}
