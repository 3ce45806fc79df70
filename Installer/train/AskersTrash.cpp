// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/AskersTrash.h"

#include "Installer/train/TrustedFolder.h"
#include "Platform/linux/FreedesktopTrashFolder.h"
#include "Platform/posix/StagingFolder.h"
#include "Platform/posix/SystemCalls.h"

#include <utility>

namespace zt {

namespace {

std::string parentOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace

AskersTrash::AskersTrash(Asker asker, const std::string &homeOfRoot,
                         std::function<void(std::string_view)> log)
    : m_asker(std::move(asker))
    , m_trashOfRoot({.dataHome = homeOfRoot + "/.local/share", .user = 0})
    , m_log(std::move(log)) {}

Result<std::string> AskersTrash::giveCopyToAsker(const Item &item) const {
    // Made first, because a folder in which nothing can be made gives up nothing either.
    Result<StagingFolder> leaving = StagingFolder::make(item.folder, parentOf(item.path));
    if (!leaving)
        return leaving.error();
    const ActingAs asker(m_asker.identity);
    const Result<TrashFolder> trash = openOwnHomeTrash(m_asker.homeFolder, m_asker.identity.user);
    if (!trash)
        return trash.error();
    Result<std::string> newName = trash->addCopy({item.folder, item.name, item.path}, item.path);
    if (!newName)
        return newName;
    const ActingAs root(FileSystemIdentity{0, 0});
    if (moveWithoutReplacing(item.folder, item.name.c_str(), leaving->descriptor(), "item"))
        return trash->pathOf(*newName);
    const Error error = Error::fromErrno("move to the Trash", item.path);
    const ActingAs askerAgain(m_asker.identity);
    trash->removeCopy(*newName);
    return error;
}

Result<std::string> AskersTrash::moveToTrash(const std::string &path) {
    const Result<UniqueFd> folder = openTrustedFolder(parentOf(path));
    if (!folder)
        return folder.error();
    return moveItemToTrash(folder->get(), path.substr(path.rfind('/') + 1), path);
}

Result<std::string> AskersTrash::moveItemToTrash(int folder, const std::string &name,
                                                 const std::string &path) {
    if (!m_asker.isRoot()) {
        Result<std::string> given = giveCopyToAsker({folder, name, path});
        if (given) {
            m_log("The existing copy is in the Trash of " + m_asker.name + ": " + *given);
            return given;
        }
        m_log("The existing copy cannot go to the Trash of " + m_asker.name + ": " +
              given.error().text());
    }
    Result<std::string> moved = m_trashOfRoot.moveItemToTrash(folder, name, path);
    if (moved)
        m_log("The existing copy is in the Trash of root: " + *moved);
    return moved;
}

} // namespace zt
