#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Regular expressions by ICU, whose syntax is that of the reference platform.

#include "ZTStuff/ZTClasses/ZTRegularExpression.h"

// The class named "NSRegularExpression"; null for other names, and where ICU was built without
// regular expressions. Thread: any.
const RegularExpressionClass *platformRegularExpressionClass(const char *name);
