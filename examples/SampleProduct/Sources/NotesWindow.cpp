// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "NotesWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

#include <chrono>

namespace sample {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int TextRole = Qt::UserRole;

QString titleOf(const QString &text) {
    const QString title = text.trimmed().section(u'\n', 0, 0);
    return title.isEmpty() ? NotesWindow::tr("New note") : title;
}

} // namespace

NotesWindow::NotesWindow(QString file, QWidget *parent)
    : QMainWindow(parent)
    , m_file(std::move(file)) {
    build();
    load();
    // Typing is followed by one writing, not by one for each letter.
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(700ms);
    connect(&m_saveTimer, &QTimer::timeout, this, &NotesWindow::save);
}

void NotesWindow::build() {
    m_list = new QListWidget;
    m_editor = new QPlainTextEdit;
    m_editor->setPlaceholderText(tr("Write here. The first line is the title."));
    m_search = new QLineEdit;
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(240);

    QToolBar *bar = addToolBar(tr("Notes"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction *add = bar->addAction(style()->standardIcon(QStyle::SP_FileIcon), tr("New"));
    add->setShortcut(QKeySequence::New);
    QAction *remove = bar->addAction(style()->standardIcon(QStyle::SP_TrashIcon), tr("Delete"));
    auto *stretch = new QWidget;
    stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(stretch);
    bar->addWidget(m_search);

    auto *splitter = new QSplitter;
    splitter->addWidget(m_list);
    splitter->addWidget(m_editor);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({200, 440});
    setCentralWidget(splitter);
    statusBar();
    resize(640, 420);

    connect(add, &QAction::triggered, this, [this] {
        m_search->clear();
        m_list->setCurrentItem(addNote({}));
        m_editor->setFocus();
    });
    connect(remove, &QAction::triggered, this, &NotesWindow::removeNote);
    connect(m_list, &QListWidget::currentItemChanged, this, &NotesWindow::showNote);
    connect(m_editor, &QPlainTextEdit::textChanged, this, &NotesWindow::takeText);
    connect(m_search, &QLineEdit::textChanged, this, &NotesWindow::showMatches);
}

void NotesWindow::load() {
    QFile file(m_file);
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonArray texts = QJsonDocument::fromJson(file.readAll()).array();
        for (const auto &text : texts) {
            addNote(text.toString());
        }
    }
    if (m_list->count() == 0) {
        addNote(tr("Welcome\n\nNotes are kept while you type: there is nothing to save."));
    }
    m_list->setCurrentRow(0);
}

void NotesWindow::save() {
    QJsonArray texts;
    for (int row = 0; row < m_list->count(); ++row) {
        texts.append(m_list->item(row)->data(TextRole).toString());
    }
    QDir().mkpath(QFileInfo(m_file).path());
    // The old notes stay until the new ones are whole.
    QSaveFile file(m_file);
    const bool saved = file.open(QIODevice::WriteOnly) &&
                       file.write(QJsonDocument(texts).toJson()) >= 0 && file.commit();
    statusBar()->showMessage(saved ? tr("Kept") : tr("Cannot write %1").arg(m_file), 2000);
}

QListWidgetItem *NotesWindow::addNote(const QString &text) {
    auto *note = new QListWidgetItem(titleOf(text), m_list);
    note->setData(TextRole, text);
    return note;
}

void NotesWindow::removeNote() {
    delete m_list->takeItem(m_list->currentRow());
    m_saveTimer.start();
}

void NotesWindow::showNote(QListWidgetItem *note) {
    const QSignalBlocker quiet(m_editor);
    m_editor->setPlainText(note != nullptr ? note->data(TextRole).toString() : QString());
    m_editor->setEnabled(note != nullptr);
}

void NotesWindow::takeText() {
    QListWidgetItem *note = m_list->currentItem();
    if (note == nullptr) {
        return;
    }
    const QString text = m_editor->toPlainText();
    note->setData(TextRole, text);
    note->setText(titleOf(text));
    m_saveTimer.start();
}

void NotesWindow::showMatches(const QString &words) {
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *note = m_list->item(row);
        const QString text = note->data(TextRole).toString();
        note->setHidden(!text.contains(words, Qt::CaseInsensitive));
    }
}

void NotesWindow::closeEvent(QCloseEvent *event) {
    if (m_saveTimer.isActive()) {
        m_saveTimer.stop();
        save();
    }
    event->accept();
}

} // namespace sample
