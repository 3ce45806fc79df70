// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer as a program of its own, used by the keyboard alone and heard by a screen reader.

#include "Platform/linux/AtSpiAccessibility.h"
#include "tests/Waiting.h"

#include "tests/desktop/installer/AccessibleTree.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

class AccessibilityTest : public testing::Test {
protected:
    AccessibilityTest() {
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        QDir().mkpath(m_folder.filePath(u"Applications"_s));
    }

    ~AccessibilityTest() override {
        m_installer.kill();
        m_installer.waitForFinished();
    }

    QString destination() const { return m_folder.filePath(u"Applications/Sample Notes.app"_s); }
    static QString sample() { return QString::fromUtf8(SAMPLE_PRODUCT); }

    // Starts the installer inside the sample product, and listens to what it announces.
    void start(const QStringList &arguments = {}) {
        m_installer.setProcessChannelMode(QProcess::ForwardedChannels);
        m_installer.start(
            sample() +
                u"/Contents/Resources/VelmoraInstaller.app/Contents/Linux/VelmoraInstaller"_s,
            QStringList{u"-destinationPath"_s, destination()} + arguments);
        ASSERT_TRUE(m_installer.waitForStarted());
        ASSERT_TRUE(eventually([this] { return focused().role == u"push button"; }))
            << "no button has the focus";
        auto observer = m_accessibility.observeApplication(
            pid(), [this](const QString &element, const QString & /*notification*/) {
                m_announced << element;
            });
        ASSERT_TRUE(observer);
        m_observer = *std::move(observer);
        ASSERT_TRUE(m_observer->addNotification(u"object:state-changed:showing"_s));
    }

    void startWithReadMe() {
        // One without links, which would be reached one by one.
        QFile readMe(m_folder.filePath(u"ReadMe.txt"_s));
        ASSERT_TRUE(readMe.open(QFile::WriteOnly));
        readMe.write("Please read me.\n");
        readMe.close();
        start({u"-readMePath"_s, readMe.fileName(), u"-documentationPath"_s,
               sample() + u"/Contents/Resources/Documentation.html"_s});
    }

    std::int32_t pid() const { return static_cast<std::int32_t>(m_installer.processId()); }

    QList<AccessibleElement> elements() const { return accessibleElementsOf(pid()); }

    AccessibleElement focused() const {
        const auto all = elements();
        const auto found = std::ranges::find_if(all, [](const AccessibleElement &element) {
            return element.isFocused && element.isShowing;
        });
        return found == all.end() ? AccessibleElement() : *found;
    }

    bool isFocused(const QString &name) {
        return eventually([this, &name] { return focused().name == name; });
    }

    bool isAnnounced(const QString &text) {
        return eventually([this, &text] {
            return std::ranges::any_of(m_announced, [&text](const QString &element) {
                return element.startsWith(u"notification"_s) && element.contains(text);
            });
        });
    }

    // The elements that a user meets and that have no name.
    QStringList nameless() const {
        // What only holds others.
        const QStringList silent = {u"panel"_s,       u"filler"_s,     u"scroll pane"_s,
                                    u"viewport"_s,    u"scroll bar"_s, u"page tab list"_s,
                                    u"layered pane"_s};
        QStringList roles;
        for (const AccessibleElement &element : elements()) {
            if (element.isShowing && element.name.isEmpty() && !silent.contains(element.role))
                roles << element.role;
        }
        return roles;
    }

    static void type(const QString &key) { QProcess::execute(u"xdotool"_s, {u"key"_s, key}); }

    QProcess m_installer;

private:
    QTemporaryDir m_folder;
    zt::AtSpiAccessibility m_accessibility;
    std::unique_ptr<zt::AccessibilityObserver> m_observer;
    QStringList m_announced;
};

