// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/FirstPaint.h"
#include "Installer/Sources/IconFile.h"
#include "Installer/Sources/LocalizedString.h"
#include "Installer/Sources/LogRedirection.h"
#include "Platform/Workspace.h"
#include "ZTStuff/CocoaExtensions/ViewExtensions.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/AttributedDocument.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal readMeMargin = 12;

const QUrl softwareArchive(u"https://www.velmora.example/downloads/archive/"_s);

} // namespace

void InstallerWinController::awakeFromNib() {
    if (shouldRedirectLog(m_environment.argumentVector)) {
        m_environment.redirectStandardStreams(logPath());
    } else {
        ZTLog("direct invocation");
    }
    m_ui.nameField->clear();
    m_ui.tabView->tabBar()->hide();
    m_ui.tabView->setDocumentMode(true);
    selectTab(MainPage);
    extractArguments(m_environment.argumentVector);

    if (const auto missing = findProduct()) {
        if (!arguments().contains(ZTInstallerKeySourcePath))
            playDoneSound();
        showSetupError(*missing);
        return;
    }
    m_window.setWindowTitle(ZTFormat(m_window.windowTitle(), productName()));
    const auto missing = completeArguments();
    m_ui.pathField->setText(localizedPath(destinationPath()));
    if (missing) {
        fillIcon();
        showSetupError(*missing);
        return;
    }
    fillTexts();
    m_ui.checkmarkField->hide();
    const auto readMe = argument(ZTInstallerKeyReadMePath);
    const bool hasReadMe = readMe && QFileInfo::exists(*readMe);
    selectTab(hasReadMe ? ReadMePage : MainPage);
    if (hasReadMe) {
        ZTViewExtensions::useLightAquaAppearance(*m_ui.readMeTextView,
                                                 ZTViewExtensions::LightAppearance::Forced);
    } else {
        fillIcon();
    }
    showWindow();
    // The window comes as soon with a long read-me as with a short one, whose text and icon are
    // there before the screen shows its next picture.
    if (hasReadMe) {
        callAfterFirstPaint(m_window, [this, path = *readMe] {
            fillIcon();
            fillReadMe(path);
            m_window.repaint(); // all else comes after these
        });
    }
    if (!systemIsSupported())
        showSystemVersionAlert();
}

void InstallerWinController::fillIcon() {
    std::optional<QIcon> icon;
    if (const auto path = argument(ZTInstallerKeyIconPath))
        icon = loadIcon(*path);
    const auto name = product() ? product()->stringForKey(u"CFBundleIconFile"_s) : std::nullopt;
    if (!icon && name) {
        auto path = product()->pathForResource(*name, u"icns"_s);
        if (!path)
            path = product()->pathForResource(*name);
        if (path)
            icon = loadIcon(*path);
    }
    if (!icon)
        icon = platform().workspace.iconForFile(sourcePath());
    if (icon->isNull())
        return;
    m_ui.iconField->setIcon(*icon);
    QApplication::setWindowIcon(*icon);
}

void InstallerWinController::fillTexts() {
    const auto number = version();
    m_ui.nameField->setText(number ? productName() + u' ' + *number : productName());
    m_ui.introField->setText(ZTFormat(m_ui.introField->text(), productName()));
    QString explanation = ZTFormat(m_ui.explanationField->text(), productName());
    const bool documented = arguments().contains(ZTInstallerKeyDocumentationPath);
    if (documented) {
        explanation = ZTFormat(
            "%@ %@",
            localizedString("If you wish to read the documentation first, click the \"?\" button."),
            explanation);
    }
    m_ui.explanationField->setText(explanation);
    m_ui.helpButton->setVisible(documented);
    m_ui.messageField->hide();
}

void InstallerWinController::fillReadMe(const QString &path) {
    if (auto document = AttributedDocument::load(path)) {
        (*document)->setParent(m_ui.readMeTextView);
        (*document)->setDocumentMargin(readMeMargin);
        m_ui.readMeTextView->setDocument(document->release());
    } else {
        ZTLog("%s", document.error().text().c_str());
        m_ui.readMeTextView->setPlainText(
            ZTFormat(localizedString("The read-me could not be shown. You can open it yourself; it "
                                     "is here:\n%@"),
                     path));
    }
}

void InstallerWinController::showWindow() {
    const QScreen *screen = QApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    const auto place = [this, &available](int width, int height) {
        m_window.resize(std::min(width, available.width()), std::min(height, available.height()));
        m_window.move(available.center() - m_window.rect().center());
    };
    place(m_window.width(), m_window.height());
    m_ui.installButton->setFocus();
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    // Long texts and large fonts make the window taller. How tall is found out while the window
    // manager makes room for the window, before it is painted.
    if (const int height = fittingHeight(m_window.width()); height > m_window.height())
        place(m_window.width(), height);
    // The window does not wait for any of this.
    callAfterFirstPaint(m_window, [this] {
        if (const auto self = ZTProcess::currentProcess())
            self->setFrontProcess();
        beginForecasting();
    });
}

// The height at which all of the main page is seen.
int InstallerWinController::fittingHeight(int width) const {
    const QMargins margins = m_window.layout()->contentsMargins();
    const int contents =
        m_ui.mainContents->layout()->totalHeightForWidth(width - margins.left() - margins.right());
    const int others = m_window.layout()->sizeHint().height() - m_ui.tabView->sizeHint().height() +
                       m_ui.progressIndicator->sizeHint().height() +
                       2 * m_ui.mainPageLayout->spacing();
    return contents + others;
}

void InstallerWinController::growToFit() {
    const int bottom = m_window.screen()->availableGeometry().bottom();
    const int room = bottom - m_window.frameGeometry().bottom();
    const int missing = fittingHeight(m_window.width()) - m_window.height();
    if (missing > 0 && room > 0)
        m_window.resize(m_window.width(), m_window.height() + std::min(missing, room));
}

void InstallerWinController::showSystemVersionAlert() {
    auto *alert = new QMessageBox(&m_window);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setWindowModality(Qt::WindowModal);
    alert->setWindowTitle(m_window.windowTitle());
    alert->setTextFormat(Qt::PlainText);
    alert->setText(
        ZTFormat(localizedString("%1$@ %2$@ cannot be installed on this computer because "
                                 "it requires Mac OS X %3$@ or newer."),
                 productName(), version(), minimumSystemVersion()));
    alert->setInformativeText(
        ZTFormat(localizedString("To check if an older version of %@ is available for your "
                                 "computer, please visit our software archive."),
                 productName()));
    const QIcon stopIcon = alert->style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const int size = alert->style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    alert->setIconPixmap(stopIcon.pixmap(QSize(size, size), m_window.devicePixelRatioF()));
    auto *quit = alert->addButton(localizedString("Quit"), QMessageBox::RejectRole);
    auto *visit = alert->addButton(localizedString("Visit Archive"), QMessageBox::ActionRole);
    alert->setDefaultButton(quit);
    alert->setEscapeButton(quit);
    connect(alert, &QMessageBox::finished, this, [this, alert, visit] {
        systemVersionAlertDidEnd(alert->clickedButton() == visit ? secondButtonReturnCode
                                                                 : secondButtonReturnCode - 1);
    });
    alert->open();
}

void InstallerWinController::systemVersionAlertDidEnd(int returnCode) {
    if (returnCode == secondButtonReturnCode)
        platform().workspace.openUrl(softwareArchive);
    QApplication::quit();
}
