// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/HtmlPlainText.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/HtmlCharacterReferences.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <QByteArrayView>

#include <libxml/HTMLparser.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace {

// Elements whose content stands on lines of its own.
constexpr std::array<std::string_view, 44> blocks = {
    "address", "article",  "aside",  "blockquote", "caption", "center",   "dd",         "details",
    "dialog",  "dir",      "div",    "dl",         "dt",      "fieldset", "figcaption", "figure",
    "footer",  "form",     "h1",     "h2",         "h3",      "h4",       "h5",         "h6",
    "header",  "hgroup",   "hr",     "legend",     "li",      "main",     "menu",       "nav",
    "ol",      "optgroup", "option", "p",          "pre",     "section",  "summary",    "table",
    "tbody",   "textarea", "tr",     "ul"};
static_assert(std::ranges::is_sorted(blocks));

// Elements whose content is not shown.
constexpr std::array<std::string_view, 7> hidden = {"head",  "iframe",   "noembed", "script",
                                                    "style", "template", "title"};
static_assert(std::ranges::is_sorted(hidden));

bool isBlank(QChar unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r' || unit == u'\f';
}

// Puts the shown text together from what the parser finds.
class PlainText {
public:
    explicit PlainText(qsizetype expectedLength) { m_text.reserve(expectedLength); }

    void startElement(std::string_view name) {
        if (std::ranges::binary_search(hidden, name))
            ++m_hiddenDepth;
        if (name == "br")
            ++m_lineEnds;
        else if (std::ranges::binary_search(blocks, name))
            startLine();
        else if ((name == "td" || name == "th") && m_lineEnds == 0 && !m_text.isEmpty())
            m_blank = u'\t';
        if (name == "pre")
            ++m_preformattedDepth;
    }

    void endElement(std::string_view name) {
        if (std::ranges::binary_search(hidden, name) && m_hiddenDepth > 0)
            --m_hiddenDepth;
        if (name == "pre" && m_preformattedDepth > 0)
            --m_preformattedDepth;
        if (std::ranges::binary_search(blocks, name))
            startLine();
    }

    void characters(QByteArrayView utf8) {
        if (m_hiddenDepth > 0)
            return;
        const QString text = QString::fromUtf8(utf8);
        for (const QChar unit : text) {
            if (!isBlank(unit))
                append(unit);
            else if (m_preformattedDepth == 0)
                noteBlank();
            else if (unit == u'\n')
                ++m_lineEnds;
            else
                append(unit);
        }
    }

    QString take() { return std::move(m_text); }

private:
    void startLine() {
        m_blank = QChar();
        if (!m_text.isEmpty())
            m_lineEnds = std::max(m_lineEnds, 1);
    }

    void noteBlank() {
        if (m_blank.isNull() && m_lineEnds == 0 && !m_text.isEmpty())
            m_blank = u' ';
    }

    void append(QChar unit) {
        if (m_lineEnds > 0) {
            // None at the very start.
            if (!m_text.isEmpty())
                m_text.append(QString(m_lineEnds, u'\n'));
            m_lineEnds = 0;
            m_blank = QChar();
        }
        if (!m_blank.isNull())
            m_text.append(m_blank);
        m_blank = QChar();
        m_text.append(unit);
    }

    QString m_text;
    // What comes before the next character, if there is one.
    QChar m_blank;
    int m_lineEnds = 0;
    int m_hiddenDepth = 0;
    int m_preformattedDepth = 0;
};

std::string_view viewOf(const xmlChar *text) {
    return reinterpret_cast<const char *>(text);
}

// Parses as much as is nested within measure, and then begins anew: the parser's time for an end
// tag grows with the number of elements that are open.
class Parser {
public:
    explicit Parser(PlainText &plainText)
        : m_plainText(plainText)
        , m_context(htmlCreatePushParserCtxt(&handler(), this, nullptr, 0, nullptr,
                                             XML_CHAR_ENCODING_UTF8)) {
        htmlCtxtUseOptions(m_context.get(), HTML_PARSE_RECOVER | HTML_PARSE_NOERROR |
                                                HTML_PARSE_NOWARNING | HTML_PARSE_NONET |
                                                HTML_PARSE_IGNORE_ENC);
        m_context->charset = XML_CHAR_ENCODING_UTF8;
    }

