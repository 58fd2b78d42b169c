// SPDX-License-Identifier: MIT
//
// A person stops a macro that plays by the stop combination, pressed at a real keyboard with 90 ms from key
// to key: how long after the press of the last key, and of the first, the program that is typed into gets a
// stroke.
#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "Receiver.h"
#include "Table.h"
#include "desktop/Desktop.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Keys.h"

namespace {

using Clock = Receiver::Clock;

constexpr int rounds = 10;
constexpr Typist::Gap gap{90};
/// Between two strokes of the macro.
constexpr double pauseMilliseconds = 10;

constexpr const char* longMacro = R"(repeat 100000 times
tell application "System Events" to key code 0
delay 0.01
end repeat
)";

struct Stop {
    double afterFirstPress = 0;  ///< ms
    double afterLastPress = 0;   ///< ms; 0 if none came after it
};

double millisecondsUntil(Clock::time_point last, Clock::time_point press) {
    return std::max(0.0, std::chrono::duration<double, std::milli>(last - press).count());
}

void startPlay(const Typist& typist, Receiver& receiver) {
    constexpr std::size_t some = 30;
    receiver.clear();
    typist.stroke({xkey::control, xkey::super, xkey::p});
    if (!eventually([&] {
            typist.hold(std::chrono::milliseconds(5));
            return receiver.count(xkey::a) >= some;
        }))
        throw std::runtime_error("the macro is not played");
}

Stop stopOnce(const Typist& typist, Receiver& receiver) {
    startPlay(typist, receiver);
    const auto first = Clock::now();
    typist.press({xkey::control, xkey::super});
    const auto last = Clock::now();
    typist.press({xkey::s});
    typist.release({xkey::s, xkey::super, xkey::control});
    typist.hold(std::chrono::milliseconds(500));
    const auto strokes = receiver.presses(xkey::a);
    typist.hold(std::chrono::milliseconds(500));
    if (receiver.count(xkey::a) != strokes.size()) throw std::runtime_error("the macro goes on");
    if (receiver.count(xkey::s) != 0) throw std::runtime_error("the combination's letter has been typed");
    return {millisecondsUntil(strokes.back(), first), millisecondsUntil(strokes.back(), last)};
}

}  // namespace

int main() {
    const NestedServers servers;
    // One press is one key.
    outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
    const Desktop desktop(servers.display());
    Receiver receiver(servers.display());
    const Keyrill keyrill(desktop, longMacro);
    const Typist typist(servers, gap);
    Stop worst;
    for (int round = 0; round < rounds; ++round) {
        const Stop stop = stopOnce(typist, receiver);
        worst.afterFirstPress = std::max(worst.afterFirstPress, stop.afterFirstPress);
        worst.afterLastPress = std::max(worst.afterLastPress, stop.afterLastPress);
    }
    const std::string yardstick = "from stroke to stroke";
    printRow({"stop at 90 ms: last press to last stroke, worst of 10", worst.afterLastPress, yardstick,
              pauseMilliseconds, "ms", "ratio <= 1"});
    printRow({"stop at 90 ms: first press to last stroke, worst of 10", worst.afterFirstPress, yardstick,
              pauseMilliseconds, "ms", "ratio <= 1"});
}
