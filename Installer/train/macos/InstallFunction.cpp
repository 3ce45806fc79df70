// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/InstallFunction.h"

#include "Installer/train/macos/InstallPlan.h"
#include "Platform/macos/ItemCopy.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib> // mkdtemp
#include <exception>
#include <utility>

namespace {

using zt::Error;
using zt::PathPlan;
using zt::Result;

// A copy that is made out of sight, in a folder that goes with it.
class HiddenCopy {
public:
    // In the folder that the copy is to appear in, so that it is on the same volume.
    static Result<HiddenCopy> make(const std::string &source, const std::string &folder,
                                   const zt::ItemCopyOrders &orders) {
        std::string staging = folder + "/.VelmoraInstaller-XXXXXX";
        if (!::mkdtemp(staging.data()))
            return Error::fromErrno("make folder in", folder);
        HiddenCopy copy(std::move(staging));
        if (Result<void> copied = zt::copyItem(source, copy.path(), orders); !copied)
            return copied.error();
        return copy;
    }

    HiddenCopy(HiddenCopy &&other) noexcept : m_staging(std::exchange(other.m_staging, {})) {}
    HiddenCopy &operator=(HiddenCopy &&) = delete;
    HiddenCopy(const HiddenCopy &) = delete;
    HiddenCopy &operator=(const HiddenCopy &) = delete;

    ~HiddenCopy() {
        if (!m_staging.empty())
            static_cast<void>(zt::removeItem(m_staging));
    }

    // In one step, unless something has the name.
    Result<void> appearAs(const std::string &path) const {
        return zt::renameItem(this->path(), path);
    }

private:
    explicit HiddenCopy(std::string staging) : m_staging(std::move(staging)) {}

    std::string path() const { return m_staging + "/item"; }

    std::string m_staging;
};

class Installation {
public:
    // `destination` is what messages call it.
    Installation(std::string destination, const InstallServices &services)
        : m_destination(std::move(destination))
        , m_services(services) {}

    InstallResult run(const InstallPaths &paths);

private:
    InstallResult copyFailed(const Error &cause, std::string_view what, const std::string &path);
    InstallResult carryOut();
    bool makeFolder();
    bool copyWholeWrapper();
    bool installWrapperItems();
    bool installWrapperItem(const std::string &item, const std::string &target);
    bool trashExistingCopy();

    void log(std::string_view line) const {
        if (m_services.log)
            m_services.log(line);
    }

    void noteChange(const std::string &path) const {
        if (m_services.noteFileSystemChanged)
            m_services.noteFileSystemChanged(path);
    }

