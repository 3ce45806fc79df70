#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What is on the screen, asked of the X server by other means than those under test.

#include <string>
#include <vector>

// Whether a window manager runs that looks after every window that is shown from now on; unless
// the screen still has what one has left that runs no more, which can be taken away.
bool windowManagerIsReady();
void forgetWindowManager();

// The titles of the windows that the window manager manages, the lowest first.
std::vector<std::string> windowTitlesFromBottomToTop();

// How many of them are minimised.
std::size_t hiddenWindowCount();

void activateWindow(const std::string &title);

// These change what a window says about itself. The window manager does not care by then.
void setHostOfWindow(const std::string &title, const std::string &host);
void setPidOfWindow(const std::string &title, int pid);
void setTypeOfWindow(const std::string &title, const std::string &type);
