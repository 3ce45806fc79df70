#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Documents that come with a product, such as its read-me.

#include "Platform/Result.h"

#include <QByteArray>
#include <QString>
#include <QTextDocument>

#include <memory>

// Reads a document of any of these kinds for being shown, told apart by content and name: rich text
// (RTF, and RTFD folders), HTML, Markdown, and plain text in any encoding.
//
// The document is self-contained: nothing is fetched or run, pictures come from the document itself
// or from its folder, links lead to the web or to a mail. It is made for white paper; text without
// a colour of its own is black. A document that is too long ends with an ellipsis; one that
// cannot be laid out for its size or nesting is shown as plain text.
class AttributedDocument {
public:
    // Fails when there is no such file, when it cannot be read, and when it is larger than
    // maximumDocumentSize; never because of its content. Thread: main.
    static zt::Result<std::unique_ptr<QTextDocument>> load(const QString &path);

    // The same from the file's content. Pictures come from the folder; from none when it is empty.
    // Thread: main.
    static std::unique_ptr<QTextDocument>
    fromContent(const QByteArray &content, const QString &fileName, const QString &folder);
};
