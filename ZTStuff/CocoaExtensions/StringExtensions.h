#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Operations added to texts. The receiver comes first. A "unit" is one element of a QString; an
// operation that changes nothing answers the receiver itself, which shares its storage and
// allocates nothing. Unpaired surrogates, null characters and controls are units like others.

#include "ZTStuff/CocoaExtensions/StringExtensionsEncodings.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsEscapes.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsHtml.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsLines.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsScalars.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"
