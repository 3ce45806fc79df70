// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/WorkspaceTrash.h"

#import <AppKit/AppKit.h>

namespace zt {

Result<std::string> WorkspaceTrash::moveToTrash(const std::string &path) {
    @autoreleasepool {
        NSString *const item =
            [[NSFileManager defaultManager] stringWithFileSystemRepresentation:path.data()
                                                                        length:path.size()];
        const BOOL isMoved =
            item && [[NSWorkspace sharedWorkspace]
                        performFileOperation:NSWorkspaceRecycleOperation
                                      source:[item stringByDeletingLastPathComponent]
                                 destination:@""
                                       files:@[ item.lastPathComponent ]
                                         tag:nullptr];
        if (!isMoved)
            return Error{"move to the Trash", path, "the workspace refused"};
        return std::string();
    }
}

} // namespace zt
