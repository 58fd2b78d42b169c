// SPDX-License-Identifier: MIT
//
// keyrill-script: checks, traces and plays scripts.
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include "app/script/Commands.h"

namespace {

struct Command {
    std::string_view name;
    int (*perform)(const std::string& file);
};

constexpr auto commands =
    std::to_array<Command>({{"check", checkScript}, {"run", runScript}, {"trace", traceScript}});

constexpr std::string_view usage =
    "Usage: keyrill-script check FILE   compile, and say what is wrong\n"
    "       keyrill-script run FILE     press the keys\n"
    "       keyrill-script trace FILE   print what would be done, one JSON array a line\n"
    "       keyrill-script --help | --version\n"
    "FILE - is standard input.\n";

}  // namespace

int main(int count, char** values) {
    std::ios::sync_with_stdio(false);
    const std::string_view first = count > 1 ? values[1] : "";
    if (count == 2 && first == "--help") {
        std::cout << usage;
        return 0;
    }
    if (count == 2 && first == "--version") {
        std::cout << "keyrill-script " KEYRILL_VERSION "\n";
        return 0;
    }
    const auto* command = std::find_if(commands.begin(), commands.end(),
                                       [&](const Command& candidate) { return candidate.name == first; });
    if (count == 3 && command != commands.end()) return command->perform(values[2]);
    std::cerr << usage;
    return 1;
}
