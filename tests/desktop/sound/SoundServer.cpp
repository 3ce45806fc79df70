// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/desktop/sound/SoundServer.h"

#include "tests/Waiting.h"

#include <QDir>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include <csignal> // kill

using namespace Qt::StringLiterals;

namespace {

constexpr int frameRate = 48'000;
constexpr float audible = 1.0F / 60;

// The monitor is right behind the output only without rewinds.
QStringList outputArguments(const QString &identifier) {
    return {u"module-null-sink"_s, u"sink_name="_s + identifier, u"norewinds=1"_s,
            u"sink_properties=device.description="_s + identifier};
}

} // namespace

const QString SoundServer::speakers = u"speakers"_s;
const QString SoundServer::headset = u"headset"_s;

void SoundServer::start() {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/pulse"_s;
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QStringList arguments = {
        u"-n"_s,
        u"--daemonize=no"_s,
        u"--use-pid-file=no"_s,
        u"--system=no"_s,
        u"--exit-idle-time=-1"_s,
        u"--disable-shm=yes"_s,
        u"--realtime=no"_s,
        u"--high-priority=no"_s,
        u"--log-target=file:"_s + folder + u"/log"_s,
        u"-L"_s,
        u"module-device-restore"_s,
        u"-L"_s,
        u"module-stream-restore"_s,
        u"-L"_s,
        u"module-native-protocol-unix auth-anonymous=1 auth-cookie-enabled=0 socket="_s + folder +
            u"/native"_s};
    for (const QString &identifier : {speakers, headset})
        arguments << u"-L"_s << outputArguments(identifier).join(u' ');
    m_process.start(u"pulseaudio"_s, arguments);
    ASSERT_TRUE(m_process.waitForStarted());
    ASSERT_TRUE(eventually([] { return control({u"info"_s}).contains("Server Name"); }));
    control({u"set-default-sink"_s, speakers});
}

void SoundServer::end() {
    m_process.terminate();
    m_process.waitForFinished();
}

void SoundServer::suspend() {
    ::kill(pid_t(m_process.processId()), SIGSTOP);
}

void SoundServer::resume() {
    ::kill(pid_t(m_process.processId()), SIGCONT);
}

QByteArray SoundServer::control(const QStringList &arguments) {
    QProcess program;
    program.start(u"pactl"_s, arguments);
    program.waitForFinished();
    return program.readAllStandardOutput();
}

void SoundServer::removeOutput(const QString &identifier) {
    for (const QByteArray &line : control({u"list"_s, u"short"_s, u"modules"_s}).split('\n')) {
        if (line.contains("sink_name=" + identifier.toUtf8()))
            control({u"unload-module"_s, QString::fromUtf8(line.split('\t').front())});
    }
}

void SoundServer::addOutput(const QString &identifier) {
    control(QStringList{u"load-module"_s} + outputArguments(identifier));
}

bool SoundServer::isPlaying() {
    return !control({u"list"_s, u"short"_s, u"sink-inputs"_s}).isEmpty();
}

SoundRecorder::SoundRecorder(const QString &output) {
    m_process.start(u"parec"_s,
                    {u"--device="_s + output + u".monitor"_s, u"--raw"_s, u"--latency-msec=10"_s,
                     u"--format=float32le"_s, u"--channels=1"_s, u"--rate=%1"_s.arg(frameRate)});
    // Silence is recorded as well: once the first of it has come, nothing is missed.
    EXPECT_TRUE(eventually([this] { return m_process.bytesAvailable() > 0; }));
}

SoundRecorder::~SoundRecorder() {
    m_process.kill();
    m_process.waitForFinished();
}

void SoundRecorder::read() {
    const QByteArray bytes = m_process.read(m_process.bytesAvailable() / 4 * 4);
    const std::size_t before = m_values.size();
    m_values.resize(before + std::size_t(bytes.size()) / sizeof(float));
    std::memcpy(m_values.data() + before, bytes.constData(), std::size_t(bytes.size()));
}

float SoundRecorder::peak() {
    read();
    float highest = 0.0F;
    for (const float value : m_values)
        highest = std::max(highest, std::abs(value));
    return highest;
}

double SoundRecorder::seconds() {
    read();
    const auto isAudible = [](float value) { return std::abs(value) > audible; };
    const auto first = std::find_if(m_values.begin(), m_values.end(), isAudible);
    const auto last = std::find_if(m_values.rbegin(), m_values.rend(), isAudible).base();
    return first < last ? double(last - first) / frameRate : 0.0;
}

double SoundRecorder::frequency() {
    read();
    int rises = 0;
    for (std::size_t i = 1; i < m_values.size(); ++i)
        rises += m_values[i - 1] <= 0 && m_values[i] > 0 && m_values[i] < 1 ? 1 : 0;
    const double heard = seconds();
    return heard > 0 ? rises / heard : 0.0;
}
