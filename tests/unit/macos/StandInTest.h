#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Tests against the stand-ins for native functions.

#include "tests/macos/standins/ApplicationsStandIn.h"
#include "tests/macos/standins/AudioStandIn.h"
#include "tests/macos/standins/AuthorizationStandIn.h"
#include "tests/macos/standins/CoreFoundationStandIn.h"
#include "tests/macos/standins/FilesStandIn.h"
#include "tests/macos/standins/ServicesStandIn.h"

#include <gtest/gtest.h>

// A system that has just been started. At the end nothing that was handed out is left.
class StandIns {
public:
    StandIns() {
        standin::resetSession();
        standin::resetServices();
        standin::files = {};
        standin::volumes = {};
        standin::audio = {};
        standin::consent = {};
    }
    ~StandIns() {
        EXPECT_EQ(standin::aliveObjects(), m_aliveBefore);
        EXPECT_EQ(standin::files.openResourceFiles, 0);
        EXPECT_EQ(standin::audio.openFiles, 0);
        EXPECT_EQ(standin::consent.references, 0);
        EXPECT_EQ(standin::hid.objects, 0);
        EXPECT_EQ(standin::appleEvents.descriptors, 0);
        EXPECT_EQ(standin::runLoopSources, 0);
        EXPECT_TRUE(standin::eventHandlers.installed.empty());
    }
    StandIns(const StandIns &) = delete;
    StandIns &operator=(const StandIns &) = delete;

private:
    long m_aliveBefore = standin::aliveObjects();
};

class StandInTest : public testing::Test {
private:
    StandIns m_standIns;
};
