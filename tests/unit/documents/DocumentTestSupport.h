#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of documents share: small pictures, and questions about a document.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTextCharFormat>
#include <QTextDocument>

#include <string>

// A picture of one colour, encoded in the format ("png", "jpeg").
QByteArray pictureBytes(int width, int height, const char *format = "png");

// The document's text in UTF-8; a picture is "[picture]".
std::string textOf(const QTextDocument &document);

// The format of the first place where the text stands; it fails the test when there is none.
QTextCharFormat formatOf(const QTextDocument &document, const QString &text);

// The names of the pictures in the text, in order.
QStringList pictureNames(const QTextDocument &document);

// The addresses of the links in the text, in order.
QStringList linksOf(const QTextDocument &document);
