#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Property lists in XML.

#include "Platform/Result.h"

#include <QByteArray>
#include <QVariant>

namespace zt {

// Reads the XML form, in any Unicode encoding; shapes as in Platform/PropertyList.h. Fails, with
// the line, on anything that is not a property list: malformed XML, declared entities, unknown
// elements, a key without a value, a number or date that is none, nesting that is too deep.
// Thread: any.
Result<QVariant> parseXmlPropertyList(const QByteArray &content);

} // namespace zt