TEST_F(AccessibilityTest, everythingOnBothPagesIsNamed) {
    startWithReadMe();
    EXPECT_EQ(nameless(), QStringList());
    type(u"Return"_s);
    ASSERT_TRUE(isFocused(u"Install"_s));
    EXPECT_EQ(nameless(), QStringList());
    QStringList names;
    for (const AccessibleElement &element : elements()) {
        if (element.isShowing)
            names << element.name;
    }
    for (const QString &name :
         {u"Install"_s, u"Go Back"_s, u"Open the documentation"_s, u"Product icon"_s,
          u"This installs Sample Notes on your computer, at this place:"_s}) {
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
    EXPECT_TRUE(std::ranges::any_of(names, [](const QString &name) {
        return name.endsWith(u"/Applications/Sample Notes"_s) ||
               name.endsWith(u"/Applications/Sample Notes.app"_s);
    })) << "the destination is told";
}

TEST_F(AccessibilityTest, everyButtonSaysWhatItDoes) {
    startWithReadMe();
    type(u"Return"_s);
    ASSERT_TRUE(isFocused(u"Install"_s));
    EXPECT_TRUE(
        eventually([this] { return focused().description.contains(u"space are needed"_s); }));
    for (const AccessibleElement &element : elements()) {
        if (element.isShowing && element.role == u"push button") {
            EXPECT_FALSE(element.description.isEmpty()) << element.name.toStdString();
        }
    }
}

TEST_F(AccessibilityTest, theKeyboardAloneInstallsAndEachStepIsAnnounced) {
    startWithReadMe();
    // Through all that can be reached, and back to where it began.
    const QString first = focused().name;
    EXPECT_EQ(first, u"Continue"_s);
    QStringList reached;
    for (int count = 0; count < 10; ++count) {
        const QString before = focused().name;
        type(u"Tab"_s);
        ASSERT_TRUE(eventually([&] { return focused().name != before; })) << before.toStdString();
        reached << focused().name;
        if (reached.last() == first)
            break;
    }
    EXPECT_EQ(reached,
              (QStringList{u"Cancel"_s, u"Open the documentation"_s, u"Read Me"_s, first}));

    type(u"alt+c"_s); // the button's own key
    ASSERT_TRUE(isFocused(u"Install"_s));
    EXPECT_TRUE(isAnnounced(u"This installs Sample Notes on your computer"_s));
    type(u"Escape"_s);
    ASSERT_TRUE(isFocused(u"Continue"_s));
    type(u"space"_s);
    ASSERT_TRUE(isFocused(u"Install"_s));
    type(u"Return"_s);
    EXPECT_TRUE(isAnnounced(u"Sample Notes is being installed."_s));
    ASSERT_TRUE(isAnnounced(u"Sample Notes was successfully installed."_s));
    EXPECT_TRUE(QFile::exists(destination()));
    ASSERT_TRUE(isFocused(u"OK"_s));
    EXPECT_EQ(nameless(), QStringList());
    type(u"Escape"_s);
    EXPECT_TRUE(eventually([this] { return m_installer.state() == QProcess::NotRunning; }));
}

TEST_F(AccessibilityTest, aFailureIsAnnouncedAndItsLogCanBeRead) {
    start({u"-sourcePath"_s, u"/no/such/Sample Notes.app"_s, u"-productCode"_s, u"SmPN"_s});
    type(u"Return"_s);
    ASSERT_TRUE(isAnnounced(u"Installation failed."_s));
    ASSERT_TRUE(isFocused(u"Install"_s));
    type(u"alt+s"_s);
    ASSERT_TRUE(isFocused(u"Close"_s));
    EXPECT_EQ(nameless(), QStringList());
    type(u"Escape"_s);
    EXPECT_TRUE(isFocused(u"Install"_s));
}

TEST_F(AccessibilityTest, inAnotherLanguageTheNamesAreInThatLanguage) {
    start({u"-AppleLanguages"_s, u"(de)"_s});
    EXPECT_TRUE(isFocused(u"Installieren"_s));
    EXPECT_EQ(nameless(), QStringList());
}