    const std::string m_destination;
    const InstallServices &m_services;
    PathPlan m_plan;
    InstallResult m_failure = InstallResult::CopyFailed;
};

// Tells the cause, then what failed; the answer is for the caller to pass on.
InstallResult Installation::copyFailed(const Error &cause, std::string_view what,
                                       const std::string &path) {
    log(cause.text());
    log("ERROR -- Could not copy " + std::string(what) + " to " + path);
    return m_failure = InstallResult::CopyFailed;
}

bool Installation::makeFolder() {
    if (!m_plan.folderIsMissing)
        return true;
    // Its mode does not depend on the mask that this process happens to have.
    if (::mkdir(m_plan.folder.c_str(), 0755) != 0 || ::chmod(m_plan.folder.c_str(), 0755) != 0) {
        copyFailed(Error::fromErrno("make folder", m_plan.folder), "myself", m_destination);
        return false;
    }
    m_plan.folderIsMissing = false;
    return true;
}

bool Installation::copyWholeWrapper() {
    const std::string above = m_plan.folder.substr(0, m_plan.folder.rfind('/'));
    const auto copy = HiddenCopy::make(*m_plan.wrapper, above, {.stop = m_services.stop});
    const Result<void> placed = copy ? copy->appearAs(m_plan.folder) : copy.error();
    if (!placed) {
        copyFailed(placed.error(), "wrapper", m_plan.folder);
        return false;
    }
    m_plan.folderIsMissing = false;
    noteChange(m_plan.folder);
    return true;
}

// The copy is made first, so that a copy that fails costs nothing; then the old item goes.
bool Installation::installWrapperItem(const std::string &item, const std::string &target) {
    const auto copy = HiddenCopy::make(item, m_plan.folder, {.stop = m_services.stop});
    if (!copy) {
        copyFailed(copy.error(), "auxiliary item", target);
        return false;
    }
    // An existing copy of the product is never deleted, not even for the wrapper's.
    if (target == m_plan.destination()) {
        if (zt::itemExists(target) && !trashExistingCopy())
            return false;
    } else if (zt::itemExists(target)) {
        if (const Result<void> removed = zt::removeItem(target); !removed) {
            log(removed.error().text());
            log("ERROR -- Could not delete " + target);
        }
    }
    if (const Result<void> placed = copy->appearAs(target); !placed) {
        copyFailed(placed.error(), "auxiliary item", target);
        return false;
    }
    noteChange(target);
    return true;
}

bool Installation::installWrapperItems() {
    const Result<std::vector<std::string>> names = zt::namesInFolder(*m_plan.wrapper);
    if (!names) {
        copyFailed(names.error(), "myself", m_destination);
        return false;
    }
    return std::ranges::all_of(*names, [this](const std::string &name) {
        return installWrapperItem(*m_plan.wrapper + '/' + name, m_plan.folder + '/' + name);
    });
}

bool Installation::trashExistingCopy() {
    const Result<std::string> trashed = m_services.trash.moveToTrash(m_plan.destination());
    if (trashed)
        return true;
    log(trashed.error().text());
    // Two lines on purpose: one says which operation failed, the other what for.
    log("ERROR -- Could not trash '" + m_destination + "'");
    log("ERROR -- Could not trash existing " + m_destination);
    m_failure = InstallResult::TrashFailed;
    return false;
}

InstallResult Installation::carryOut() {
    if (m_services.stop.stop_requested())
        return copyFailed(zt::stoppedCopyError(m_plan.source), "myself", m_destination);
    const bool isGuaranteed = std::ranges::find(m_services.guaranteedFolders, m_plan.folder) !=
                              m_services.guaranteedFolders.end();
    if ((isGuaranteed || !m_plan.wrapper) && !makeFolder())
        return m_failure;
    if (m_plan.wrapper && !(m_plan.folderIsMissing ? copyWholeWrapper() : installWrapperItems()))
        return m_failure;
    if (zt::itemExists(m_plan.destination()) && !trashExistingCopy())
        return m_failure;
    const auto copy = HiddenCopy::make(m_plan.source, m_plan.folder,
                                       {.stop = m_services.stop, .progress = m_services.progress});
    const Result<void> placed = copy ? copy->appearAs(m_plan.destination()) : copy.error();
    if (!placed)
        return copyFailed(placed.error(), "myself", m_destination);
    noteChange(m_destination);
    return InstallResult::Success;
}

InstallResult Installation::run(const InstallPaths &paths) {
    auto planned = zt::planByPaths(paths, m_services.guaranteedFolders);
    if (const auto *const failure = std::get_if<zt::PlanFailure>(&planned)) {
        if (!failure->concernsWholeWrapper)
            return copyFailed(failure->cause, "myself", m_destination);
        const std::string folder = m_destination.substr(0, m_destination.rfind('/'));
        return copyFailed(failure->cause, "wrapper", folder);
    }
    m_plan = std::get<PathPlan>(std::move(planned));
    return carryOut();
}

} // namespace

InstallResult InstallApplication(const InstallPaths &paths, const InstallServices &services) {
    try {
        return Installation(paths.destination, services).run(paths);
    } catch (const std::exception &exception) {
        if (services.log) {
            services.log(std::string("install: ") + exception.what());
            services.log("ERROR -- Could not copy myself to " + paths.destination);
        }
        return InstallResult::CopyFailed;
    }
}
