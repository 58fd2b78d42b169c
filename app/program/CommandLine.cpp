// SPDX-License-Identifier: MIT
#include "app/program/CommandLine.h"

#include <string_view>

#include "app/tray/Actions.h"
#include "platform/sessions/Sessions.h"

namespace {

constexpr std::string_view sessionOption = "--session=";
constexpr std::string_view actionOption = "--action=";

void takeOption(CommandLine& line, const std::string& option) {
    if (option == "--help") {
        line.wish = CommandLine::Wish::help;
    } else if (option == "--version") {
        line.wish = CommandLine::Wish::version;
    } else if (option == "--check") {
        line.wish = CommandLine::Wish::check;
    } else if (option.starts_with(sessionOption) && option.size() > sessionOption.size()) {
        line.session = option.substr(sessionOption.size());
    } else if (option.starts_with(actionOption)) {
        line.action = option.substr(actionOption.size());
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
        } else if (argument == "--action") {
            line.action = i + 1 < arguments.size() ? arguments[++i] : "";
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

Result<void> checkAction(const CommandLine& line) {
    if (actionNamed(*line.action) == nullptr) {
        return Error{"There is no action \"" + *line.action + "\".",
                     "Choose one of these: " + actionNames() + "."};
    }
    if (!line.files.empty()) {
        return Error{"An action takes no file, and \"" + line.files.front() + "\" was given.",
                     "Load it first: keyrill FILE."};
    }
    return {};
}

std::string usage(std::span<const SessionKind> kinds) {
    std::string text =
        "Usage: keyrill [--session=NAME] [--] [FILE...]   start, or load macros into the one that runs\n"
        "       keyrill [--session=NAME] --action=ACTION   ask the one that runs to act; starts it if need "
        "be\n"
        "       keyrill [--session=NAME] --check   print what works in this session, and what to do\n"
        "       keyrill --help | --version\n"
        "ACTION is one of these: " +
        actionNames() +
        ".\n"
        "NAME is the kind of desktop session; without it the program finds out itself. There are:";
    for (const SessionKind& kind : kinds) (text += ' ') += kind.name;
    return text + "\n";
}
