// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/ProgressLines.h"

#include "Installer/Sources/LocalizedString.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <algorithm>
#include <utility>

ProgressLines::ProgressLines(QString productName, Target target,
                             std::function<void(const QByteArray &)> write)
    : m_productName(std::move(productName))
    , m_target(target)
    , m_write(std::move(write)) {}

void ProgressLines::show(std::uint64_t bytesDone, std::uint64_t bytesInAll) {
    if (bytesInAll == 0)
        return;
    // Files may have grown since they were counted.
    const double share = std::min(1.0, double(bytesDone) / double(bytesInAll));
    const int percent = int(share * 100);
    if (m_target == Target::Terminal) {
        if (percent > m_shown)
            m_write('\r' + line(percent));
    } else {
        for (int tenth = m_shown / 10 + 1; tenth <= percent / 10; ++tenth)
            m_write(line(tenth * 10) + '\n');
    }
    m_shown = std::max(m_shown, percent);
}

void ProgressLines::end() {
    if (m_target == Target::Terminal && m_shown >= 0)
        m_write("\n");
    m_shown = -1;
}

QByteArray ProgressLines::line(int percent) const {
    return ZTFormat(localizedString("Copying %1$@: %2$d %%"), m_productName, percent).toLocal8Bit();
}
