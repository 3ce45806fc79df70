#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What holds for every value that a property list can have.

#include <QVariant>

// Ends the program when the value, or one inside of it, is of a type that property lists do not
// have.
void checkPropertyListShape(const QVariant &value);
