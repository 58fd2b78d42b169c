// SPDX-License-Identifier: MIT
//
// player DISPLAY FOLDER HOW [GUARD]: plays for ever, for tests that kill it. It writes a line when it has
// begun. GUARD is the guard program, where it is not the real one.
//
//   strokes   a key with four modifiers each 0.1 ms
//   switches  Alt and Tab each 50 ms
//   text      a long text, over and over
//   hold      Control and a key, held down
//   runs      a key each 1 ms, each in a run of its own
//   careless  the strokes without any care: sent when the queue of xcb is full, and nobody who cleans up
#include <unistd.h>
#include <xcb/xtest.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <thread>

#include "platform/Modifiers.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/watch/X11EventManager.h"

namespace {

constexpr double gap = 0.0001;

// What the handler of a signal can reach.
x11::X11KeyInjector* playing = nullptr;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void handle(int /*signal*/) { playing->interrupt(); }

bool goesOn(const Step<>& step) {
    if (!step && !step.error().isCancelled())
        std::fprintf(stderr, "%s\n", step.error().error->message.text().c_str());
    return bool(step);
}

void begun() {
    std::puts("playing");
    std::fflush(stdout);
}

void playStrokes(InjectionSession& session) {
    constexpr std::uint32_t modifiers =
        modifier::command | modifier::control | modifier::option | modifier::shift;
    bool isFirst = true;
    while (goesOn(session.stroke(0, modifiers)) && goesOn(session.pause(gap))) {
        if (std::exchange(isFirst, false)) begun();
    }
}

void playSwitches(InjectionSession& session) {
    constexpr std::uint32_t tab = 48;
    bool isFirst = true;
    while (goesOn(session.stroke(tab, modifier::option))) {
        if (std::exchange(isFirst, false)) begun();
        if (!goesOn(session.pause(0.05))) return;
    }
}

void playText(InjectionSession& session) {
    std::string text;
    for (int line = 0; line < 500; ++line) text += "The Quick Brown FOX jumps over 13 lazy dogs: \xC3\xA9!\n";
    if (!goesOn(session.text("go\n", 0))) return;
    begun();
    while (goesOn(session.text(text, 0))) continue;
}

void hold(InjectionSession& session) {
    if (!goesOn(session.keyDown(HeldModifier{modifier::control})) || !goesOn(session.keyDown(HeldCode{0})))
        return;
    begun();
    goesOn(session.pause(1e9));
}

void playRuns(x11::X11KeyInjector& injector) {
    bool isFirst = true;
    for (;;) {
        const auto session = injector.open({});
        if (!session || !goesOn(session.value()->stroke(0, 0)) || !goesOn(session.value()->pause(0.001)))
            return;
        if (std::exchange(isFirst, false)) begun();
    }
}

[[noreturn]] void playCarelessly(const std::string& display) {
    xcb_connection_t* connection = xcb_connect(display.c_str(), nullptr);
    constexpr std::array<std::uint8_t, 5> keys = {37, 50, 64, 133, 38};
    const auto fake = [&](std::uint8_t type, std::uint8_t keycode) {
        xcb_test_fake_input(connection, type, keycode, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    };
    begun();
    auto next = std::chrono::steady_clock::now();
    for (;;) {
        for (const std::uint8_t keycode : keys) fake(XCB_KEY_PRESS, keycode);
        for (auto keycode = keys.rbegin(); keycode != keys.rend(); ++keycode) fake(XCB_KEY_RELEASE, *keycode);
        next += std::chrono::microseconds(100);
        std::this_thread::sleep_until(next);
    }
}

int play(const std::string& display, const std::string& folder, std::string_view how,
         const std::string& guard) {
    SteadyClock clock;
    const auto manager = x11::X11EventManager::open(clock, display);
    if (!manager) return 1;
    x11::X11KeyInjector injector(manager.value()->runWatch(), clock,
                                 {.display = display, .guard = guard, .runtimeFolder = folder});
    playing = &injector;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) std::signal(number, handle);
    const auto started = injector.start();
    if (how == "runs") playRuns(injector);
    const auto session = injector.open({});
    if (!started || !session) return 1;
    if (how == "strokes") playStrokes(*session.value());
    if (how == "switches") playSwitches(*session.value());
    if (how == "text") playText(*session.value());
    if (how == "hold") hold(*session.value());
    return 0;
}

}  // namespace

int main(int count, char** values) {
    const std::span arguments(values, static_cast<std::size_t>(count));
    if (arguments.size() != 4 && arguments.size() != 5) return 2;
    if (std::string_view(arguments[3]) == "careless") playCarelessly(arguments[1]);
    return play(arguments[1], arguments[2], arguments[3],
                arguments.size() == 5 ? arguments[4] : KEYRILL_GUARD);
}
