// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/PowerInterruptions.h"

#include "Platform/Log.h"
#include "Platform/macos/CFText.h"

#include <IOKit/pwr_mgt/IOPMLib.h>

#include <optional>
#include <string>

namespace zt {

namespace {

// Holds nothing when there is no assertion. One that is left over ends with the program.
class PowerHold final : public InterruptionHold {
public:
    explicit PowerHold(std::optional<IOPMAssertionID> assertion) : m_assertion(assertion) {}
    ~PowerHold() override {
        if (m_assertion)
            IOPMAssertionRelease(*m_assertion);
    }
    PowerHold(const PowerHold &) = delete;
    PowerHold &operator=(const PowerHold &) = delete;

private:
    std::optional<IOPMAssertionID> m_assertion;
};

} // namespace

std::unique_ptr<InterruptionHold> PowerInterruptions::holdOff(const QString &reason) {
    const CFOwner<CFStringRef> text = makeCFText(reason);
    IOPMAssertionID assertion = kIOPMNullAssertionID;
    const IOReturn status =
        IOPMAssertionCreateWithName(kIOPMAssertionTypePreventUserIdleSystemSleep,
                                    kIOPMAssertionLevelOn, text.get(), &assertion);
    if (status == kIOReturnSuccess)
        return std::make_unique<PowerHold>(assertion);
    m_log.writeLine("sleep is not held off: error " + std::to_string(status));
    return std::make_unique<PowerHold>(std::nullopt);
}

} // namespace zt
