// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How long operations on texts take for each unit of texts of 1 KB, 1 MB and 64 MB in memory, and
// how many times as fast as others they are.

#include "ZTStuff/CocoaExtensions/StringExtensions.h"

#include "benchmarks/BenchLine.h"
#include "benchmarks/text/BenchText.h"
#include "benchmarks/text/PairedTiming.h"
#include "benchmarks/text/TextPeers.h"
#include "tests/fakes/FakePlatform.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include <fnmatch.h>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

struct Peer {
    const char *name;
    TimedWork work;
};

struct Size {
    const char *name;
    qsizetype units;
};

class TextBenchmark {
public:
    explicit TextBenchmark(const Size &size) : m_size(size), m_prose(proseOfLength(size.units)) {}

    void run() {
        measureLines();
        measureComparison();
        measureMatching();
        measureEscapes();
        measureScalars();
        measureDecoding();
        measureTheRest();
    }

private:
    // Prints the time for each unit, and how many times as fast as each peer it is.
    void measure(const char *name, const TimedWork &work, const std::vector<Peer> &peers = {}) {
        std::vector<TimedWork> works = {work};
        for (const Peer &peer : peers)
            works.push_back(peer.work);
        const std::vector<double> times = shortestTimes(works);
        const std::string areaAndCase = std::string("text.") + name + '_' + m_size.name;
        zt::printBenchLine(areaAndCase.c_str(), "ns_per_unit", times[0] / double(m_size.units));
        for (std::size_t index = 0; index < peers.size(); ++index) {
            zt::printBenchLine(areaAndCase.c_str(),
                               (std::string("times_as_fast_as_") + peers[index].name).c_str(),
                               times[index + 1] / times[0]);
        }
    }

    // For operations that answer a text.
    template <typename Operation>
    static TimedWork sizeOf(Operation operation) {
        return [operation] { return static_cast<std::size_t>(operation().size()); };
    }

    void measureLines() {
        const QString blanks = u"  \t "_s + m_prose.mid(8) + u" \n\n "_s;
        measure("trim", sizeOf([=] { return stringByTrimmingWhitespace(blanks); }),
                {{"qt_trimmed", sizeOf([=] { return blanks.trimmed(); })}});
        measure("trim_unicode", sizeOf([=] { return trimWhitespace(blanks); }),
                {{"qt_trimmed", sizeOf([=] { return blanks.trimmed(); })}});
        const QString prose = m_prose;
        measure("lines", sizeOf([=] { return arrayOfLines(prose); }),
                {{"qt_split", sizeOf([=] { return prose.split(u'\n'); })}});
        measure("components", sizeOf([=] { return componentsSeparatedByCharacter(prose, u' '); }),
                {{"qt_split", sizeOf([=] { return prose.split(u' '); })}});
        measure("single_line", sizeOf([=] { return asSingleLine(prose); }));
        const QString separator = u"\r"_s;
        measure("line_separator", sizeOf([=] { return withLineSeparator(prose, separator); }));
        const QString longer = u"--\r\n--"_s;
        measure("line_separator_longer", sizeOf([=] { return withLineSeparator(prose, longer); }));
        const QString unit = u"abcd"_s;
        const auto count = static_cast<std::int32_t>(m_size.units / unit.size());
        measure("repeated", sizeOf([=] { return repeated(unit, count); }));
    }

    void measureComparisonOf(const char *name, const QString &a, const QString &b) {
        const NumericCollators collators(Qt::CaseSensitive);
        measure(name, [&] { return std::size_t(numericCompare(a, b)); },
                {{"icu_numeric", [&] { return std::size_t(collators.compareWithIcu(a, b)); }},
                 {"qt_numeric", [&] { return std::size_t(collators.compareWithQt(a, b)); }}});
        const NumericCollators insensitive(Qt::CaseInsensitive);
        const std::string withoutCase = std::string(name) + "_without_case";
        measure(withoutCase.c_str(),
                [&] { return std::size_t(caseInsensitiveNumericCompare(a, b)); },
                {{"icu_numeric", [&] { return std::size_t(insensitive.compareWithIcu(a, b)); }},
                 {"qt_numeric", [&] { return std::size_t(insensitive.compareWithQt(a, b)); }}});
    }

    void measureComparison() {
        // The last number decides; the copy lies in storage of its own.
        const QString nine = m_prose + u'9';
        const QString ten = m_prose + u"10"_s;
        measureComparisonOf("compare", nine, ten);
        // Texts that no cache holds come no faster than this, and the collators wait for them too.
        const auto bytes = static_cast<std::size_t>(m_size.units) * sizeof(QChar);
        measure("compare_bare",
                [&] { return std::size_t(std::memcmp(nine.utf16(), ten.utf16(), bytes)); },
                {{"numeric", [&] { return std::size_t(numericCompare(nine, ten)); }}});
        // Each number has a zero more than in the other text.
        measureComparisonOf("compare_zeros", repeatedToLength(u"file 0123, ", m_size.units),
                            repeatedToLength(u"file 00123, ", m_size.units / 11 * 12));
    }

