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
    Installation(const InstallPaths &paths, const InstallServices &services)
        : m_paths(paths)
        , m_services(services) {}

    InstallResult run();

private:
    InstallResult copyFailed(const Error &cause, std::string_view what, const std::string &path);
    bool prepare();
    bool makeDestinationFolder();
    bool installWrapper();
    bool copyWholeWrapper();
    bool installWrapperItems();
    bool installWrapperItem(const ItemPlace &item, const ItemPlace &target);
    bool trashExistingCopy(const std::string &path);
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
                .stop = m_services.stop,
                .progress = {},
                .note = m_services.log};
    }

    const InstallPaths &m_paths;
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

bool Installation::prepare() {
    Result<zt::InstallPlan> plan = zt::planInstallation(m_paths, m_services.guaranteedFolders);
    if (!plan) {
        copyFailed(plan.error(), "myself", m_paths.destination);
        return false;
    }
    m_plan = *std::move(plan);
    if (!m_paths.wrapper)
        return true;
    const Result<void> planned = zt::planWrapper(m_plan, *m_paths.wrapper);
    if (planned)
        return true;
    if (m_plan.destinationFolder.descriptor || m_plan.makesGuaranteedFolder) {
        copyFailed(planned.error(), "myself", m_paths.destination);
    } else {
        copyFailed(planned.error(), "wrapper", m_plan.destinationFolderPath);
    }
    return false;
}

bool Installation::makeDestinationFolder() {
    const std::string &path = m_plan.destinationFolderPath;
    // Its mode does not depend on the mask that this process happens to have.
    const bool isMade = m_plan.makesGuaranteedFolder && ::mkdir(path.c_str(), 0755) == 0;
    if (isMade ? ::chmod(path.c_str(), 0755) != 0
               : m_plan.makesGuaranteedFolder && errno != EEXIST) {
        copyFailed(Error::fromErrno("make folder", path), "myself", m_paths.destination);
        return false;
    }
    if (m_plan.destinationFolder.descriptor)
        return true;
    Result<zt::OpenFolder> folder = zt::openFolder(path);
    if (!folder) {
        copyFailed(folder.error(), "myself", m_paths.destination);
        return false;
    }
    m_plan.destinationFolder = *std::move(folder);
    return true;
}

bool Installation::copyWholeWrapper() {
    const std::string &path = m_plan.destinationFolderPath;
    const std::size_t slash = path.rfind('/');
    const Result<zt::OpenFolder> above = zt::openFolder(slash == 0 ? "/" : path.substr(0, slash));
    if (!above) {
        copyFailed(above.error(), "wrapper", path);
        return false;
    }
    zt::StagingFolder::sweep(above->descriptor.get());
    const ItemPlace target = above->item(path.substr(slash + 1));
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
        if (!trashExistingCopy(target.path))
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
    const Result<std::vector<std::string>> names = zt::namesInFolder(*m_plan.wrapper);
    if (!names) {
        copyFailed(names.error(), "myself", m_paths.destination);
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

bool Installation::trashExistingCopy(const std::string &path) {
    const Result<std::string> trashed = m_services.trash.moveToTrash(path);
    if (trashed)
        return true;
    log(trashed.error().text());
    // Two lines on purpose: one says which operation failed, the other what for.
    log("ERROR -- Could not trash '" + m_paths.destination + "'");
    log("ERROR -- Could not trash existing " + m_paths.destination);
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

InstallResult Installation::run() {
    if (!prepare())
        return m_failure;
    if (m_services.stop.stop_requested())
        return copyFailed(zt::stoppedError(m_plan.sourcePath), "myself", m_paths.destination);
    if ((m_plan.makesGuaranteedFolder || !m_paths.wrapper) && !makeDestinationFolder())
        return m_failure;
    if (m_plan.destinationFolder.descriptor)
        zt::StagingFolder::sweep(m_plan.destinationFolder.descriptor.get());
    if (m_plan.wrapper && !installWrapper())
        return m_failure;
    if (exists(m_plan.destinationPlace()) && !trashExistingCopy(m_plan.destinationPlace().path))
        return m_failure;
    if (const Result<void> copied = copyProduct(); !copied)
        return copyFailed(copied.error(), "myself", m_paths.destination);
    noteChange(m_paths.destination);
    return InstallResult::Success;
}

} // namespace

InstallResult InstallApplication(const InstallPaths &paths, const InstallServices &services) {
    try {
        return Installation(paths, services).run();
    } catch (const std::exception &exception) {
        if (services.log) {
            services.log(std::string("install: ") + exception.what());
            services.log("ERROR -- Could not copy myself to " + paths.destination);
        }
        return InstallResult::CopyFailed;
    }
}
