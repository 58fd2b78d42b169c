// SPDX-License-Identifier: MIT
//
// How long after the key went down a held Escape of a real keyboard has ended a script that would go on for
// ever.
#include <algorithm>
#include <stdexcept>

#include "Table.h"
#include "cli/Play.h"
#include "display/NestedServers.h"
#include "support/Keys.h"
#include "support/Terminal.h"

namespace {

constexpr int rounds = 10;
/// Escape counts when it has been held so long.
constexpr double held = 0.3;
constexpr double aim = 0.5;

double secondsToEnd(const std::string& script) {
    const NestedServers servers;
    const Terminal terminal(servers.display());
    Play play(servers.display(), script);
    if (!eventually([&] { return !terminal.typed().empty(); })) throw std::runtime_error(play.output());
    const auto pressed = std::chrono::steady_clock::now();
    servers.user().press(xkey::escape);
    const bool ended = eventually([&] {
        servers.finish();
        return !play.program().isRunning();
    });
    if (!ended) throw std::runtime_error("the script goes on");
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - pressed).count();
}

void measure(const char* what, const std::string& script) {
    double worst = 0;
    for (int i = 0; i < rounds; ++i) worst = std::max(worst, secondsToEnd(script) - held);
    printRow({what, worst, "aim", aim, "s", "ratio <= 1"});
}

}  // namespace

int main() {
    const std::string begin = "tell application \"System Events\" to keystroke \"a\"\n";
    measure("Escape ends an empty loop, worst of 10", begin + "repeat\nend repeat\n");
    measure("Escape ends a delay, worst of 10", begin + "delay 1000\n");
    measure("Escape ends a loop of strokes, worst of 10",
            "tell application \"System Events\"\nrepeat\nkeystroke \"a\"\nend repeat\nend tell\n");
}
