// SPDX-License-Identifier: MIT
#include "app/program/CommandLine.h"

#include <string_view>

#include "platform/sessions/Sessions.h"

namespace {

constexpr std::string_view sessionOption = "--session=";

void takeOption(CommandLine& line, const std::string& option) {
    if (option == "--help") {
        line.wish = CommandLine::Wish::help;
    } else if (option == "--version") {
        line.wish = CommandLine::Wish::version;
    } else if (option.starts_with(sessionOption) && option.size() > sessionOption.size()) {
        line.session = option.substr(sessionOption.size());
    } else {
        line.unknown.push_back(option);
    }
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    bool isBehindOptions = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (isBehindOptions || argument.size() < 2 || argument.front() != '-') {
            line.files.push_back(argument);
        } else if (argument == "--") {
            isBehindOptions = true;
        } else if (argument == "--session" && i + 1 < arguments.size()) {
            line.session = arguments[++i];
        } else {
            takeOption(line, argument);
        }
    }
    return line;
}

Result<void> checkOptions(const CommandLine& line) {
    if (line.unknown.empty()) return {};
    return Error{"There is no option \"" + line.unknown.front() + "\".", "keyrill --help lists them."};
}

Result<void> checkOwnOptions(CommandLine line) {
    std::erase_if(line.unknown, [](const std::string& option) { return !option.starts_with("--"); });
    return checkOptions(line);
}

std::string usage(std::span<const SessionKind> kinds) {
    std::string text =
        "Usage: keyrill [--session=NAME] [--] [FILE...]   start, or load macros into the one that runs\n"
        "       keyrill --help | --version\n"
        "NAME is the kind of desktop session; without it the program finds out itself. There are:";
    for (const SessionKind& kind : kinds) (text += ' ') += kind.name;
    return text + "\n";
}
