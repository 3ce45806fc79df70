#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Stand-ins for small services: what they answer, and what they were asked.

#include <Carbon/Carbon.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/pwr_mgt/IOPMLib.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace standin {

// Gestalt: answers by selector; other selectors are errors.
extern std::map<OSType, SInt32> gestaltAnswers;

// I/O Kit: the properties of the services that match the name "IOHIDSystem"; others have none.
struct Hid {
    std::vector<QVariantMap> services;
    bool hasProperties = true;
    int objects = 0; // handed out and not released
};
extern Hid hid;

// Power management: the assertions in force, by type and name; none is made after an error.
struct Power {
    IOReturn answer = kIOReturnSuccess;
    std::map<IOPMAssertionID, std::pair<QString, QString>> assertions;
};
extern Power power;

// The login items: a path, or none for one that cannot be resolved. No list when there is no value.
extern std::optional<std::vector<std::optional<QString>>> loginItems;

// Launch Services: the addresses that were registered, and what is answered.
struct LaunchServices {
    OSStatus answer = noErr;
    std::vector<std::pair<QString, bool>> registered; // the address, and whether it was an update
};
extern LaunchServices launchServices;

// The keyboard. A layout is a table of texts by key code and modifier state.
struct Keyboard {
    std::map<std::pair<UInt16, UInt32>, QString> layout;
    bool isInputMethod = false; // the current source has no layout of its own
    bool hasLayout = true;
    UInt8 type = 40;
    std::vector<UInt32> askedTypes;
};
extern Keyboard keyboard;

// Apple events: what was sent.
struct SentEvent {
    OSType eventClass = 0;
    OSType eventId = 0;
    OSType addressType = 0;
    std::vector<char> address;
    AESendMode mode = 0;
    AESendPriority priority = 0;
    long timeout = 0;
};
struct AppleEvents {
    std::vector<SentEvent> sent;
    OSErr answerToCreation = noErr;
    OSErr answerToSending = noErr;
    int descriptors = 0; // that hold data
};
extern AppleEvents appleEvents;

// Accessibility: notifications that are waited for, by process and name.
struct UserInterfaces {
    // Whoever observes the notification of the process hears of the element with this role and
    // title; none when both are empty.
    void notify(pid_t pid, const QString &notification, const QString &role, const QString &title);

    struct Observed {
        pid_t pid = 0;
        QString notification;
        AXObserverCallback callback = nullptr;
        const void *observer = nullptr;
        void *context = nullptr;
    };
    std::vector<Observed> observed;
    AXError answer = kAXErrorSuccess; // to everything that observes
    bool hasApplications = true;
};
extern UserInterfaces userInterfaces;

// All of them as they are when a program begins.
void resetServices();

} // namespace standin
