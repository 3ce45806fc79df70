// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An application of the desktop's other toolkit family, without windows: its name, its actions and
// its standard interfaces on the session bus are made by the toolkit's own library.
//
//   action_program ID [quit]   the application's id on the bus; with an action "quit" or without
//
// It prints "ready" once it is on the bus, "activated" when it is activated later, and ends with
// status 7 when its quit action is called.

#include <gio/gio.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
};

bool isReady = false;

void say(const char *line) {
    std::puts(line);
    std::fflush(stdout);
}

void activated(GApplication *application, gpointer) {
    // The first activation is the application's own start.
    if (isReady) {
        say("activated");
        return;
    }
    isReady = true;
    g_application_hold(application);
    say("ready");
}

void quit(GSimpleAction *, GVariant *, gpointer) {
    // At once: the call is still waiting for its answer then.
    std::_Exit(7);
}

} // namespace

int main(int argc, char **argv) {
    if (argc < 2)
        return 2;
    const std::unique_ptr<GApplication, Unreference> application(
        g_application_new(argv[1], G_APPLICATION_DEFAULT_FLAGS));
    const std::unique_ptr<GSimpleAction, Unreference> action(g_simple_action_new("quit", nullptr));
    g_signal_connect(action.get(), "activate", G_CALLBACK(quit), nullptr);
    if (argc > 2 && std::string_view(argv[2]) == "quit")
        g_action_map_add_action(G_ACTION_MAP(application.get()), G_ACTION(action.get()));
    g_signal_connect(application.get(), "activate", G_CALLBACK(activated), nullptr);
    return g_application_run(application.get(), 1, argv);
}
