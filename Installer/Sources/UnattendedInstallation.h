#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An installation that asks nobody: no window, no password, one line and an exit status at the end.

#include "Installer/Sources/Installation.h"
#include "Installer/Sources/ProgressLines.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <utility>

// One run for each object. Thread: main, unless an operation says otherwise.
class UnattendedInstallation final : public Installation {
public:
    // What the program answers to whoever started it. The numbers are documented; scripts of others
    // rely on them.
    enum class ExitStatus : int {
        Done = 0,
        Cancelled = 1,
        BadArguments = 2,
        ProductRunning = 3,
        NotAuthorised = 4,
        CopyFailed = 5,
        SystemTooOld = 6,
    };

    struct Outcome {
        ExitStatus status = ExitStatus::Done;
        QString message; // one line, for people
    };

    // The platform must be the current one and outlive the installation.
    struct Environment {
        const zt::Platform &platform;
        QStringList argumentVector; // element 0 included
        ProgressLines::Target progressTarget = ProgressLines::Target::Record;
        std::function<void(const QByteArray &)> writeProgress;
        // Root's way to register: lets all users' desktops know the product, as the workspace has
        // prepared it, and answers whether it did. What root copies with it is root's. Empty for
        // anybody else.
        std::function<bool(const QByteArray &prepared, const QString &destination)>
            registerForAllUsers = {};
    };

    explicit UnattendedInstallation(Environment environment);

    // Installs the product and registers it; it is not launched. Running copies of it are asked to
    // quit, but where only an administrator may write, nothing is changed and nothing is quit. Runs
    // an event loop until all is done.
    Outcome install();

    // What install() would do now, and how it would end, as far as that can be known; without a
    // forecast when the arguments are bad. Changes nothing.
    struct Prospect {
        std::optional<Forecast> forecast = {};
        Outcome outcome;
    };
    Prospect check();

    // Stops the installation; install() then answers so, unless the product has appeared at its
    // destination already.
    void cancel() { m_stop.request_stop(); }

private:
    // What stands against the installation, before anything is changed.
    std::optional<Outcome> badArguments();
    std::optional<Outcome> obstacle() const;
    // Thread: install, as for all that follow.
    Outcome installThread();
    void registerWhereItCounts() const;

    void animateProgress(Progress progress) override;
    void showCopyProgress(const zt::CopyProgress &progress) override;
    void hideCopyProgress() override;

    Environment m_environment;
    std::optional<ProgressLines> m_progress;
    std::stop_source m_stop;
};
