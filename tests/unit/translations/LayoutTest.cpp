// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Nothing of the window is cut off, in any language and with letters of any size.

#include "Installer/Sources/LocalizedString.h"
#include "Installer/Sources/LogWindow.h"
#include "Installer/Sources/Translations.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"
#include "tests/Waiting.h"

#include "tests/unit/installer/InstallerFixture.h"
#include "tests/unit/translations/TranslatedTexts.h"

#include <QMessageBox>
#include <QScrollArea>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace {

struct Look {
    QString language; // "en" for none
    double textSize = 1;
};

void PrintTo(const Look &look, std::ostream *out) {
    *out << look.language.toStdString() << " at " << look.textSize;
}

// The widest piece of the label's text that does not stand on several lines.
int widestPiece(const QLabel &label) {
    const QString text = label.text();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    int widest = 0;
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        const QString piece = text.mid(begin, end - begin).trimmed();
        widest = std::max(widest, label.fontMetrics().horizontalAdvance(piece));
        begin = end;
    }
    return widest;
}

} // namespace

class LayoutTest : public InstallerFixture, public testing::WithParamInterface<Look> {
protected:
    LayoutTest()
        : m_translations({GetParam().language}, QString::fromUtf8(TRANSLATIONS_FOLDER))
        , m_fontBefore(QApplication::font()) {
        QFont font = m_fontBefore;
        font.setPointSizeF(font.pointSizeF() * GetParam().textSize);
        QApplication::setFont(font);
        makeFile(u"ReadMe.txt"_s, "Please read me.\n");
        makeFile(u"Guide.html"_s, "<p>Guide</p>");
    }

    ~LayoutTest() override {
        close();
        QApplication::setFont(m_fontBefore);
    }

    void startWithEverything(const QStringList &more = {}) {
        start(QStringList{u"-readMePath"_s, path(u"ReadMe.txt"_s), u"-documentationPath"_s,
                          path(u"Guide.html"_s)} +
              more);
    }

    // Everything that the window shows now, and that of dialogs before it.
    static void expectNothingIsCutOff(QWidget &window, const char *state) {
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (const QWidget *view : window.findChildren<QWidget *>()) {
            if (!view->isVisible())
                continue;
            if (const auto *label = qobject_cast<const QLabel *>(view)) {
                if (label->text().isEmpty())
                    continue;
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << state << ": " << label->text().toStdString();
                EXPECT_GE(label->width(), widestPiece(*label))
                    << state << ": " << label->text().toStdString();
            } else if (const auto *button = qobject_cast<const QPushButton *>(view)) {
                // What a style makes wider for the sake of an even look need not be.
                const QSize needed = button->fontMetrics().size(0, button->text()) + QSize(4, 0);
                EXPECT_GE(button->width(), needed.width())
                    << state << ": " << button->text().toStdString();
                EXPECT_GE(button->height(), needed.height())
                    << state << ": " << button->text().toStdString();
            }
            // In its parent, which would cut it off.
            EXPECT_TRUE(view->parentWidget() == nullptr || view->isWindow() || isScrolled(*view) ||
                        view->parentWidget()->rect().contains(view->geometry()))
                << state << ": " << view->objectName().toStdString();
        }
    }

    // Whether the main page is seen without scrolling.
    bool mainPageIsSeenWhole() {
        const auto *area = field<QScrollArea>("mainScrollArea");
        return area->widget()->height() <= area->viewport()->height();
    }

private:
    // What is in a scrolled area may be larger than that.
    static bool isScrolled(const QWidget &view) {
        const auto *area = qobject_cast<QAbstractScrollArea *>(view.parentWidget()->parentWidget());
        return area && area->viewport() == view.parentWidget();
    }

    Translations m_translations;
    QFont m_fontBefore;
};

TEST_P(LayoutTest, onBothPagesBeforeTheInstallation) {
    platform.fileSystems.availableBytes.insert(path(u"Applications"_s), 1);
    platform.processManager.setApplicationsOfOtherUsers(
        {{u"Demo"_s, 0x44454D4F, u"/b/Demo.app"_s, u"annemarie"_s}});
    startWithEverything();
    expectNothingIsCutOff(controller().window(), "the read-me");
    controller().selectTab(InstallerWinController::MainPage);
    expectNothingIsCutOff(controller().window(), "the main page");
    ASSERT_TRUE(eventually([this] { return shown("forecastField"); }));
    expectNothingIsCutOff(controller().window(), "what will happen");
    if (GetParam().textSize == 1) {
        EXPECT_TRUE(mainPageIsSeenWhole());
    }
}

TEST_P(LayoutTest, whileItRuns) {
    startWithEverything();
    controller().selectTab(InstallerWinController::MainPage);
    field<QWidget>("progressIndicator")->show();
    field<QWidget>("copyProgress")->show();
    field<QWidget>("stopButton")->show();
    expectNothingIsCutOff(controller().window(), "the copy");
}

TEST_P(LayoutTest, afterAFailure) {
    startWithEverything();
    controller().selectTab(InstallerWinController::MainPage);
    controller().installationFinished(
        localizedString("Could not delete existing copy.") + u'\r' +
        ZTFormat(localizedString("Try installing %1$@ manually by copying it to the Applications "
                                 "folder."),
                 u"Demo"_s));
    expectNothingIsCutOff(controller().window(), "a failure");
    if (GetParam().textSize == 1) {
        EXPECT_TRUE(mainPageIsSeenWhole());
    }
    controller().showLog();
    auto *log = controller().window().findChild<LogWindow *>();
    ASSERT_NE(log, nullptr);
    expectNothingIsCutOff(*log, "the log");
}

TEST_P(LayoutTest, atTheEnd) {
    startWithEverything();
    controller().installationFinished(std::nullopt);
    expectNothingIsCutOff(controller().window(), "the end");
}

TEST_P(LayoutTest, onASystemThatIsTooOld) {
    startWithEverything({u"-minSystemVersion"_s, u"99"_s});
    auto *alert = controller().window().findChild<QMessageBox *>();
    ASSERT_NE(alert, nullptr);
    expectNothingIsCutOff(*alert, "the alert");
}

TEST_P(LayoutTest, theButtonsStandInTheOrderOfReading) {
    startWithEverything();
    const bool isMirrored = QLocale(GetParam().language).textDirection() == Qt::RightToLeft;
    const int install = field<QWidget>("installButton")->x();
    EXPECT_EQ(install < field<QWidget>("cancelButton")->x(), isMirrored);
    EXPECT_EQ(install < field<QWidget>("helpButton")->x(), isMirrored);
    const auto *icon = field<QWidget>("iconField");
    EXPECT_EQ(icon->x() > field<QWidget>("nameField")->x(), isMirrored);
}

INSTANTIATE_TEST_SUITE_P(In, LayoutTest, testing::ValuesIn([] {
                             std::vector<Look> looks;
                             for (const QString &language :
                                  QStringList{u"en"_s} + translatedLanguages()) {
                                 for (const double textSize : {1.0, 2.0, 3.0})
                                     looks.push_back({language, textSize});
                             }
                             return looks;
                         }()),
                         [](const auto &row) {
                             return row.param.language.toStdString() +
                                    std::to_string(int(row.param.textSize)) + "00";
                         });
