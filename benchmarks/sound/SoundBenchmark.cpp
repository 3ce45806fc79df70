// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How soon a sound is heard, and how long the program that plays it is held up. All players play
// the same file on the same server in turn, so that what else the machine does touches all alike.
// The output leads nowhere and never sleeps: what is gained by waking a real device comes on top.
//
// With "play FILE" the program is a player itself.

#include "Platform/NativePlatform.h"
#include "Platform/linux/sound/PulseSounds.h"
#include "ZTStuff/CocoaExtensions/SoundExtensions.h"
#include "ZTStuff/CocoaExtensions/ZTSound.h"

#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"
#include "tests/Waiting.h"
#include "tests/desktop/sound/SoundServer.h"
#include "tests/unit/sound/SoundFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 15;

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

double since(Clock::time_point begin) {
    return Milliseconds(Clock::now() - begin).count();
}

// The services of a program that has just been started.
class FreshProgram {
public:
    FreshProgram() { SoundExtensions::platformChanged(); }
    ~FreshProgram() { SoundExtensions::platformChanged(); }
    FreshProgram(const FreshProgram &) = delete;
    FreshProgram &operator=(const FreshProgram &) = delete;

private:
    zt::NativePlatform m_native{{u"bench"_s}};
    zt::ScopedPlatform m_current{m_native.services()};
};

class Figures {
public:
    explicit Figures(std::string name) : m_name(std::move(name)) {}

    void add(double milliseconds) { m_values.push_back(milliseconds); }

    double median() const { return zt::median(m_values); }

    double most() const { return *std::max_element(m_values.begin(), m_values.end()); }

    // The median, and more as a remark.
    void print(const char *metric) const {
        std::printf("# %s: median %.2f ms, at most %.2f, %zu runs\n", m_name.c_str(), median(),
                    most(), m_values.size());
        zt::printBenchLine(m_name.c_str(), metric, median());
    }

private:
    std::string m_name;
    std::vector<double> m_values;
};

// From the beginning to the first sample.
double untilHeard(const std::function<void()> &begin) {
    SoundRecorder recorder(SoundServer::speakers);
    const auto begun = Clock::now();
    begin();
    if (!eventually([&recorder] { return recorder.peak() > 0.05F; })) {
        std::fputs("Nothing was heard.\n", stderr);
        std::exit(1);
    }
    return since(begun);
}

double untilProgramIsHeard(const QString &program, const QStringList &arguments) {
    QProcess player;
    const double heard = untilHeard([&] { player.start(program, arguments); });
    player.waitForFinished();
    return heard;
}

double untilEffectIsHeard(const QString &file) {
    const ZTSound::Pointer sound = ZTSound::soundWithContentsOfFile(file);
    const double heard = untilHeard([&] { SoundExtensions::playAsSoundEffect(*sound); });
    static_cast<void>(eventually([&] { return !sound->isPlaying(); }));
    return heard;
}

// What the installer does at its end, and then when it quits.
void measureHoldUp(const QString &file, Figures &playing, Figures &ending) {
    auto program = std::make_unique<FreshProgram>();
    const auto begun = Clock::now();
    const ZTSound::Pointer sound = ZTSound::soundWithContentsOfFile(file);
    sound->setVolume(SoundExtensions::alertVolume());
    SoundExtensions::playAsSoundEffect(*sound);
    playing.add(since(begun));
    const auto ended = Clock::now();
    program.reset();
    ending.add(since(ended));
}

void compareFirstSamples(const QString &file) {
    Figures cold("sound.effect_without_warm_up");
    Figures warm("sound.effect_after_warm_up");
    Figures ours("sound.program_of_ours");
    Figures paplay("sound.program_paplay");
    Figures canberra("sound.program_canberra_gtk_play");
    for (int run = 0; run < runs; ++run) {
        {
            const FreshProgram program;
            cold.add(untilEffectIsHeard(file));
        }
        {
            const FreshProgram program;
            SoundExtensions::playSilentSoundThread();
            static_cast<void>(eventually(SoundServer::isPlaying));
            static_cast<void>(eventually([] { return !SoundServer::isPlaying(); }));
            warm.add(untilEffectIsHeard(file));
        }
        ours.add(untilProgramIsHeard(QCoreApplication::applicationFilePath(), {u"play"_s, file}));
        paplay.add(untilProgramIsHeard(u"paplay"_s, {file}));
        canberra.add(untilProgramIsHeard(u"canberra-gtk-play"_s, {u"--file="_s + file}));
    }
    for (const Figures *figures : {&cold, &warm, &ours, &paplay, &canberra})
        figures->print("first_sample_ms");
    zt::printBenchLine("sound.program_of_ours", "ratio_to_paplay", ours.median() / paplay.median());
    zt::printBenchLine("sound.program_of_ours", "ratio_to_canberra_gtk_play",
                       ours.median() / canberra.median());
}

void measureHoldUps(SoundServer &server, const QString &file) {
    const struct {
        const char *server;
        std::function<void()> before;
        std::function<void()> after;
    } cases[] = {
        {"working", [] {}, [] {}},
        {"hanging", [&server] { server.suspend(); },
         [&server] {
             server.resume();
             SoundServer::control({u"info"_s}); // once it answers, it has caught up
         }},
        {"absent", [&server] { server.end(); }, [] {}},
    };
    for (const auto &one : cases) {
        Figures playing(std::string("sound.call_with_server_") + one.server);
        Figures ending(std::string("sound.exit_with_server_") + one.server);
        for (int run = 0; run < runs; ++run) {
            one.before();
            measureHoldUp(file, playing, ending);
            one.after();
        }
        playing.print("held_up_ms");
        ending.print("held_up_ms");
    }
}

// The silent sound is looked for where the system's sounds are.
bool provideSounds(const QString &file) {
    const QString folder = QDir::homePath() + u"/Library/Sounds"_s;
    return QDir().mkpath(folder) &&
           writeTone(folder + u"/SoundOfSilence.wav"_s, SoundFileForm::Wave,
                     {.strength = 0.0001, .seconds = 0.1}) &&
           writeTone(file, SoundFileForm::Wave, {.strength = 0.5, .seconds = 0.4});
}

int play(const QString &file) {
    const FreshProgram program;
    const ZTSound::Pointer sound = ZTSound::soundWithContentsOfFile(file);
    sound->setFinishedListener([](bool completely) { QCoreApplication::exit(completely ? 0 : 1); });
    SoundExtensions::playAsSoundEffect(*sound);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == u"play"_s)
        return play(arguments.at(2));
    const QString file = QDir::tempPath() + u"/tone.wav"_s;
    if (!provideSounds(file)) {
        std::fputs("The sounds could not be written.\n", stderr);
        return 1;
    }
    SoundServer server;
    compareFirstSamples(file);
    measureHoldUps(server, file);
    return 0;
}
