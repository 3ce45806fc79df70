// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/AuthorizedExecute.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <QFile>

std::int32_t AuthorizedExecute(zt::AuthorizationReference &authorization,
                               const zt::PrivilegedCommand &command) {
    const std::int32_t status = authorization.executeWithPrivileges(command);
    if (status != zt::AuthorizationStatus::success) {
        ZTLog("AuthorizationExecuteWithPrivileges failed (%s)",
              QFile::encodeName(command.tool).constData());
        return status;
    }
    const zt::ChildEnd end = authorization.waitForChild();
    switch (end.kind) {
    case zt::ChildEnd::Kind::Lost:
        // Somebody else may have been told of its end; that is no reason to call it a failure.
        ZTLog("no pid");
        return 0;
    case zt::ChildEnd::Kind::Exited:
        if (end.status == 0)
            return 0;
        ZTLog("WEXITSTATUS");
        return -1;
    case zt::ChildEnd::Kind::Signaled:
        break;
    }
    ZTLog("!WIFEXITED");
    return -1;
}
