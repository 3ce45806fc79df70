// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LoginItemLaunch.h"
#include "Platform/linux/MountInfoText.h"
#include "Platform/linux/ProcFsText.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    if (const auto stat = zt::parseProcStat(text); stat && stat->name.size() > size)
        __builtin_trap();
    zt::parseCommandLine(text);
    zt::parseEffectiveUser(text);
    zt::parseTracer(text);
    zt::isLaunchOfLoginItem(QStringLiteral("systemd"), text);
    zt::parseLastProcessId(text);
    zt::parseProcessId(text);
    const auto mount = zt::parseMountNumber(text);
    if (const auto type = zt::parseMountType(text, mount.value_or(1)); type && type->size() > size)
        __builtin_trap();
    if (zt::splitDeletedMark(text).path.size() > size)
        __builtin_trap();
    const std::string_view bundle = zt::innermostBundlePath(text);
    if (!bundle.empty() && !text.starts_with(bundle))
        __builtin_trap();
    return 0;
}
