// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/MarkupChecks.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Measured: each open element costs the reader time with every further one.
constexpr int deepestNesting = 200;
constexpr int mostOpenItems = 2000;
constexpr int mostPictures = 2000;
constexpr qsizetype mostStructureMarks = 3000;

bool isVoidElement(QStringView name) {
    static const QStringList names = {u"area"_s, u"base"_s,  u"br"_s,     u"col"_s,
                                      u"hr"_s,   u"img"_s,   u"input"_s,  u"link"_s,
                                      u"meta"_s, u"param"_s, u"source"_s, u"wbr"_s};
    return names.contains(name, Qt::CaseInsensitive);
}

// Elements whose end may be left out, so that many of them stay open in good HTML.
bool isItemElement(QStringView name) {
    static const QStringList names = {u"li"_s, u"option"_s};
    return names.contains(name, Qt::CaseInsensitive);
}

bool isClosedByTheNext(QStringView name) {
    static const QStringList names = {u"p"_s,  u"td"_s,    u"th"_s,    u"tr"_s,   u"dt"_s,
                                      u"dd"_s, u"tbody"_s, u"thead"_s, u"tfoot"_s};
    return names.contains(name, Qt::CaseInsensitive);
}

// Where the element's content ends when it is no markup: that of scripts and style sheets.
qsizetype skipRawContent(QStringView html, qsizetype position, QStringView name) {
    for (const QString &raw : {u"script"_s, u"style"_s}) {
        if (name.compare(raw, Qt::CaseInsensitive) != 0)
            continue;
        const qsizetype end = html.indexOf(u"</"_s + raw, position, Qt::CaseInsensitive);
        return end < 0 ? html.size() : end;
    }
    return position;
}

// The name that begins at the position; empty when there is none.
QStringView tagName(QStringView html, qsizetype position) {
    qsizetype end = position;
    while (end < html.size() && (html[end].isLetterOrNumber() || html[end] == u'-'))
        ++end;
    return html.sliced(position, end - position);
}

} // namespace

bool isTooComplexHtml(QStringView html) {
    int depth = 0;
    int openItems = 0;
    int pictures = 0;
    for (qsizetype position = html.indexOf(u'<'); position >= 0;
         position = html.indexOf(u'<', position)) {
        ++position;
        const bool isEnd = position < html.size() && html[position] == u'/';
        const QStringView name = tagName(html, position + (isEnd ? 1 : 0));
        if (name.compare(u"img", Qt::CaseInsensitive) == 0 && ++pictures > mostPictures)
            return true;
        if (name.isEmpty() || isVoidElement(name) || isClosedByTheNext(name))
            continue;
        int &count = isItemElement(name) ? openItems : depth;
        count = std::max(count + (isEnd ? -1 : 1), 0);
        if (depth > deepestNesting || openItems > mostOpenItems)
            return true;
        if (!isEnd)
            position = skipRawContent(html, position, name);
    }
    return false;
}

bool isTooComplexMarkdown(QStringView markdown) {
    qsizetype marks = 0;
    for (const QStringView line : markdown.tokenize(u'\n')) {
        // Items, quotes and table rows; one line can begin many of them.
        const QStringView text = line.trimmed();
        const auto isMark = [](QChar character) {
            return QStringView(u"-*+>|").contains(character) || character.isDigit();
        };
        if (text.isEmpty() || !isMark(text.front()))
            continue;
        constexpr qsizetype usualMarks = 8;
        marks += 1 + std::ranges::count_if(text, isMark) / usualMarks;
        if (marks > mostStructureMarks)
            return true;
    }
    return false;
}

bool looksLikeHtml(QByteArrayView content) {
    constexpr qsizetype headSize = 1024;
    const QByteArray head =
        content.first(std::min(content.size(), headSize)).toByteArray().trimmed().toLower();
    return head.startsWith("<!doctype html") || head.startsWith("<html") ||
           (head.startsWith("<?xml") && head.contains("<html"));
}
