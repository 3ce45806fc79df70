// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How far the installation has come, and the button that stops the copy.

#include "Installer/Sources/InstallerWinController.h"

#include "Platform/posix/TreeCopy.h"

#include <algorithm>

void InstallerWinController::animateProgress(Progress progress) {
    m_ui.progressIndicator->setVisible(progress == Progress::Running);
}

void InstallerWinController::showCopyProgress(const zt::CopyProgress &progress) {
    // Files may have grown since they were counted.
    const double share =
        progress.bytesInAll == 0 ? 0.0 : double(progress.bytesDone) / double(progress.bytesInAll);
    m_ui.copyProgress->setValue(int(std::min(share, 1.0) * m_ui.copyProgress->maximum()));
    m_ui.copyProgress->show();
    m_ui.stopButton->show();
}

void InstallerWinController::hideCopyProgress() {
    m_ui.copyProgress->hide();
    m_ui.stopButton->hide();
    m_ui.copyProgress->reset();
}
