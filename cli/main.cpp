// SPDX-License-Identifier: MIT
//
// keyrill-script: checks, traces, formats and plays scripts.
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>
#include <vector>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Keys.h"
#include "cli/Report.h"
#include "languages/SpokenSentences.h"
#include "platform/Sentence.h"
#include "platform/linux/StandardStreams.h"
#include "platform/script/commands/LanguageReference.h"

namespace {

struct Command {
    std::string_view name;
    int (*perform)(const ScriptInput& input);
};

constexpr auto commands = std::to_array<Command>(
    {{"check", checkScript}, {"run", runScript}, {"trace", traceScript}, {"format", formatScript}});

std::string usage() {
    return sentence(
        "ScriptTool",
        "Usage: keyrill-script check FILE   compile, and say what is wrong; with --json for editors\n"
        "       keyrill-script run [--times N] [--speed X] FILE\n"
        "                                   press the keys, so often (or until-stopped), its pauses divided "
        "by "
        "X\n"
        "       keyrill-script trace FILE   print what would be done, one JSON array a line\n"
        "       keyrill-script format FILE  print the script in one layout\n"
        "       keyrill-script keys         print the key codes; with --press that of the next key\n"
        "       keyrill-script reference    print the reference of the language\n"
        "       keyrill-script -h | --help | --version\n"
        "FILE - is standard input; -e LINE, once or more, gives the script itself.\n");
}

bool asksHelp(std::string_view argument) { return argument == "--help" || argument == "-h"; }

int perform(const std::vector<std::string_view>& arguments) {
    const std::string_view first = arguments.empty() ? "" : arguments.front();
    // Alone, or behind a command.
    if (!arguments.empty() && arguments.size() <= 2 && asksHelp(arguments.back())) {
        std::cout << usage();
        return 0;
    }
    if (arguments.size() == 1 && first == "reference") {
        std::cout << script::languageReference();
        return 0;
    }
    if (first == "keys" && arguments.size() == 1) return printKeys();
    if (first == "keys" && arguments.size() == 2 && arguments.back() == "--press") return printPressedKey();
    if (arguments.size() == 1 && first == "--version") {
        std::cout << "keyrill-script " KEYRILL_VERSION "\n";
        return 0;
    }
    const auto* command = std::find_if(commands.begin(), commands.end(),
                                       [&](const Command& candidate) { return candidate.name == first; });
    if (command != commands.end()) {
        const auto input = readInput(first, {arguments.begin() + 1, arguments.end()});
        if (!input) {
            reportError("", input.error());
            return 1;
        }
        if (input.value()) return command->perform(*input.value());
    }
    const bool isCommand = command != commands.end() || first == "keys" || first == "reference";
    if (!isCommand && !first.empty() && first.front() != '-') {
        reportError("", Error{sentence("ScriptTool", "There is no command “%1”.").arg(first), ""});
    }
    std::cerr << usage();
    return 1;
}

}  // namespace

int main(int count, char** values) {
    occupyStandardStreams();
    std::ios::sync_with_stdio(false);
    const SpokenSentences sentences;
    const int status = perform({values + std::min(count, 1), values + count});
    if (std::cout.flush()) return status;
    reportError("", Error{sentence("ScriptTool", "Standard output cannot be written."), ""});
    return 1;
}
