// SPDX-License-Identifier: MIT
//
// How true a row of strokes and pauses keeps its time: ours and xdotool's beside what the pauses add up to.
// And how fast a row of strokes is without them.
#include <string>
#include <vector>

#include "Player.h"
#include "Table.h"
#include "support/Keys.h"
#include "support/XServer.h"

namespace {

constexpr int strokes = 1000;
constexpr double pauseSeconds = 0.01;
constexpr int strokesWithoutPause = 2000;

double secondsOfOurs(const std::string& display) {
    Player player(display);
    const auto session = player.run();
    // The first stroke takes the keyboard over and starts the guard; the pace begins after it.
    expectGoing(session->stroke(key::a, 0));
    return secondsOf([&] {
        for (int stroke = 0; stroke < strokes; ++stroke) {
            expectGoing(session->stroke(key::a, 0));
            expectGoing(session->pause(pauseSeconds));
        }
    });
}

double secondsOfXdotool(const std::string& display, const std::string& delay, int count) {
    std::vector<std::string> command = {"xdotool", "key", "--delay", delay};
    command.insert(command.end(), static_cast<std::size_t>(count), "a");
    return secondsOf([&] { outputOf(command, {{"DISPLAY", display}}); });
}

double secondsWithoutPause(const std::string& display) {
    Player player(display);
    const auto session = player.run();
    expectGoing(session->stroke(key::a, 0));
    return secondsOf([&] {
        for (int stroke = 0; stroke < strokesWithoutPause; ++stroke) {
            expectGoing(session->stroke(key::a, 0));
        }
    });
}

}  // namespace

int main() {
    const XServer server;
    constexpr double ideal = strokes * pauseSeconds;
    const double ours = secondsOfOurs(server.display());
    const double theirs = secondsOfXdotool(server.display(), "10", strokes);
    printRow({"1000 strokes at 10 ms", ours, "ideal", ideal, "s", "ratio <= 1.001"});
    printRow({"1000 strokes at 10 ms", ours, "xdotool key --delay 10", theirs, "s", "ratio < 1"});
    printRow({"2000 strokes without a pause", secondsWithoutPause(server.display()), "xdotool key --delay 0",
              secondsOfXdotool(server.display(), "0", strokesWithoutPause), "s", "ratio < 1"});
}
