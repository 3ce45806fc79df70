#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// HTML read as plain text.

#include <QString>

// The text that the HTML shows: without markup, comments, scripts, style sheets and the head, with
// character references expanded and white space run together. Paragraphs and other blocks begin a
// line, <br> ends one, cells of a table are parted by a tab; <pre> keeps its white space. No line
// end at either end of it all. The text itself when that is just what it shows. Thread: any.
QString plainTextOfHtml(const QString &html);