    // Answers how many of the bytes were read; all but for a text that is nested too deep.
    qsizetype parse(QByteArrayView bytes) {
        constexpr qsizetype longestPiece = 16384;
        feed(start);
        qsizetype fed = 0;
        while (fed < bytes.size() && m_stop < 0) {
            const QByteArrayView piece =
                bytes.sliced(fed, std::min(longestPiece, bytes.size() - fed));
            fed += piece.size();
            feed(piece);
        }
        if (m_stop < 0) {
            htmlParseChunk(m_context.get(), nullptr, 0, 1);
            if (m_stop < 0)
                return bytes.size();
        }
        // Behind the start tag that was too much.
        const qsizetype end = bytes.sliced(std::min(m_stop, bytes.size())).indexOf('>');
        return end < 0 ? bytes.size() : m_stop + end + 1;
    }

private:
    struct Freer {
        void operator()(htmlParserCtxt *context) const { htmlFreeParserCtxt(context); }
    };

    static htmlSAXHandler &handler() {
        static htmlSAXHandler handler = [] {
            xmlInitParser();
            htmlSAXHandler made = {};
            made.startElement = [](void *self, const xmlChar *name,
                                   const xmlChar ** /*attributes*/) {
                static_cast<Parser *>(self)->startElement(viewOf(name));
            };
            made.endElement = [](void *self, const xmlChar *name) {
                static_cast<Parser *>(self)->endElement(viewOf(name));
            };
            made.characters = characters;
            made.ignorableWhitespace = characters;
            made.cdataBlock = characters;
            return made;
        }();
        return handler;
    }

    static void characters(void *self, const xmlChar *text, int length) {
        static_cast<Parser *>(self)->m_plainText.characters(
            QByteArrayView(reinterpret_cast<const char *>(text), length));
    }

    void feed(QByteArrayView bytes) {
        htmlParseChunk(m_context.get(), bytes.data(), static_cast<int>(bytes.size()), 0);
    }

    // The parser closes all elements when it is stopped, though they go on.
    void endElement(std::string_view name) {
        if (m_stop < 0)
            m_plainText.endElement(name);
    }

    void startElement(std::string_view name) {
        m_plainText.startElement(name);
        constexpr int deepest = 500;
        if (m_context->nameNr > deepest && m_stop < 0) {
            m_stop = static_cast<qsizetype>(xmlByteConsumed(m_context.get())) - start.size();
            xmlStopParser(m_context.get());
        }
    }

    // Put in front, as text that is in no element would be given a paragraph.
    static constexpr QByteArrayView start = "<span>";

    PlainText &m_plainText;
    qsizetype m_stop = -1;
    std::unique_ptr<htmlParserCtxt, Freer> m_context;
};

// Whether HTML can hold the unit, and it neither begins markup nor is white space.
bool showsAsItIs(char16_t unit) {
    return unit >= 0x20 && unit != u'<' && unit != u'&' && (unit < 0x7F || unit > 0x9F) &&
           unit < 0xFFFE;
}

// Whether the text shows as it stands.
bool isPlain(QStringView text) {
    char16_t previous = u' ';
    for (qsizetype index = 0; index < text.size();) {
        const Scalar scalar = scalarAt(text, index);
        const char16_t unit = text.utf16()[index];
        if (!showsAsItIs(unit) || (unit == u' ' && previous == u' ') ||
            QChar::isSurrogate(scalar.value))
            return false;
        previous = unit;
        index += scalar.length;
    }
    return text.isEmpty() || previous != u' ';
}

} // namespace

QString plainTextOfHtml(const QString &html) {
    if (isPlain(html))
        return html;
    const QByteArray utf8 = withPlainHtmlReferences(html);
    PlainText plainText(html.size());
    for (QByteArrayView rest = utf8; !rest.isEmpty();)
        rest = rest.sliced(Parser(plainText).parse(rest));
    return plainText.take();
}
