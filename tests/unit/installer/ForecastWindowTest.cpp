// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the main page tells before Install is pressed, and when.

#include "Installer/Sources/ForecastView.h"
#include "Installer/Sources/LogWindow.h"
#include "tests/Waiting.h"

#include "tests/unit/installer/InstallerFixture.h"

#include <QClipboard>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr FourCharCode demoSignature = 0x44454D4F; // "DEMO"

} // namespace

class ForecastWindowTest : public InstallerFixture {
protected:
    QStringList told() {
        QStringList texts;
        for (const ForecastLine &line : field<ForecastView>("forecastField")->lines())
            texts << line.text;
        return texts;
    }

    bool tells(const QString &part) { return told().join(u'\n').contains(part); }

    // Starts it up and waits for the first lines.
    void startTelling() {
        start();
        ASSERT_TRUE(eventually([this] { return !told().isEmpty(); }));
    }

    void startDemo(std::int32_t pid) {
        platform.processManager.start(
            pid, {.name = u"Demo"_s, .signature = demoSignature, .location = u"/a/Demo.app"_s});
    }

    QString destination() { return path(u"Applications/Demo.app"_s); }
};

TEST_F(ForecastWindowTest, theWindowIsThereFirst) {
    start();
    EXPECT_TRUE(controller().window().isVisible());
    EXPECT_TRUE(told().isEmpty());
    EXPECT_FALSE(shown("forecastField"));
    EXPECT_EQ(platform.fileSystems.spaceQuestions, 0);
    ASSERT_TRUE(eventually([this] { return shown("forecastField"); }));
    EXPECT_TRUE(tells(u"of space are needed"_s));
}

TEST_F(ForecastWindowTest, eachLineHasAnIconAndIsSeenWhole) {
    makeFolder(u"Applications/Demo.app"_s);
    platform.fileSystems.availableBytes.insert(destination(), 1);
    startDemo(11);
    startTelling();
    auto *view = field<ForecastView>("forecastField");
    QCoreApplication::processEvents();
    const auto labels = view->findChildren<QLabel *>();
    ASSERT_EQ(labels.size(), told().size());
    for (const QLabel *label : labels) {
        EXPECT_TRUE(told().contains(label->text()));
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
    EXPECT_TRUE(told().first().contains(u"too little space"_s)) << told().first().toStdString();
}

TEST_F(ForecastWindowTest, theInstallButtonIsDescribedByWhatItWillDo) {
    startTelling();
    EXPECT_EQ(field<QPushButton>("installButton")->accessibleDescription(), told().join(u' '));
}

TEST_F(ForecastWindowTest, whatIsStartedAndEndedMeanwhileIsToldAtOnce) {
    startTelling();
    EXPECT_FALSE(tells(u"Demo is running"_s));
    startDemo(11);
    ASSERT_TRUE(eventually([this] { return tells(u"Demo is running"_s); }));
    platform.processManager.end(11);
    ASSERT_TRUE(eventually([this] { return !tells(u"Demo is running"_s); }));
}

TEST_F(ForecastWindowTest, whoComesBackToTheWindowSeesHowThingsAreNow) {
    startTelling();
    makeFolder(u"Applications/Demo.app"_s);
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&controller().window(), &activation);
    ASSERT_TRUE(eventually([this] { return tells(u"The copy that is there now"_s); }));
}

TEST_F(ForecastWindowTest, nothingIsToldOnceInstallWasPressed) {
    startTelling();
    field<QPushButton>("installButton")->click();
    EXPECT_FALSE(shown("forecastField"));
    EXPECT_TRUE(field<QPushButton>("installButton")->accessibleDescription().isEmpty());
    ASSERT_TRUE(eventually([this] { return shown("checkmarkField"); }));
    startDemo(11);
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&controller().window(), &activation);
    QCoreApplication::processEvents();
    EXPECT_FALSE(shown("forecastField"));
}

TEST_F(ForecastWindowTest, aSetUpErrorLeavesNothingToTell) {
    platform.bundles.add(product, {});
    start();
    QCoreApplication::processEvents();
    EXPECT_FALSE(shown("forecastField"));
    close(); // also waits for a look that is under way
    EXPECT_EQ(platform.fileSystems.spaceQuestions, 0);
}

class ShowLogTest : public InstallerFixture {
protected:
    QPlainTextEdit *logText() {
        auto *window = controller().window().findChild<LogWindow *>();
        return window ? window->findChild<QPlainTextEdit *>(u"logTextView"_s) : nullptr;
    }
};

TEST_F(ShowLogTest, theButtonIsThereOnlyAfterAFailure) {
    start();
    EXPECT_FALSE(shown("logButton"));
    controller().installationFinished(u"It failed."_s);
    EXPECT_TRUE(shown("logButton"));
    controller().installationFinished(u""_s);
    EXPECT_FALSE(shown("logButton")) << "the user did not want it";
    controller().installationFinished(u"It failed."_s);
    controller().installationFinished(std::nullopt);
    EXPECT_FALSE(shown("logButton"));
}

TEST_F(ShowLogTest, anotherTryTakesTheButtonAway) {
    start();
    controller().installationFinished(u"It failed."_s);
    field<QPushButton>("installButton")->click();
    EXPECT_FALSE(shown("logButton"));
    ASSERT_TRUE(eventually([this] { return shown("checkmarkField"); }));
}

TEST_F(ShowLogTest, aSetUpErrorCanBeLookedInto) {
    platform.bundles.add(product, {});
    start();
    EXPECT_TRUE(shown("logButton"));
}

TEST_F(ShowLogTest, theLinesOfThisRunAreShownAndCanBeCopied) {
    start();
    platform.log.passOn("train[1] what the tool said\n");
    controller().installationFinished(u"It failed."_s);
    field<QPushButton>("logButton")->click();
    ASSERT_NE(logText(), nullptr);
    EXPECT_EQ(logText()->toPlainText(), platform.log.lines().join(u'\n'));
    EXPECT_TRUE(logText()->toPlainText().endsWith(u"what the tool said"_s));
    EXPECT_TRUE(logText()->isReadOnly());
    auto *copy = controller().window().findChild<QPushButton *>(u"copyLogButton"_s);
    ASSERT_NE(copy, nullptr);
    copy->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), logText()->toPlainText());
}
