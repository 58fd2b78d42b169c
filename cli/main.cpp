// SPDX-License-Identifier: MIT
//
// keyrill-script: checks, traces, formats and plays scripts.
#include <algorithm>
#include <array>
#include <iostream>
#include <optional>
#include <string_view>
#include <vector>

#include "cli/Commands.h"
#include "cli/Keys.h"
#include "cli/Report.h"
#include "platform/script/commands/LanguageReference.h"

namespace {

struct Command {
    std::string_view name;
    int (*perform)(const ScriptInput& input);
};

constexpr auto commands = std::to_array<Command>(
    {{"check", checkScript}, {"run", runScript}, {"trace", traceScript}, {"format", formatScript}});

constexpr std::string_view usage =
    "Usage: keyrill-script check FILE   compile, and say what is wrong; with --json for editors\n"
    "       keyrill-script run FILE     press the keys\n"
    "       keyrill-script trace FILE   print what would be done, one JSON array a line\n"
    "       keyrill-script format FILE  print the script in one layout\n"
    "       keyrill-script keys         print the key codes; with --press that of the next key\n"
    "       keyrill-script reference    print the reference of the language\n"
    "       keyrill-script --help | --version\n"
    "FILE - is standard input; -e LINE, once or more, gives the script itself.\n";

/// Empty if the arguments are neither a file nor lines. Behind `--` a file may begin with a minus.
std::optional<ScriptInput> inputOf(const std::vector<std::string_view>& arguments) {
    ScriptInput input;
    const bool endsOptions = arguments.size() == 2 && arguments.front() == "--";
    const bool isFile =
        arguments.size() == 1 && (arguments.front().substr(0, 1) != "-" || arguments.front() == "-");
    if (endsOptions || isFile) {
        input.file = arguments.back();
        return input;
    }
    for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
        if (arguments[i] != "-e") return std::nullopt;
        input.lines.emplace_back(arguments[i + 1]);
    }
    if (input.lines.empty() || arguments.size() % 2 != 0) return std::nullopt;
    return input;
}

int perform(const std::vector<std::string_view>& arguments) {
    const std::string_view first = arguments.empty() ? "" : arguments.front();
    const bool asksHelp = arguments.size() == 2 && arguments.back() == "--help";
    if (asksHelp || (arguments.size() == 1 && first == "--help")) {
        std::cout << usage;
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
        const bool wantsJson = first == "check" && arguments.size() > 1 && arguments[1] == "--json";
        auto input = inputOf({arguments.begin() + (wantsJson ? 2 : 1), arguments.end()});
        if (input) {
            input->wantsJson = wantsJson;
            return command->perform(*input);
        }
    }
    std::cerr << usage;
    return 1;
}

}  // namespace

int main(int count, char** values) {
    std::ios::sync_with_stdio(false);
    const int status = perform({values + std::min(count, 1), values + count});
    if (std::cout.flush()) return status;
    reportError("", Error{"Standard output cannot be written.", ""});
    return 1;
}