    void measureMatching() {
        const QString text = m_prose + u".txt"_s;
        const QString pattern = u"The*lazy*no such word*.txt"_s;
        const QString fitting = u"The*lazy*page*.txt"_s;
        const QByteArray utf8 = text.toUtf8();
        const std::pair<const char *, QString> patterns[] = {{"wildcard", fitting},
                                                             {"wildcard_without_match", pattern}};
        for (const auto &named : patterns) {
            const QString &wanted = named.second;
            // As the flavour that lets "*" match anything, line ends too.
            const QRegularExpression expression(
                u"\\A"_s + QString(wanted).replace(u"."_s, u"\\."_s).replace(u"*"_s, u".*"_s) +
                    u"\\z"_s,
                QRegularExpression::DotMatchesEverythingOption);
            const QByteArray wantedUtf8 = wanted.toUtf8();
            std::vector<Peer> peers = {
                {"fnmatch", [&] {
                     return std::size_t(::fnmatch(wantedUtf8.constData(), utf8.constData(), 0));
                 }}};
            // An expression gives up after some millions of steps; that time says nothing.
            if (expression.match(text).isValid()) {
                peers.push_back({"qt_regular_expression",
                                 [&] { return std::size_t(expression.match(text).hasMatch()); }});
            } else {
                std::printf("# text.%s_%s: the expression gives up without an answer\n",
                            named.first, m_size.name);
            }
            measure(
                named.first, [&] { return std::size_t(matchesWildcardPattern(text, wanted)); },
                peers);
        }
        // The worst that can be asked for: nearly a match at every place.
        const QString same(m_size.units, u'a');
        const QString nearly = u'*' + QString(m_size.units / 4, u'a') + u"b*"_s;
        measure("wildcard_nearly",
                [&] { return std::size_t(matchesWildcardPattern(same, nearly)); });
        const QString element = u"<x>"_s + m_prose + u"</x>"_s;
        const QString name = u"x"_s;
        measure("xml_element", sizeOf([&] { return *xmlElementForKey(element, name); }));
        const FakePlatform platform;
        const QString digits = u"([0-9]+)"_s;
        const QString angles = u"<$1>"_s;
        const QRegularExpression expression(digits);
        measure("regular_expression", sizeOf([&] {
                    return stringByReplacingOccurrencesOfRegexPattern(m_prose, digits, angles);
                }),
                {{"qt_regular_expression",
                  sizeOf([&] { return QString(m_prose).replace(expression, u"<\\1>"_s); })}});
    }

    void measureEscapes() {
        const QByteArray safe = "!*'();:@&=+$,/?";
        const QString prose = m_prose;
        measure("percent_escape", sizeOf([=] { return stringWithPercentEscapes(prose); }),
                {{"qt_url", sizeOf([=] { return QUrl::toPercentEncoding(prose, safe); })}});
        const QString escaped = stringWithPercentEscapes(prose);
        const QByteArray escapedBytes = escaped.toLatin1();
        measure("percent_expand", sizeOf([=] { return stringWithExpandedPercentEscapes(escaped); }),
                {{"qt_url", sizeOf([=] { return QUrl::fromPercentEncoding(escapedBytes); })}});
        measure("escape",
                sizeOf([=] { return stringByEscapingCharacters(prose, ZTEscapeCharacters); }));
        const QString lineFeeds(m_size.units, u'\n');
        measure("escape_everything",
                sizeOf([=] { return stringByEscapingCharacters(lineFeeds, ZTEscapeCharacters); }));
        const QString backslashes = repeatedToLength(u"a\\n\\\\b\\t", m_size.units);
        measure("expand", sizeOf([=] {
                    return stringByExpandingEscapedCharacters(backslashes, ZTEscapeCharacters);
                }));
        measure("expand_controls",
                sizeOf([=] { return stringByExpandingEscapedControlCharacters(backslashes); }));
        measure("source_literal", sizeOf([=] { return stringWithObjCString(backslashes); }));
    }

    template <typename Step>
    void measureWalk(const char *name, const QString &text, Step step) {
        measure(name,
                [&] {
                    std::size_t sum = 0;
                    forUTF32Characters(text, [&](char32_t scalar) { sum = step(sum, scalar); });
                    return sum;
                },
                {{"bare_loop", [&] {
                      std::size_t sum = 0;
                      for (const QChar unit : text)
                          sum = step(sum, unit.unicode());
                      return sum;
                  }}});
    }

    void measureScalars() {
        // Each scalar counts in the next step, as where something is made of a text; and each for
        // itself, so that the compiler may take several at a time.
        const auto mixed = [](std::size_t sum, char32_t scalar) { return sum * 31 + scalar; };
        const auto added = [](std::size_t sum, char32_t scalar) { return sum + scalar; };
        const QString emoji = repeatedToLength(u"ab\U0001F600cd\U0001F601\u4E00", m_size.units);
        measureWalk("scalars", m_prose, mixed);
        measureWalk("scalars_with_pairs", emoji, mixed);
        measureWalk("scalars_added", m_prose, added);
        measureWalk("scalars_with_pairs_added", emoji, added);
        measure("characters", [&] { return std::size_t(numberOfUnicodeCharacters(emoji)); });
        measure("utf16_sequence", sizeOf([&] { return UTF16SequenceString(m_prose); }));
        measure("utf32_sequence", sizeOf([&] { return UTF32SequenceString(m_prose); }));
    }

