#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The one window of Sample Notes: the notes by title on the left, the chosen one on the right.

#include <QMainWindow>
#include <QString>
#include <QTimer>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPlainTextEdit;

namespace sample {

class NotesWindow final : public QMainWindow {
    Q_OBJECT

public:
    // Shows the notes of the file, a JSON array of texts, and keeps them there. A file that cannot
    // be read is left alone until something is changed.
    explicit NotesWindow(QString file, QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void build();
    void load();
    void save();
    QListWidgetItem *addNote(const QString &text);
    void removeNote();
    void showNote(QListWidgetItem *note);
    void takeText();
    void showMatches(const QString &words);

    QString m_file;
    QTimer m_saveTimer;
    QListWidget *m_list = nullptr;
    QPlainTextEdit *m_editor = nullptr;
    QLineEdit *m_search = nullptr;
};

} // namespace sample
