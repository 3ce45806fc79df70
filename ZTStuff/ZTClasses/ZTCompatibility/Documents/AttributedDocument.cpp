// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/AttributedDocument.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentFile.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentFinish.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLayoutCheck.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/MarkupChecks.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/PlainTextDecoder.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfInterpreter.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCursor>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { RichText, Html, Markdown, PlainText };

Kind kindOf(const QByteArray &content, const QString &suffix) {
    const QString lower = suffix.toLower();
    if (content.startsWith("{\\rtf"))
        return Kind::RichText;
    if (lower == "html"_L1 || lower == "htm"_L1 || lower == "xhtml"_L1 || looksLikeHtml(content))
        return Kind::Html;
    if (lower == "md"_L1 || lower == "markdown"_L1)
        return Kind::Markdown;
    return Kind::PlainText;
}

// The text up to the limits, with an ellipsis when something is left out.
QString shortened(QString text) {
    qsizetype end = std::min(text.size(), maximumShownCharacters);
    qsizetype lineEnd = -1;
    for (int lines = 0; lines < maximumShownParagraphs; ++lines) {
        lineEnd = text.indexOf(u'\n', lineEnd + 1);
        if (lineEnd < 0)
            break;
    }
    if (lineEnd >= 0)
        end = std::min(end, lineEnd);
    if (end == text.size())
        return text;
    if (end > 0 && text[end - 1].isHighSurrogate())
        --end;
    text.truncate(end);
    return text + u'\u2026';
}

void fillWithPlainText(SelfContainedDocument &document, const QString &text) {
    QTextCharFormat format;
    format.setForeground(Qt::black);
    QTextCursor cursor(&document);
    cursor.setBlockCharFormat(format);
    cursor.insertText(shortened(cleanedText(text)), format);
}

// Links to style sheets and the like would not be followed, and the base of addresses is the
// document's own place; outside of a <head>, Qt takes what follows such an element for its content.
QString withoutHeadElements(QString html) {
    static const QRegularExpression elements(u"<(?:link|base)\\b[^>]*>"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    return html.remove(elements);
}

void fillWithHtml(SelfContainedDocument &document, const QByteArray &content) {
    const QString html = decodeHtml(content);
    if (content.size() > maximumMarkupSize || isTooComplexHtml(html)) {
        fillWithPlainText(document, html);
    } else {
        document.setHtml(withoutHeadElements(html));
    }
}

void fillWithMarkdown(SelfContainedDocument &document, const QByteArray &content) {
    const QString markdown = cleanedText(decodePlainText(content));
    if (content.size() > maximumMarkupSize || isTooComplexMarkdown(markdown)) {
        fillWithPlainText(document, markdown);
        return;
    }
    // Within an edit block nothing is laid out before the whole text is there.
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    // HTML within Markdown is shown as it stands: the reader of Qt loses text after some elements.
    document.setMarkdown(markdown,
                         QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub) |
                             QTextDocument::MarkdownNoHTML);
    cursor.endEditBlock();
}

void fill(SelfContainedDocument &document, const QByteArray &content, const QString &suffix) {
    switch (kindOf(content, suffix)) {
    case Kind::RichText:
        RtfInterpreter({content.constData(), static_cast<std::size_t>(content.size())}, document)
            .run();
        break;
    case Kind::Html:
        fillWithHtml(document, content);
        break;
    case Kind::Markdown:
        fillWithMarkdown(document, content);
        break;
    case Kind::PlainText:
        fillWithPlainText(document, decodePlainText(content));
        break;
    }
}

} // namespace

zt::Result<std::unique_ptr<QTextDocument>> AttributedDocument::load(const QString &path) {
    // A folder of rich text with its pictures.
    const bool isFolder = QFileInfo(path).isDir();
    const QFileInfo file(isFolder ? path + u"/TXT.rtf"_s : path);
    zt::Result<QByteArray> content = readDocumentFile(file.filePath());
    if (!content)
        return content.error();

    return fromContent(*content, file.fileName(), file.absolutePath());
}

std::unique_ptr<QTextDocument> AttributedDocument::fromContent(const QByteArray &content,
                                                               const QString &fileName,
                                                               const QString &folder) {
    auto document = std::make_unique<SelfContainedDocument>(folder);
    fill(*document, content, QFileInfo(fileName).suffix());
    finishDocument(*document);
    if (!canBeLaidOut(*document)) {
        auto plain = std::make_unique<SelfContainedDocument>(QString());
        fillWithPlainText(*plain, document->toPlainText());
        finishDocument(*plain);
        document = std::move(plain);
    }
    return document;
}
