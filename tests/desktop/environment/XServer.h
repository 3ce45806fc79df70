#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// X servers that lack something.

#include "tests/programs/RunningProgram.h"
#include "tests/unit/copy/ScopedEnvironment.h"

#include <string>
#include <vector>

// A server of the test's own that everything connects to from now on, until this goes.
class XServer {
public:
    // Runs without the extension.
    explicit XServer(const std::string &withoutExtension)
        : m_server({"Xvfb", "-displayfd", "1", "-screen", "0", "320x240x24", "-nolisten", "tcp",
                    "-noreset", "-extension", withoutExtension})
        , m_display("DISPLAY", ':' + m_server.readLine().value_or("none")) {}

private:
    RunningProgram m_server;
    zt::testing::ScopedEnvironment m_display;
};
