#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for the Process Manager, the windows of the screen and the kernel's process records.

#include <Carbon/Carbon.h>

#include <QString>
#include <QVariantMap>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace standin {

struct Application {
    pid_t pid = 0;
    UInt32 serialNumber = 0; // given by start()
    std::string name = {};   // in Mac OS Roman
    OSType signature = 0;
    QString displayName = {}; // none when empty
    QString location = {};    // none when empty
    QVariantMap information = {};
    pid_t launcher = 0;
    long startSeconds = 0;
    int startMicroseconds = 0;
    bool isTraced = false;
    bool hasWindow = false;
};

// The session. What it was asked to do stands in `requests`: a verb and the pid.
class Session {
public:
    // The application is launched, or ends, or comes to the front; handlers of events hear of it.
    void start(Application application);
    void end(pid_t pid);
    void bringToFront(pid_t pid);

    const Application *withSerialNumber(const ProcessSerialNumber &process) const;
    const Application *withPid(pid_t pid) const;

    std::vector<Application> applications;
    pid_t current = 0;
    pid_t front = 0;
    bool answersWithCurrentProcess = false; // with the number that stands for whoever asks
    std::vector<std::pair<std::string, pid_t>> requests;

private:
    UInt32 m_lastSerialNumber = 16;
};
extern Session session;

// Installed handlers of events, and events to send to them.
class EventHandlers {
public:
    struct Installed {
        EventTargetRef target = nullptr;
        std::vector<std::pair<OSType, UInt32>> types;
        EventHandlerProcPtr handler = nullptr;
        void *context = nullptr;
        EventHandlerRef reference = nullptr;
    };

    // Calls the handlers that want it, those of the dispatcher first, in each target the newest
    // first, until one handles it. What the last one that was called answered.
    OSStatus send(OSType eventClass, UInt32 eventKind);

    std::vector<Installed> installed;
    bool isRefusing = false;
};
extern EventHandlers eventHandlers;

// Everything as it is when a program begins.
void resetSession();

} // namespace standin
