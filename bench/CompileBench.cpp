// SPDX-License-Identifier: MIT
//
// What compiling costs: a recorded macro of 1 MB, and the eight lines of a small one, which every run
// compiles afresh.
#include <time.h>

#include <algorithm>
#include <cstdlib>

#include <string>
#include <variant>

#include "Table.h"
#include "platform/script/Compiler.h"

namespace {

constexpr int rounds = 30;

/// A macro of the form in which they are recorded, at least so many bytes long.
std::string macro(std::size_t size) {
    std::string text = "tell application \"System Events\"\n";
    for (int key = 0; text.size() < size; key = (key + 1) % 128) {
        text +=
            "\tkey code (" + std::to_string(key) + ") using {" + (key % 4 == 0 ? "shift down" : "") + "}\n";
        text += "delay 0.01\n";
    }
    return text + "end tell\n";
}

/// Processor time, which other programs do not lengthen.
double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The fastest of some rounds: what disturbs a measurement only ever adds to it.
double milliseconds(const std::string& source) {
    double fastest = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const double begin = processorMilliseconds();
        const auto compiled = script::compile(source);
        const double elapsed = processorMilliseconds() - begin;
        if (!std::holds_alternative<script::Program>(compiled)) std::abort();
        fastest = std::min(fastest, elapsed);
    }
    return fastest;
}

}  // namespace

int main() {
    constexpr std::size_t megabyte = 1000000;
    constexpr double allowedForMegabyte = 20;
    constexpr double allowedForSmall = 0.05;
    printRow({"compile, macro of 1 MB", milliseconds(macro(megabyte)), "allowed", allowedForMegabyte, "ms",
              "ratio <= 1"});
    printRow({"compile, macro of 4 keys", milliseconds(macro(100)), "allowed", allowedForSmall, "ms",
              "ratio <= 1"});
}
