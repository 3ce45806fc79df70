#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the privileged tool is asked to do, before anything is looked at.

#include "Installer/train/InstallFunction.h"
#include "Platform/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace zt {

// Whether the path can be written in no other way: absolute, no empty, "." or ".." component, no
// slash at the end, and neither it nor a component longer than the system allows. "/" is not.
// Whether links lie on the way is another question. Thread: any, as for all that follow.
bool isCanonicalPath(std::string_view path);

// The paths of an installation: source, destination and, if there are three, wrapper. Fails unless
// they are canonical, and the wrapper begins with the path of the source's folder.
Result<InstallPaths> readTrainArguments(const std::vector<std::string> &arguments);

} // namespace zt
