// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsHtml.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/CharacterSets.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/HtmlPlainText.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/StringEncoding.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <algorithm>
#include <optional>

namespace StringExtensions {

namespace {

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

// The index behind the word, which is in lower case, in the Latin-1 text at or behind `from`, in
// any case; -1 when it is not there.
qsizetype indexBehind(QByteArrayView word, QByteArrayView text, qsizetype from) {
    const char first = word.front();
    const char capital = upperCase(first);
    qsizetype next =
        -1; // the place of the first character in lower case, at the index or behind it
    for (qsizetype index = from; index <= text.size() - word.size(); ++index) {
        if (next < index) {
            next = text.indexOf(first, index);
            if (next < 0)
                next = text.size();
        }
        const qsizetype large = text.sliced(index, next - index).indexOf(capital);
        index = large < 0 ? next : index + large;
        if (index <= text.size() - word.size() &&
            std::equal(word.begin(), word.end(), text.begin() + index,
                       [](char inWord, char inText) { return lowerCase(inText) == inWord; }))
            return index + word.size();
    }
    return -1;
}

bool isBlankOrEqualsSign(char c) {
    return static_cast<unsigned char>(c) < 33 || c == '=';
}

bool isNameCharacter(char c) {
    const char letter = lowerCase(c);
    return (letter >= 'a' && letter <= 'z') || (c >= '0' && c <= '9') || c == '-';
}

// The name that follows "charset" in the first <meta> element or anywhere behind it; empty when
// there is none, or it is in quotes.
QByteArrayView declaredCharacterSet(QByteArrayView html) {
    const qsizetype meta = indexBehind("<meta", html, 0);
    const qsizetype charset = meta < 0 ? -1 : indexBehind("charset", html, meta);
    if (charset < 0 || charset == html.size())
        return {};
    const char *start = html.begin() + charset;
    if (isBlankOrEqualsSign(*start) || isControlCharacter(static_cast<unsigned char>(*start)))
        start = std::find_if_not(start + 1, html.end(), isBlankOrEqualsSign);
    return {start, std::find_if_not(start, html.end(), isNameCharacter)};
}

} // namespace

QString stringWithHTML(QByteArrayView data) {
    if (indexBehind("html", data, 0) >= 0) {
        const std::optional<StringEncoding> encoding =
            encodingWithIANAName(declaredCharacterSet(data));
        std::optional<QString> text;
        if (encoding && *encoding != StringEncoding::ISOLatin1)
            text = stringWithData(data, *encoding);
        return text ? *std::move(text) : QString::fromLatin1(data);
    }
    ZTLog("no HTML in Latin");
    std::optional<QString> text = stringWithData(data, StringEncoding::Unicode);
    if (text && text->contains(QStringView(u"html"), Qt::CaseInsensitive))
        return *std::move(text);
    ZTLog("no HTML in Unicode");
    return QString::fromLatin1(data);
}

QString stringByExpandingHTMLEntities(const QString &receiver) {
    return plainTextOfHtml(receiver);
}

} // namespace StringExtensions
