// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A program with windows that behaves as it is told, for tests that watch and end programs.
//
//   windowed_program closes          ends when its window is closed
//   windowed_program two-windows     the same with two windows, "first" and "second"
//   windowed_program asks [MS]       asks its user first, who agrees after that time or never
//   windowed_program refuses         keeps its window open, but ends at the termination signal
//   windowed_program refuses-all     keeps its window open and ignores the termination signal
//
// The key F11 lets a window fill the screen, or be as it was.
//
// It prints a line "ready" once its windows are shown, and "asked" for each time that it is asked
// to close one. Without arguments the behaviour is that of the environment's
// VELMORA_TEST_BEHAVIOUR.

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <cstdio>
#include <memory>
#include <vector>

#include <signal.h>

using namespace Qt::StringLiterals;

namespace {

enum class Answer { Close, AskUser, Refuse };

void say(const char *line) {
    std::puts(line);
    std::fflush(stdout);
}

class Window final : public QWidget {
public:
    Window(const QString &title, Answer answer, int agreesAfter)
        : m_answer(answer)
        , m_agreesAfter(agreesAfter) {
        setWindowTitle(title);
        resize(240, 120);
        auto *const layout = new QVBoxLayout(this);
        for (const QString &name : {u"Name"_s, u"Place"_s}) {
            auto *const field = new QLineEdit(this);
            field->setAccessibleName(name);
            layout->addWidget(field);
        }
    }

private:
    void closeEvent(QCloseEvent *event) override {
        say("asked");
        event->setAccepted(m_answer == Answer::Close || m_agreed);
        if (m_answer == Answer::AskUser && !m_agreed)
            askUser();
    }

    void keyPressEvent(QKeyEvent *event) override {
        if (event->key() == Qt::Key_F11)
            setWindowState(windowState() ^ Qt::WindowFullScreen);
        else
            QWidget::keyPressEvent(event);
    }

    void askUser() {
        auto *const question = new QMessageBox(QMessageBox::Question, u"Close?"_s,
                                               u"There are changes."_s, QMessageBox::Close, this);
        question->setAttribute(Qt::WA_DeleteOnClose);
        question->open();
        if (m_agreesAfter < 0)
            return;
        QTimer::singleShot(m_agreesAfter, question, [this, question] {
            m_agreed = true;
            question->accept();
            QTimer::singleShot(0, this, &QWidget::close);
        });
    }

    Answer m_answer;
    int m_agreesAfter;
    bool m_agreed = false;
};

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QStringList words = QApplication::arguments().mid(1);
    if (words.isEmpty())
        words = qEnvironmentVariable("VELMORA_TEST_BEHAVIOUR", u"closes"_s).split(u' ');
    const QString mode = words[0];
    Answer answer = Answer::Close;
    if (mode == u"asks")
        answer = Answer::AskUser;
    else if (mode.startsWith(u"refuses"))
        answer = Answer::Refuse;
    if (mode == u"refuses-all")
        signal(SIGTERM, SIG_IGN);

    QStringList titles = {u"first"_s};
    if (mode == u"two-windows")
        titles << u"second"_s;
    const int agreesAfter = words.size() > 1 ? words[1].toInt() : -1;
    std::vector<std::unique_ptr<Window>> windows;
    for (const QString &title : titles) {
        windows.push_back(std::make_unique<Window>(title, answer, agreesAfter));
        windows.back()->show();
    }
    QTimer::singleShot(0, [] { say("ready"); });
    return QApplication::exec();
}
