#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The last step of loading a document, whatever its kind.

class SelfContainedDocument;

// Makes the document safe and fit for being shown on white paper: pictures are taken in or replaced
// by their description, links that lead elsewhere than to the web or a mail become plain text, text
// without a colour of its own becomes black, and paragraphs that are too long are broken.
// Thread: main.
void finishDocument(SelfContainedDocument &document);
