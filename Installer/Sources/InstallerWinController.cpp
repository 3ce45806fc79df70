// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/Announcement.h"
#include "Installer/Sources/LocalizedString.h"
#include "Platform/Workspace.h"
#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <QApplication>
#include <QShortcut>
#include <QTabBar>

#include <algorithm>

InstallerWinController::InstallerWinController(Environment environment)
    : Installation(environment.platform)
    , m_environment(std::move(environment))
    , m_followedAppearance(platform().appearance) {
    prepareAnnouncements();
    m_ui.setupUi(&m_window);
    m_ui.pathField->setTextDirection(Qt::LeftToRight);
    m_ui.helpButton->setShortcut(QKeySequence::HelpContents);
    followDynamicColor(*m_ui.messageField, QPalette::WindowText,
                       ZTDynamicColor::redWarningTextColor());
    m_window.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                            Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    m_ui.mainScrollArea->viewport()->setAutoFillBackground(false);
    m_ui.mainContents->setAutoFillBackground(false);
    QFont nameFont = m_ui.nameField->font();
    nameFont.setPointSizeF(nameFont.pointSizeF() * 1.5);
    nameFont.setBold(true);
    m_ui.nameField->setFont(nameFont);
    QFont pathFont = m_ui.pathField->font();
    pathFont.setBold(true);
    m_ui.pathField->setFont(pathFont);
    const int helpButtonHeight = m_ui.helpButton->sizeHint().height();
    m_ui.helpButton->setFixedWidth(helpButtonHeight + helpButtonHeight / 2);
    // Nothing is to move when these come and go.
    for (QWidget *view : {static_cast<QWidget *>(m_ui.progressIndicator),
                          static_cast<QWidget *>(m_ui.stopButton)}) {
        QSizePolicy policy = view->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        view->setSizePolicy(policy);
    }
    animateProgress(Progress::Stopped);
    hideCopyProgress();

    m_heldKeys.watch(*m_ui.installButton);
    connect(m_ui.installButton, &QPushButton::clicked, this, &InstallerWinController::install);
    connect(m_ui.cancelButton, &QPushButton::clicked, this, &InstallerWinController::cancel);
    connect(m_ui.stopButton, &QPushButton::clicked, this, [this] {
        m_ui.stopButton->setEnabled(false);
        stopCopying();
    });
    connect(m_ui.helpButton, &QPushButton::clicked, this,
            &InstallerWinController::openDocumentation);
    connect(m_ui.readMeTextView, &QTextBrowser::anchorClicked, this,
            [this](const QUrl &link) { platform().workspace.openUrl(link); });
    connect(m_ui.logButton, &QPushButton::clicked, this, &InstallerWinController::showLog);
    m_window.installEventFilter(this);
    auto *escape = new QShortcut(Qt::Key_Escape, &m_window);
    connect(escape, &QShortcut::activated, this, [this] {
        QPushButton *const wayBack = m_finished ? m_ui.installButton : m_ui.cancelButton;
        (m_ui.stopButton->isVisible() ? m_ui.stopButton : wayBack)->click();
    });
}

InstallerWinController::~InstallerWinController() = default;

bool InstallerWinController::applicationShouldTerminateAfterLastWindowClosed() const {
    return true;
}

void InstallerWinController::selectTab(int pageIndex) {
    m_ui.tabView->setCurrentIndex(pageIndex);
    const bool mainPage = pageIndex != ReadMePage;
    m_ui.installButton->setText(mainPage ? localizedString("Install")
                                         : localizedString("Continue"));
    describeInstallButton();
    const bool hasReadMe = arguments().contains(ZTInstallerKeyReadMePath);
    if (hasReadMe) {
        m_ui.cancelButton->setText(mainPage ? localizedString("Go Back")
                                            : localizedString("Cancel"));
    }
    m_ui.cancelButton->setAccessibleDescription(mainPage && hasReadMe
                                                    ? localizedString("Returns to the read-me.")
                                                    : localizedString("Quits without installing."));
    assignShortcuts();
}

void InstallerWinController::showSetupError(const QString &message) {
    ZTLog("%@", message);
    showFinalMessage(message.toUtf8().constData());
    m_ui.logButton->show();
    // The title is still the format with its placeholder when the product has no name yet.
    if (m_window.windowTitle().contains(u'%'))
        m_window.setWindowTitle({});
    showWindow();
}

void InstallerWinController::assignShortcuts() {
    constexpr char16_t firstIdeograph = 0x2E80; // nothing from here on is on a key
    QString taken;
    for (QPushButton *button :
         {m_ui.installButton, m_ui.cancelButton, m_ui.logButton, m_ui.stopButton}) {
        const QString title = button->text().toUpper();
        const auto *letter = std::ranges::find_if(title, [&taken](QChar character) {
            return character.isLetter() && character.unicode() < firstIdeograph &&
                   !taken.contains(character);
        });
        if (letter == title.cend()) {
            button->setShortcut({});
            continue;
        }
        taken += *letter;
        button->setShortcut(QKeySequence(Qt::ALT | Qt::Key(letter->unicode())));
    }
}
