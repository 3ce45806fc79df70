// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/InstallFunction.h"

#include "Installer/train/InstallPreparation.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeWalk.h"

#include <sys/stat.h>

#include <exception>
#include <utility>

namespace {

using zt::Error;
using zt::ItemPlace;
using zt::Result;
using zt::StagedCopy;

class Installation {
public:
    // `destination` is what messages call it.
    Installation(std::string destination, const InstallServices &services)
        : m_destination(std::move(destination))
        , m_services(services) {}

    InstallResult run(const InstallPaths &paths);
    InstallResult run(zt::InstallPlan plan);

private:
    InstallResult copyFailed(const Error &cause, std::string_view what, const std::string &path);
    bool prepare(const InstallPaths &paths);
    bool check();
    bool wrapperFailed(const Error &cause);
    InstallResult carryOut();
    bool makeDestinationFolder();
    bool installWrapper();
    bool copyWholeWrapper();
    bool installWrapperItems();
    bool installWrapperItem(const ItemPlace &item, const ItemPlace &target);
    bool trashExistingCopy(const ItemPlace &place);
    Result<void> copyProduct();

    bool exists(const ItemPlace &place) const {
        return zt::statusAt(place.folder, place.name.c_str()).has_value();
    }

    void log(std::string_view line) const {
        if (m_services.log)
            m_services.log(line);
    }

    void noteChange(const std::string &path) const {
        if (m_services.noteFileSystemChanged)
            m_services.noteFileSystemChanged(path);
    }

    zt::StagedCopySettings settings() const {
        return {.durability = m_services.durability,
                .proof = m_services.proof,
                .rights = m_services.rights,
                .readAs = m_plan.readAs,
                .stop = m_services.stop,
                .progress = {},
                .note = m_services.log};
    }

