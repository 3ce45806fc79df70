#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Whether a document can be laid out in reasonable time.

class SelfContainedDocument;

// Whether Qt can lay the document out: from a height of 2^23 pixels on its layout does not end, and
// the time for tables within tables doubles with each one. It is judged by the formats and the
// amount of text, before anything is laid out, and rather too strictly than too kindly.
// Thread: main.
bool canBeLaidOut(const SelfContainedDocument &document);
