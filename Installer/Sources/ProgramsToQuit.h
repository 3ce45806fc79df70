#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Which programs must not run during an installation.

#include "Installer/Sources/Installation.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <utility>

// Those with one of the signatures, but never the installer itself. Thread: any.
class ProgramsToQuit {
public:
    explicit ProgramsToQuit(QStringList codes) : m_codes(std::move(codes)) {}

    bool contain(FourCharCode signature) const {
        return Installation::signatureIsInArray(signature, m_codes);
    }
    bool contain(const ZTProcess &process) const {
        return contain(process.signature()) && !process.isEqual(m_self.get());
    }

private:
    QStringList m_codes;
    ZTProcess::Pointer m_self = ZTProcess::currentProcess();
};
