#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Plain text in an encoding that nothing tells.

#include <QByteArrayView>
#include <QString>

// The text of the bytes, in the encoding that their byte order mark tells, else in UTF-8 or UTF-16
// when they are valid in it, else in the one that they look like, at last in windows-1252. Any
// bytes give some text; there is no failure. Thread: any.
QString decodePlainText(QByteArrayView bytes);

// The same for HTML, whose first lines may name the encoding. Thread: any.
QString decodeHtml(QByteArrayView bytes);

// The text fit for being shown: line ends become '\n', form feeds begin a new line, other control
// characters and units that are reserved within a text document are left out or become U+FFFD.
// Thread: any.
QString cleanedText(const QString &text);
