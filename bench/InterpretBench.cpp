// SPDX-License-Identifier: MIT
//
// What running costs: simple statements in a loop, and how long a loop without a pause takes to hear that the
// user wants to stop.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <string>
#include <utility>
#include <variant>

#include "Table.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"

namespace {

using Clock = std::chrono::steady_clock;

/// Presses nothing, and remembers the longest time in which nobody asked whether to stop.
class ListeningInjector : public KeyInjector {
  public:
    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& /*plan*/) override {
        return Error{"There is no keyboard here.", ""};
    }
    void startPlayback() override {}
    bool isCancelled() override {
        const Clock::time_point now = Clock::now();
        m_longest = std::max(m_longest, now - std::exchange(m_last, now));
        return false;
    }
    double longestMilliseconds() const {
        return std::chrono::duration<double, std::milli>(m_longest).count();
    }

  private:
    Clock::time_point m_last = Clock::now();
    Clock::duration m_longest{};
};

struct Loop {
    const char* name;
    const char* before;
    const char* body;
};

constexpr std::array<Loop, 9> loops{{
    {"set x to x + 1", "set x to 0", "set x to x + 1"},
    {"set x to 2.5 * y", "set y to 3", "set x to 2.5 * y"},
    {"if x = 1 then", "set x to 0", "if x = 1 then set x to 2"},
    {"set t to \"row \" & i", "", "set t to \"row \" & i"},
    {"compare two texts", "set t to \"abcdef\"", "t = \"ABCDEG\""},
    {"item i of a list", "set l to {1, 2, 3, 4}", "set x to item 3 of l"},
    {"call of a handler", "", "my f(i)"},
    {"property of a record", "set r to {a:1, b:2}", "set x to b of r"},
    {"try and its end", "", "try\nset x to 1\nend try"},
}};

std::string scriptOf(const Loop& loop, int rounds) {
    return std::string("on f(a)\nreturn a\nend f\non run\n") + loop.before + "\nrepeat with i from 1 to " +
           std::to_string(rounds) + "\n" + loop.body + "\nend repeat\nend run\n";
}

/// Nanoseconds a round, and the longest silence in milliseconds.
std::pair<double, double> measured(const Loop& loop) {
    constexpr int rounds = 1000000;
    const auto program = script::compile(scriptOf(loop, rounds));
    if (!program) std::abort();
    ListeningInjector injector;
    script::SilentDesktop desktop;
    script::NoDialogs dialogs;
    const Clock::time_point begin = Clock::now();
    const script::RunResult result = script::run(program.value(), {injector, desktop, dialogs});
    if (result.end != script::RunEnd::finished) std::abort();
    const double nanoseconds = std::chrono::duration<double, std::nano>(Clock::now() - begin).count();
    return {nanoseconds / rounds, injector.longestMilliseconds()};
}

}  // namespace

int main() {
    constexpr double allowedNanoseconds = 1000;
    constexpr double allowedSilence = 500;
    double longestSilence = 0;
    for (const Loop& loop : loops) {
        const auto [nanoseconds, silence] = measured(loop);
        printRow({std::string("run, ") + loop.name, nanoseconds, "allowed", allowedNanoseconds, "ns",
                  "ratio <= 1"});
        longestSilence = std::max(longestSilence, silence);
    }
    printRow({"run, longest deafness of these loops", longestSilence, "allowed", allowedSilence, "ms",
              "ratio <= 1"});
}
