#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running part of a test in a process of its own: as a user whom permissions bind, or with mounts
// that nobody else sees.

#include <functional>
#include <string>

namespace zt::testing {

// Runs the body in a child process and answers what it returned; a text that tells how the child
// ended when it did not come to that.
std::string inChildProcess(const std::function<std::string()> &body);

// The same as a user without privileges: "nobody" when this process is root's, else this user.
std::string asOrdinaryUser(const std::function<std::string()> &body);

// The user that asOrdinaryUser() acts as.
unsigned ordinaryUser();

// The same with a mount namespace of its own, as root there. Answers cannotMount when this machine
// does not allow it.
std::string withPrivateMounts(const std::function<std::string()> &body);
inline constexpr const char *cannotMount = "this user may not make a mount namespace";

// Runs a program of the system, without output. Whether it ended with success.
bool runQuietly(const std::string &command);

} // namespace zt::testing
