// SPDX-License-Identifier: MIT
//
// What compiling costs: a recorded macro, one written by hand, and scripts of one construct only that
// somebody might make to keep the compiler busy; each at four sizes, which shows whether the cost grows as
// the script does. Also the few lines of a small macro, which every run compiles afresh.
#include <time.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string>

#include "Table.h"
#include "platform/script/code/Compiler.h"

namespace {

constexpr std::size_t megabyte = 1000000;
constexpr std::array<double, 4> sizes{0.5, 1, 2, 4};

/// As many of them as fit into so many bytes.
std::string repeated(const std::string& piece, std::size_t size) {
    std::string text;
    while (text.size() < size) text += piece;
    return text;
}

/// A macro of the form in which they are recorded, at least so many bytes long.
std::string recorded(std::size_t size) {
    std::string text = "tell application \"System Events\"\n";
    for (int key = 0; text.size() < size; key = (key + 1) % 128) {
        text +=
            "\tkey code (" + std::to_string(key) + ") using {" + (key % 4 == 0 ? "shift down" : "") + "}\n";
        text += "delay 0.01\n";
    }
    return text + "end tell\n";
}

/// What people write: variables, loops, conditions, text, a handler of their own for each page of it.
std::string written(std::size_t size) {
    std::string text;
    for (int page = 0; text.size() < size; ++page) {
        const std::string name = "fillPage" + std::to_string(page);
        text += "-- one page of the form\non " + name +
                "(rowCount, greeting)\n\tset total to 0\n\trepeat with i from 1 to rowCount\n"
                "\t\tif i mod 2 = 0 and total < 100 then\n\t\t\tset total to total + i * 2\n"
                "\t\telse\n\t\t\tset end of finished to \"row \" & i\n\t\tend if\n"
                "\t\ttell application \"System Events\"\n\t\t\tkeystroke greeting & \", \" & (i as text)\n"
                "\t\t\tkey code 36 using {command down, shift down}\n\t\tend tell\n\t\tdelay 0.2\n"
                "\tend repeat\n\ttry\n\t\tset x to item 3 of finished\n"
                "\ton error message number n\n\t\tlog message\n\tend try\n\treturn total\nend " +
                name + "\n\n";
    }
    return text;
}

std::string nestedBlocks(std::size_t size) {
    constexpr std::size_t depth = 150;
    std::string heads;
    std::string ends;
    for (std::size_t i = 0; i < depth; ++i) heads += "if true then\n";
    for (std::size_t i = 0; i < depth; ++i) ends += "end if\n";
    return repeated(heads + "beep\n" + ends, size);
}

std::string nestedLists(std::size_t size) {
    constexpr std::size_t depth = 150;
    return repeated("set x to " + std::string(depth, '{') + "1" + std::string(depth, '}') + "\n", size);
}

std::string manyNames(std::size_t size) {
    std::string text;
    for (int i = 0; text.size() < size; ++i) text += "set name" + std::to_string(i) + " to 1\n";
    return text;
}

struct Kind {
    const char* name;
    std::function<std::string(std::size_t)> make;
};

const std::array<Kind, 11> kinds{{
    {"recorded", recorded},
    {"written by hand", written},
    {"blocks in blocks", nestedBlocks},
    {"lists in lists", nestedLists},
    {"a name a line", manyNames},
    {"one line of a sum", [](std::size_t size) { return "set x to 0" + repeated(" + 1", size); }},
    {"one line of coercions", [](std::size_t size) { return "set x to 0" + repeated(" as text", size); }},
    {"one line of members", [](std::size_t size) { return "set x to a" + repeated("'s b", size); }},
    {"a sum, each part continued", [](std::size_t size) { return "set x to 0" + repeated(" ¬\n+ 1", size); }},
    {"one comment", [](std::size_t size) { return "(*" + repeated(" text item", size) + "*)\nbeep\n"; }},
    {"closing parentheses, refused", [](std::size_t size) { return repeated(")", size); }},
}};

/// Processor time, which other programs do not lengthen.
double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The fastest of some rounds: what disturbs a measurement only ever adds to it.
double milliseconds(const std::string& source, int rounds) {
    double fastest = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const double begin = processorMilliseconds();
        const auto compiled = script::compile(source);
        fastest = std::min(fastest, processorMilliseconds() - begin);
    }
    return fastest;
}

void measure(const Kind& kind) {
    constexpr double allowedForMegabyte = 20;
    for (const double size : sizes) {
        const std::string source = kind.make(static_cast<std::size_t>(size * megabyte));
        std::array<char, 64> what{};
        std::snprintf(what.data(), what.size(), "compile %.1f MB, %s", size, kind.name);
        printRow({what.data(), milliseconds(source, size > 1 ? 3 : 7), "allowed", allowedForMegabyte * size,
                  "ms", "ratio <= 1"});
    }
}

}  // namespace

int main() {
    constexpr double allowedForSmall = 0.05;
    for (const Kind& kind : kinds) measure(kind);
    printRow({"compile, macro of 4 keys", milliseconds(recorded(100), 100), "allowed", allowedForSmall, "ms",
              "ratio <= 1"});
}
