#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The application's main routine.

// Sets up the application and its platform, shows the installer and runs until it quits. Answers
// the process's exit status.
int applicationMain(int argumentCount, char **argumentVector);
