// SPDX-License-Identifier: MIT
//
// How true a row of strokes and pauses keeps its time: ours and xdotool's beside what the pauses add up to.
#include <string>
#include <vector>

#include "Player.h"
#include "Table.h"
#include "support/Keys.h"
#include "support/XServer.h"

namespace {

constexpr int strokes = 1000;
constexpr double pauseSeconds = 0.01;

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

double secondsOfXdotool(const std::string& display) {
    std::vector<std::string> command = {"xdotool", "key", "--delay", "10"};
    command.insert(command.end(), strokes, "a");
    return secondsOf([&] { outputOf(command, {{"DISPLAY", display}}); });
}

}  // namespace

int main() {
    const XServer server;
    constexpr double ideal = strokes * pauseSeconds;
    const double ours = secondsOfOurs(server.display());
    const double theirs = secondsOfXdotool(server.display());
    printRow({"1000 strokes at 10 ms", ours, "ideal", ideal, "s", "ratio <= 1.001"});
    printRow({"1000 strokes at 10 ms", ours, "xdotool key --delay 10", theirs, "s", "ratio < 1"});
}
