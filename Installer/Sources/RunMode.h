#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the command line asks for: an installation with a window, or something that needs none.

#include <QString>
#include <QStringList>

enum class RunMode {
    Window,
    Unattended, // installs without a question
    Check,      // tells what would happen, in lines
    CheckJson,  // the same for programs
    Help,
    Version,
    Mistake, // a value that none of these has
};

struct RunChoice {
    RunMode mode = RunMode::Window;
    QString mistake = {}; // one sentence, with RunMode::Mistake
};

// The choice of a full argument vector, element 0 included. "--help" and "--version" count wherever
// they stand, and a check goes before an installation. Thread: any.
RunChoice runChoice(const QStringList &argumentVector);
