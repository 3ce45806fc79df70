#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts from HTML.

#include <QByteArrayView>
#include <QString>

// Thread: any, for all operations.
namespace StringExtensions {

// The source text of HTML, in the character set that its first <meta> element declares as far as it
// can be read: the name right behind "charset" and equals signs and blanks. A name in quotes is not
// read. Without one, or when the bytes are not valid in it, the text is Latin-1. Bytes that do not
// say "html" in Latin-1 but do so in UTF-16 are that.
QString stringWithHTML(QByteArrayView data);

// The text that the receiver shows when it is read as HTML: character references are expanded and
// markup is dropped. Blocks begin a line, white space is run together, no line end at the end.
QString stringByExpandingHTMLEntities(const QString &receiver);

} // namespace StringExtensions
