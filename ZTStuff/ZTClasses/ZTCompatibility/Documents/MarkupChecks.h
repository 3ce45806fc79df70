#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// HTML and Markdown, looked at before they are laid out.

#include <QByteArrayView>
#include <QString>

// Whether reading the markup would take far more time than a text of its size deserves: elements
// nested without end, or lists and tables of many thousands of items. Thread: any.
bool isTooComplexHtml(QStringView html);
bool isTooComplexMarkdown(QStringView markdown);

// Whether the content begins like an HTML document. Thread: any.
bool looksLikeHtml(QByteArrayView content);