    void measureDecoding() {
        const QByteArray utf8 = m_prose.toUtf8();
        const QByteArray latin1 = m_prose.toLatin1();
        const QByteArray utf16(reinterpret_cast<const char *>(m_prose.utf16()), m_size.units * 2);
        measure("md5", sizeOf([&] { return MD5String(m_prose); }),
                {{"qt_hash", sizeOf([&] {
                      return QCryptographicHash::hash(m_prose.toUtf8(), QCryptographicHash::Md5)
                          .toHex();
                  })}});
        const IcuMacRoman icu;
        measure("mac_roman", sizeOf([&] {
                    return stringWithMacRomanCString(latin1.constData(),
                                                     static_cast<std::int32_t>(latin1.size()));
                }),
                {{"icu", sizeOf([&] { return icu.decode(latin1); })}});
        const auto decoded = [](const QByteArray &bytes, StringEncoding encoding) {
            return sizeOf([=] { return *stringWithData(bytes, encoding); });
        };
        measure("utf8", decoded(utf8, StringEncoding::UTF8),
                {{"qt_decoder", sizeOf([&] { return strictlyDecoded(utf8); })}});
        measure("utf16", decoded(utf16, StringEncoding::UTF16LittleEndian),
                {{"qt_utf16", sizeOf([&] {
                      QStringDecoder decoder(QStringDecoder::Utf16LE);
                      return QString(decoder.decode(utf16));
                  })}});
        const QByteArray html = "<html><meta charset=iso-8859-1>" + latin1;
        measure("html_source", sizeOf([&] { return stringWithHTML(html); }),
                {{"qt_html_decoder", sizeOf([&] { return decodedAsDeclared(html); })}});
        const QByteArray undeclared = "<html>" + latin1;
        measure("html_source_undeclared", sizeOf([&] { return stringWithHTML(undeclared); }));
        const QByteArray declared = "<html><meta charset=utf-8>" + utf8;
        measure("html_source_utf8", sizeOf([&] { return stringWithHTML(declared); }),
                {{"qt_html_decoder", sizeOf([&] { return decodedAsDeclared(declared); })}});
    }

    static QString decodedAsDeclared(const QByteArray &html) {
        QStringDecoder decoder = QStringDecoder::decoderForHtml(html);
        QString text = decoder.decode(html);
        return decoder.hasError() ? QString() : text;
    }

    static QString strictlyDecoded(const QByteArray &utf8) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        QString text = decoder.decode(utf8);
        return decoder.hasError() ? QString() : text;
    }

    void measureTheRest() {
        const QString html = repeatedToLength(
            u"<p>Fish &amp; chips: <b>3 &euro;</b> &lt;or&gt; &#163;3.\n", m_size.units);
        measure("html_text", sizeOf([&] { return stringByExpandingHTMLEntities(html); }));
        const QString nested = repeatedToLength(u"<i><b>w ", m_size.units);
        measure("html_text_nested", sizeOf([&] { return stringByExpandingHTMLEntities(nested); }));
        const QString endTags = repeatedToLength(u"<i>", m_size.units / 2) +
                                repeatedToLength(u"</b>", m_size.units / 2);
        measure("html_text_end_tags",
                sizeOf([&] { return stringByExpandingHTMLEntities(endTags); }));
        const QString digits(m_size.units, u'7');
        measure("integer_number", [&] { return std::size_t(isIntegerNumber(digits)); });
        measure("numeric_value", [&] { return std::size_t(numericValue(digits)); });
        const QString number = repeatedToLength(u"1.234,", m_size.units);
        measure("float_value", [&] { return std::size_t(smartFloatValue(number)); });
        measure("reasonable", [&] { return std::size_t(reasonableTextFactor(m_prose) > 0); });
        const QString emoji = u"\U0001F44B"_s + m_prose;
        measure("skin_colour", sizeOf([&] { return emojiStringWithSkinColor(emoji, 3); }));
    }

    Size m_size;
    QString m_prose;
};

} // namespace

// The arguments name sizes; without any, all are measured.
int main(int argc, char **argv) {
    const std::vector<std::string_view> wanted(argv + 1, argv + argc);
    constexpr qsizetype unitsOfKilobyte = 1024 / 2;
    for (const Size &size : {Size{"1KB", unitsOfKilobyte}, Size{"1MB", unitsOfKilobyte * 1024},
                             Size{"64MB", unitsOfKilobyte * 64 * 1024}}) {
        if (wanted.empty() || std::ranges::find(wanted, size.name) != wanted.end())
            TextBenchmark(size).run();
    }
    return 0;
}
