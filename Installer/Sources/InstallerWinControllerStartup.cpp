// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/FirstPaint.h"
#include "Installer/Sources/IconFile.h"
#include "Installer/Sources/InstallerArguments.h"
#include "Installer/Sources/LocalizedString.h"
#include "Installer/Sources/LogRedirection.h"
#include "Platform/Workspace.h"
#include "ZTStuff/CocoaExtensions/ViewExtensions.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/AttributedDocument.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include <QApplication>
#include <QDir>
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
        m_environment.redirectStandardStreams(QDir::homePath() +
                                              u"/Library/Logs/VelmoraInstaller.log"_s);
    } else {
        ZTLog("direct invocation");
    }
    m_ui.nameField->clear();
    m_ui.tabView->tabBar()->hide();
    m_ui.tabView->setDocumentMode(true);
    selectTab(MainPage);
    m_arguments = InstallerArguments::parse(m_environment.argumentVector);

    if (!InstallerArguments::completeSourcePath(m_arguments,
                                                m_platform.bundles.mainBundle().path())) {
        playDoneSound();
        showSetupError(u"missing source path"_s);
        return;
    }
    if (!InstallerArguments::completeProductName(m_arguments)) {
        showSetupError(u"missing program name"_s);
        return;
    }
    m_window.setWindowTitle(ZTFormat(m_window.windowTitle(), productName()));
    const auto product =
        m_platform.bundles.bundleAtPath(argument(ZTInstallerKeySourcePath).value_or(QString()));
    fillIcon(product);
    const auto version = InstallerArguments::version(m_arguments, product);
    const auto minimum = InstallerArguments::minimumSystemVersion(m_arguments, product);
    const bool supported =
        !minimum || ZTUtilities::compareVersion(ZTUtilities::systemVersionString(), *minimum) !=
                        Ordering::Ascending;
    if (!completeArguments(product)) {
        showSetupError(u"missing product signature"_s);
        return;
    }
    fillTexts(version);
    fillReadMe();
    m_ui.checkmarkField->hide();
    showWindow();
    if (!supported)
        showSystemVersionAlert(version, *minimum);
}

bool InstallerWinController::completeArguments(const std::optional<zt::Bundle> &product) {
    InstallerArguments::completeDestination(
        m_arguments, {.preferredDestination =
                          [this](const QString &name) { return findPreferredDestinationFor(name); },
                      .applicationsDirectory = [this] { return applicationsDirectory(); }});
    m_ui.pathField->setText(
        localizedPath(argument(ZTInstallerKeyDestinationPath).value_or(QString())));
    InstallerArguments::completeDocumentation(m_arguments);
    if (!InstallerArguments::completeProductCodes(m_arguments, product))
        return false;
    InstallerArguments::completeQuitCodes(m_arguments);
    return true;
}

void InstallerWinController::fillIcon(const std::optional<zt::Bundle> &product) {
    std::optional<QIcon> icon;
    if (const auto path = argument(ZTInstallerKeyIconPath))
        icon = loadIcon(*path);
    const auto name = product ? product->stringForKey(u"CFBundleIconFile"_s) : std::nullopt;
    if (!icon && name) {
        auto path = product->pathForResource(*name, u"icns"_s);
        if (!path)
            path = product->pathForResource(*name);
        if (path)
            icon = loadIcon(*path);
    }
    if (!icon) {
        icon = m_platform.workspace.iconForFile(
            argument(ZTInstallerKeySourcePath).value_or(QString()));
    }
    if (icon->isNull())
        return;
    m_ui.iconField->setIcon(*icon);
    QApplication::setWindowIcon(*icon);
}

void InstallerWinController::fillTexts(const std::optional<QString> &version) {
    m_ui.nameField->setText(version ? productName() + u' ' + *version : productName());
    m_ui.introField->setText(ZTFormat(m_ui.introField->text(), productName()));
    QString explanation = ZTFormat(m_ui.explanationField->text(), productName());
    const bool documented = m_arguments.contains(ZTInstallerKeyDocumentationPath);
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

void InstallerWinController::fillReadMe() {
    const auto path = argument(ZTInstallerKeyReadMePath);
    if (!path || !QFileInfo::exists(*path)) {
        selectTab(MainPage);
        return;
    }
    ZTViewExtensions::useLightAquaAppearance(*m_ui.readMeTextView,
                                             ZTViewExtensions::LightAppearance::Forced);
    if (auto document = AttributedDocument::load(*path)) {
        (*document)->setParent(m_ui.readMeTextView);
        (*document)->setDocumentMargin(readMeMargin);
        m_ui.readMeTextView->setDocument(document->release());
    } else {
        ZTLog("%s", document.error().text().c_str());
        m_ui.readMeTextView->setPlainText(
            ZTFormat(localizedString("The read-me could not be shown. You can open it yourself; it "
                                     "is here:\n%@"),
                     *path));
    }
    selectTab(ReadMePage);
}

void InstallerWinController::showWindow() {
    const QScreen *screen = QApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    // Long texts and large fonts make the window taller, as far as the screen allows.
    const int width = std::min(m_window.width(), available.width());
    const int contents = m_ui.mainContents->layout()->totalHeightForWidth(
        width - m_window.layout()->contentsMargins().left() -
        m_window.layout()->contentsMargins().right());
    const int others = m_window.layout()->sizeHint().height() - m_ui.tabView->sizeHint().height() +
                       m_ui.progressIndicator->sizeHint().height() +
                       2 * m_ui.mainPageLayout->spacing();
    const int height = std::min(std::max(m_window.height(), contents + others), available.height());
    m_window.resize(width, height);
    m_window.move(available.center() - m_window.rect().center());
    m_ui.installButton->setFocus();
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    callAfterFirstPaint(m_window, [] {
        if (const auto self = ZTProcess::currentProcess())
            self->setFrontProcess();
    });
}

void InstallerWinController::showSystemVersionAlert(const std::optional<QString> &version,
                                                    const QString &minimumSystemVersion) {
    auto *alert = new QMessageBox(&m_window);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setWindowModality(Qt::WindowModal);
    alert->setWindowTitle(m_window.windowTitle());
    alert->setTextFormat(Qt::PlainText);
    alert->setText(
        ZTFormat(localizedString("%1$@ %2$@ cannot be installed on this computer because "
                                 "it requires Mac OS X %3$@ or newer."),
                 productName(), version, minimumSystemVersion));
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
        m_platform.workspace.openUrl(softwareArchive);
    QApplication::quit();
}
