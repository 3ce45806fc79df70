#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What other users of this computer run.

#include "Platform/Bundles.h"
#include "Platform/ProcessManager.h"
#include "Platform/linux/ProcFs.h"

#include <QList>

namespace zt {

// The applications of all users but the given one. The kernel tells which program a process runs to
// its own user only; for the others their command lines stand in. Thread: any.
QList<ForeignApplication> applicationsOfOtherUsers(const ProcFs &procFs, const Bundles &bundles,
                                                   uid_t user);

} // namespace zt
