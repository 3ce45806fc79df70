// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Interruptions held off through the buses, with services of the test's own.

#include "Platform/linux/BusInterruptions.h"
#include "tests/Waiting.h"

#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString reason = u"Demo is being installed."_s;

// A bus besides the session's that stands for the system's as long as it lives.
class SystemBus {
public:
    SystemBus() {
        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
        EXPECT_TRUE(m_daemon.waitForReadyRead());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_daemon.readLine().trimmed());
    }
    ~SystemBus() {
        qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    SystemBus(const SystemBus &) = delete;
    SystemBus &operator=(const SystemBus &) = delete;

private:
    QProcess m_daemon;
};

class InterruptionsTest : public testing::Test {
protected:
    ~InterruptionsTest() override {
        services.closeWriteChannel();
        services.waitForFinished();
    }

    void startServices(const QStringList &names) {
        services.start(QString::fromUtf8(INTERRUPTION_SERVICES), names);
        ASSERT_TRUE(services.waitForReadyRead());
        ASSERT_EQ(services.readLine(), "ready\n");
    }

    // Whether the services come to say these lines, in any order.
    bool come(QStringList lines) {
        return eventually([&] {
            while (services.canReadLine())
                lines.removeOne(QString::fromUtf8(services.readLine().trimmed()));
            return lines.isEmpty();
        });
    }

    SystemBus systemBus;
    FakeLog log;
    zt::BusInterruptions interruptions{log};
    QProcess services;
};

} // namespace

TEST_F(InterruptionsTest, theLoginManagerAndThePortalAreAskedAndTheHoldEnds) {
    startServices({u"login"_s, u"portal"_s, u"session"_s});
    auto hold = interruptions.holdOff(reason);
    EXPECT_TRUE(come({u"login: sleep:shutdown Velmora Installer Demo is being installed. block"_s,
                      u"portal: 5 Demo is being installed."_s}));
    EXPECT_TRUE(log.lines().isEmpty());
    hold.reset();
    EXPECT_TRUE(come({u"login: over"_s, u"portal: over"_s}));
    EXPECT_FALSE(services.readAll().contains("session")) << "one desktop service is enough";
}

struct DesktopRow {
    QStringList services;
    QString line;
    QString end;
};

TEST_F(InterruptionsTest, theFirstServiceOfTheDesktopThatAnswersIsEnough) {
    const DesktopRow rows[] = {
        {{u"session"_s, u"power"_s},
         u"session: com.velmora.VelmoraInstaller Demo is being installed. 5"_s,
         u"session: over"_s},
        {{u"power"_s}, u"power: Velmora Installer Demo is being installed."_s, u"power: over"_s},
    };
    for (const DesktopRow &row : rows) {
        startServices(row.services);
        auto hold = interruptions.holdOff(reason);
        EXPECT_TRUE(come({row.line})) << row.line.toStdString();
        hold.reset();
        EXPECT_TRUE(come({row.end})) << row.end.toStdString();
        services.closeWriteChannel();
        services.waitForFinished();
    }
}

TEST_F(InterruptionsTest, severalHoldsEndEachForItself) {
    startServices({u"portal"_s});
    auto first = interruptions.holdOff(u"one"_s);
    auto second = interruptions.holdOff(u"two"_s);
    EXPECT_TRUE(come({u"portal: 5 one"_s, u"portal: 5 two"_s}));
    first.reset();
    EXPECT_TRUE(come({u"portal: over"_s}));
    second.reset();
    EXPECT_TRUE(come({u"portal: over"_s}));
}

TEST_F(InterruptionsTest, whereNobodyCanHoldAnythingOffTheLogSaysSo) {
    const auto hold = interruptions.holdOff(reason);
    ASSERT_TRUE(eventually([this] { return log.lines().size() == 2; }));
    EXPECT_TRUE(log.lines()[0].startsWith(u"sleep is not held off: "_s));
    EXPECT_TRUE(log.lines()[1].startsWith(u"log-out is not held off: "_s));
}

TEST_F(InterruptionsTest, withoutABusTheLogSaysSoToo) {
    const QByteArray session = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray system = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    for (const char *name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        qputenv(name, "unix:path=/no/such/bus");
    {
        const auto hold = interruptions.holdOff(reason);
        EXPECT_TRUE(eventually([this] { return log.lines().size() == 2; }));
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", session);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", system);
}

TEST_F(InterruptionsTest, aServiceThatHangsHoldsNothingUp) {
    startServices({u"login"_s, u"portal"_s, u"hangs"_s});
    auto hold = interruptions.holdOff(reason);
    EXPECT_TRUE(
        come({u"login: sleep:shutdown Velmora Installer Demo is being installed. block"_s}));
    hold.reset(); // while the answer is being waited for
    EXPECT_TRUE(log.lines().isEmpty());
    // The portal comes after the login manager: a hold that is over asks nobody any more.
    const auto another = interruptions.holdOff(u"another"_s);
    EXPECT_TRUE(come({u"login: sleep:shutdown Velmora Installer another block"_s}));
    EXPECT_FALSE(services.readAll().contains("portal"));
}

// What holds for every implementation.

namespace {

struct BusCase {
    FakeLog log;
    zt::BusInterruptions interruptions{log};
};

struct FakeCase {
    FakeInterruptions interruptions;
};

} // namespace

template <typename Case>
class InterruptionsContractTest : public testing::Test {
protected:
    Case implementation;
};

using Implementations = testing::Types<BusCase, FakeCase>;
TYPED_TEST_SUITE(InterruptionsContractTest, Implementations);

TYPED_TEST(InterruptionsContractTest, thereIsAlwaysAHold) {
    auto first = this->implementation.interruptions.holdOff(reason);
    auto second = this->implementation.interruptions.holdOff(QString());
    EXPECT_NE(first, nullptr);
    EXPECT_NE(second, nullptr);
    first.reset();
    second.reset();
}

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
