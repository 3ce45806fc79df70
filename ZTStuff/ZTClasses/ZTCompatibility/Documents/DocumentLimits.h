#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Bounds for documents that come with a product: what is larger is refused or shown in part.

#include <QtGlobal>

// The largest file that is read, a document or a picture beside it, in bytes.
inline constexpr qint64 maximumDocumentSize = 16'777'216;

// The largest HTML or Markdown file that is laid out, in bytes; a larger one is shown as its plain
// text, because the time to read markup grows faster than its size.
inline constexpr qint64 maximumMarkupSize = 1'048'576;

// How much text is shown, in UTF-16 units and in paragraphs. What follows is left out, and an
// ellipsis says so.
inline constexpr qsizetype maximumShownCharacters = 1'000'000;
inline constexpr int maximumShownParagraphs = 20'000;

// The longest paragraph, in UTF-16 units; a longer one is broken, because the time to break a
// paragraph into lines grows faster than its length.
inline constexpr int maximumParagraphLength = 8192;

// The pixels of one picture and of all pictures of a document.
inline constexpr qint64 maximumPicturePixels = 32'000'000;
inline constexpr qint64 maximumDocumentPixels = 64'000'000;
