#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Character references in HTML: "&amp;", "&#38;", "&#x26;".

#include <QByteArray>
#include <QStringView>

// The text in UTF-8 with all its references as a browser reads them, those with a missing semicolon
// and the numbers of windows-1252 among them, and line ends made "\n". Characters beyond ASCII
// stand for themselves. Others that were written as a reference, and each "&" or "<" that begins
// nothing, are references by number: what is left means the same to every reader of HTML, of
// whatever age. Unpaired surrogates become U+FFFD, form feeds spaces; other control characters
// below the space that are no white space are left out, and so are U+FFFE and U+FFFF. Thread: any.
QByteArray withPlainHtmlReferences(QStringView html);
