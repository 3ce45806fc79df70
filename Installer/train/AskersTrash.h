#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where the privileged tool puts an existing copy.

#include "Installer/train/Asker.h"
#include "Platform/Trash.h"
#include "Platform/linux/FreedesktopTrash.h"

#include <functional>
#include <string>
#include <string_view>

namespace zt {

// The asker finds in his Trash a copy of the item, made with no other rights than his own: it is
// his to put back or to delete, and it tells him nothing that he could not read before. The item
// itself is never his: it may be running for others, who would run what he makes of it. Once the
// copy is whole and safe the item goes.
//
// What he could not copy himself, or what his Trash cannot take, goes to root's Trash as it is.
class AskersTrash final : public Trash {
public:
    // `log` is told where each item went, and why it was not the asker's Trash.
    AskersTrash(Asker asker, const std::string &homeOfRoot,
                std::function<void(std::string_view)> log);

    Result<std::string> moveToTrash(const std::string &path) override;
    Result<std::string> moveItemToTrash(int folder, const std::string &name,
                                        const std::string &path) override;

private:
    struct Item {
        int folder;
        const std::string &name;
        const std::string &path;
    };

    Result<std::string> giveCopyToAsker(const Item &item) const;

    const Asker m_asker;
    FreedesktopTrash m_trashOfRoot;
    const std::function<void(std::string_view)> m_log;
};

} // namespace zt
