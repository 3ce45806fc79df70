#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Making the installed product known to the desktops of all users.

#include "Platform/Result.h"
#include "Platform/linux/registration/ApplicationRecord.h"

#include <functional>
#include <string>
#include <string_view>

namespace zt {

// Reads the record that the installer has prepared, up to the end of the descriptor. Empty when
// there is none. Fails when it is too large, or when nothing more comes for some seconds. Thread:
// any, as for all that follow.
Result<std::string> readPreparedRecord(int descriptor);

// The record, if it is one of the product at the destination: its place is the destination, and its
// program a file in there to which no link leads.
Result<ApplicationRecord> checkPreparedRecord(std::string_view bytes,
                                              const std::string &destination);

// Registers the product in the first of the system's folders for such data that root alone may
// write to. The calling process is root's.
Result<void> registerForAllUsers(const ApplicationRecord &record,
                                 const std::function<void(std::string_view)> &log);

} // namespace zt
