#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A password dialog's place: it is asked by polkit as a desktop's own would be, and answers by
// itself.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>

// An identity or a subject of polkit's: (sa{sv}).
struct PolkitIdentity {
    QString kind;
    QVariantMap details;
};

class PolkitAgent final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PolicyKit1.AuthenticationAgent")

public:
    enum class Answer {
        TypesPassword,
        TypesWrongPassword,
        Dismisses,
        Waits, // as long as nobody cancels
    };

    explicit PolkitAgent(Answer answer) : m_answer(answer) {}

    // Begins to answer for all that the process asks. Whether polkit agreed.
    bool registerFor(qint64 pid);

    int requests = 0;
    int cancellations = 0;
    QString message; // of the last request
    QVariantMap details;

public Q_SLOTS:
    void BeginAuthentication(const QString &action, const QString &text, const QString &icon,
                             const QMap<QString, QString> &more, const QString &cookie,
                             const QList<PolkitIdentity> &identities, const QDBusMessage &request);
    void CancelAuthentication(const QString &cookie);

private:
    // Types into the helper that checks passwords.
    void typePassword(const QString &user, const QString &cookie) const;

    Answer m_answer;
    QDBusMessage m_waiting;
};
