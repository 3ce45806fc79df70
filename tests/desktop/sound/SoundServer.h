#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A real sound server with two outputs that lead nowhere, and what is heard on them.

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

// Found by clients where servers are, so that they need no hint. Everything else is in the private
// folders of the desktop session. Ends with this object.
class SoundServer {
public:
    static const QString speakers; // the identifiers of the outputs; this is the default one
    static const QString headset;

    SoundServer() { start(); }
    ~SoundServer() { end(); }
    SoundServer(const SoundServer &) = delete;
    SoundServer &operator=(const SoundServer &) = delete;

    void start();
    void end();
    // Lets the server hang, and go on again.
    void suspend();
    void resume();

    // Runs the server's control program. What it answers.
    static QByteArray control(const QStringList &arguments);

    // Takes an output away, with whatever is played on it, and puts it back.
    static void removeOutput(const QString &identifier);
    static void addOutput(const QString &identifier);

    // Whether something is played, by whatever program.
    static bool isPlaying();

private:
    QProcess m_process;
};

// Listens to an output from now on.
class SoundRecorder {
public:
    explicit SoundRecorder(const QString &output);
    ~SoundRecorder();
    SoundRecorder(const SoundRecorder &) = delete;
    SoundRecorder &operator=(const SoundRecorder &) = delete;

    // The highest value so far, from 0 to 1.
    float peak();
    // For how long there was something louder than a sixtieth of full, in seconds.
    double seconds();
    // The tone that was heard, in hertz.
    double frequency();

private:
    void read();

    QProcess m_process;
    std::vector<float> m_values;
};