    const std::string m_destination;
    const InstallServices &m_services;
    zt::InstallPlan m_plan;
    InstallResult m_failure = InstallResult::CopyFailed;
};

// Tells the cause, then what failed; the answer is for the caller to pass on.
InstallResult Installation::copyFailed(const Error &cause, std::string_view what,
                                       const std::string &path) {
    log(cause.text());
    log("ERROR -- Could not copy " + std::string(what) + " to " + path);
    return m_failure = InstallResult::CopyFailed;
}

bool Installation::wrapperFailed(const Error &cause) {
    if (m_plan.destinationFolder.descriptor || m_plan.makesGuaranteedFolder) {
        copyFailed(cause, "myself", m_destination);
    } else {
        copyFailed(cause, "wrapper", m_plan.destinationFolderPath);
    }
    return false;
}

bool Installation::prepare(const InstallPaths &paths) {
    Result<zt::InstallPlan> plan = zt::planInstallation(paths, m_services.guaranteedFolders);
    if (!plan) {
        copyFailed(plan.error(), "myself", m_destination);
        return false;
    }
    m_plan = *std::move(plan);
    if (!paths.wrapper)
        return true;
    const Result<void> planned = zt::planWrapper(m_plan, *paths.wrapper);
    return planned || wrapperFailed(planned.error());
}

bool Installation::check() {
    if (const Result<void> checked = zt::checkInstallation(m_plan); !checked) {
        copyFailed(checked.error(), "myself", m_destination);
        return false;
    }
    if (!m_plan.wrapper)
        return true;
    const Result<void> checked = zt::checkWrapper(m_plan);
    return checked || wrapperFailed(checked.error());
}

bool Installation::makeDestinationFolder() {
    if (m_plan.destinationFolder.descriptor)
        return true;
    const std::string &path = m_plan.destinationFolderPath;
    const int above = m_plan.folderAbove.descriptor.get();
    const std::string name = path.substr(path.rfind('/') + 1);
    const bool isMade = m_plan.makesGuaranteedFolder && ::mkdirat(above, name.c_str(), 0755) == 0;
    if (m_plan.makesGuaranteedFolder && !isMade && errno != EEXIST) {
        copyFailed(Error::fromErrno("make folder", path), "myself", m_destination);
        return false;
    }
    // What was made here is no link, and what came in between is not to be followed.
    zt::UniqueFd folder = zt::openAt(above, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    // Its mode does not depend on the mask that this process happens to have.
    if (!folder || (isMade && ::fchmod(folder.get(), 0755) != 0)) {
        copyFailed(Error::fromErrno("open", path), "myself", m_destination);
        return false;
    }
    m_plan.destinationFolder = {path, std::move(folder)};
    return true;
}

bool Installation::copyWholeWrapper() {
    const std::string &path = m_plan.destinationFolderPath;
    zt::StagingFolder::sweep(m_plan.folderAbove.descriptor.get());
    const ItemPlace target = m_plan.folderAbove.item(path.substr(path.rfind('/') + 1));
    const ItemPlace wrapper = {m_plan.wrapper->descriptor.get(), ".", m_plan.wrapper->path};
    Result<StagedCopy> copy = StagedCopy::make(wrapper, target, settings());
    const Result<void> placed = copy ? copy->place(target) : copy.error();
    if (!placed) {
        copyFailed(placed.error(), "wrapper", path);
        return false;
    }
    noteChange(path);
    return true;
}

// The copy is made first, so that a copy that fails costs nothing; then the old item goes.
bool Installation::installWrapperItem(const ItemPlace &item, const ItemPlace &target) {
    Result<StagedCopy> copy = StagedCopy::make(item, target, settings());
    if (!copy) {
        copyFailed(copy.error(), "auxiliary item", target.path);
        return false;
    }
    const bool isProduct = target.name == m_plan.destinationName;
    if (exists(target) && isProduct) {
        // An existing copy of the product is never deleted, not even for the wrapper's.
        if (!trashExistingCopy(target))
            return false;
    } else if (exists(target)) {
        if (const Result<void> displaced = copy->displace(target); !displaced) {
            log(displaced.error().text());
            log("ERROR -- Could not delete " + target.path);
        }
    }
    if (const Result<void> placed = copy->place(target); !placed) {
        copyFailed(placed.error(), "auxiliary item", target.path);
        return false;
    }
    if (const Result<void> cleaned = copy->cleanUp(); !cleaned) {
        log(cleaned.error().text());
        log("ERROR -- Could not delete " + target.path);
    }
    noteChange(target.path);
    return true;
}

bool Installation::installWrapperItems() {
    const Result<std::vector<std::string>> names = zt::namesInWrapper(m_plan);
    if (!names) {
        copyFailed(names.error(), "myself", m_destination);
        return false;
    }
    for (const std::string &name : *names) {
        if (!installWrapperItem(m_plan.wrapper->item(name), m_plan.destinationFolder.item(name)))
            return false;
    }
    return true;
}

bool Installation::installWrapper() {
    if (m_plan.destinationFolder.descriptor)
        return installWrapperItems();
    return copyWholeWrapper() && makeDestinationFolder();
}

bool Installation::trashExistingCopy(const ItemPlace &place) {
    const Result<std::string> trashed =
        m_services.trash.moveItemToTrash(place.folder, place.name, place.path);
    if (trashed)
        return true;
    log(trashed.error().text());
    // Two lines on purpose: one says which operation failed, the other what for.
    log("ERROR -- Could not trash '" + m_destination + "'");
    log("ERROR -- Could not trash existing " + m_destination);
    m_failure = InstallResult::TrashFailed;
    return false;
}

Result<void> Installation::copyProduct() {
    zt::StagedCopySettings productSettings = settings();
    productSettings.progress = m_services.progress;
    const ItemPlace target = m_plan.destinationPlace();
    Result<StagedCopy> copy = StagedCopy::make(m_plan.sourcePlace(), target, productSettings);
    if (!copy)
        return copy.error();
    return copy->place(target);
}

InstallResult Installation::carryOut() {
    if (m_services.stop.stop_requested())
        return copyFailed(zt::stoppedError(m_plan.sourcePath), "myself", m_destination);
    if ((m_plan.makesGuaranteedFolder || !m_plan.wrapper) && !makeDestinationFolder())
        return m_failure;
    if (m_plan.destinationFolder.descriptor)
        zt::StagingFolder::sweep(m_plan.destinationFolder.descriptor.get());
    if (m_plan.wrapper && !installWrapper())
        return m_failure;
    if (exists(m_plan.destinationPlace()) && !trashExistingCopy(m_plan.destinationPlace()))
        return m_failure;
    if (const Result<void> copied = copyProduct(); !copied)
        return copyFailed(copied.error(), "myself", m_destination);
    noteChange(m_destination);
    return InstallResult::Success;
}

InstallResult Installation::run(const InstallPaths &paths) {
    return prepare(paths) ? carryOut() : m_failure;
}

InstallResult Installation::run(zt::InstallPlan plan) {
    m_plan = std::move(plan);
    return check() ? carryOut() : m_failure;
}

// What an exception becomes, where the caller can bear none.
InstallResult unexpectedFailure(const std::exception &exception, const std::string &destination,
                                const InstallServices &services) {
    if (services.log) {
        services.log(std::string("install: ") + exception.what());
        services.log("ERROR -- Could not copy myself to " + destination);
    }
    return InstallResult::CopyFailed;
}

} // namespace

InstallResult InstallApplication(const InstallPaths &paths, const InstallServices &services) {
    try {
        return Installation(paths.destination, services).run(paths);
    } catch (const std::exception &exception) {
        return unexpectedFailure(exception, paths.destination, services);
    }
}

InstallResult InstallApplication(zt::InstallPlan plan, const InstallServices &services) {
    const std::string destination = plan.destinationPath();
    try {
        return Installation(destination, services).run(std::move(plan));
    } catch (const std::exception &exception) {
        return unexpectedFailure(exception, destination, services);
    }
}
