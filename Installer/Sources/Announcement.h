#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Telling users of assistive technology what has changed, wherever their focus is.

#include <QString>

class QWidget;

// Lets views be announced whose property "isAnnounced" is true. To be called before there are any.
// Thread: main, as for the next.
void prepareAnnouncements();

// Has such a view read out: the text, which is then its name until it is announced again; without
// one what a label says, and the accessible name of another view. Nothing happens when nobody
// listens.
void announce(QWidget &view, const QString &text = {});
