#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of property lists share: values written as text, and made-up binary lists.

#include "Platform/PropertyList.h"

#include <QByteArray>
#include <QList>
#include <QVariant>

#include <string>

// The value with its exact types as text: {a=1;b=(2.5r,true);c="t";d=<00ff>;e=2001-01-01T00:00:00Z}
std::string describe(const QVariant &value);

// The same for a parsed list; "line 3: ..." or another cause for a failure, after "failed: ".
std::string describe(const zt::Result<QVariant> &result);

// A binary property list of the given objects, each encoded whole; the first one is the root, and
// references and offsets have the given widths.
QByteArray binaryPropertyList(const QList<QByteArray> &objects, int referenceWidth = 1,
                              int offsetWidth = 2);
