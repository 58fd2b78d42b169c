// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <array>
#include <string>

#include "platform/Sentence.h"

namespace {

/// What has been read of the words so far.
struct Reading {
    std::string_view command;
    ScriptInput input;
    std::vector<std::string_view> files;
    bool endsOptions = false;
};

Result<void> takeLine(Reading& reading, std::string_view line) {
    reading.input.lines.emplace_back(line);
    return {};
}

Result<void> takeTimes(Reading& reading, std::string_view value) {
    const auto times = playTimesFromText(value);
    if (!times) {
        return Error{sentence("ScriptTool", "--times %1 is not how often a script can be played.").arg(value),
                     sentence("ScriptTool", "It is a whole number from 1 on, or until-stopped.")};
    }
    if (!times->count && reading.command == "trace") {
        return Error{sentence("ScriptTool", "Nobody can stop a trace."),
                     sentence("ScriptTool", "Give --times a number.")};
    }
    reading.input.play.times = *times;
    return {};
}

Result<void> takeSpeed(Reading& reading, std::string_view value) {
    const auto speed = playSpeedFromText(value);
    if (!speed) {
        return Error{sentence("ScriptTool", "--speed %1 is not how fast a script can be played.").arg(value),
                     sentence("ScriptTool", "It is a number from 0.25 to 4.")};
    }
    reading.input.play.speed = *speed;
    return {};
}

struct Option {
    std::string_view name;
    /// The commands that have it, with a blank behind each; all if there are none.
    std::string_view commands;
    Result<void> (*take)(Reading& reading, std::string_view value) = nullptr;
};

constexpr std::array<Option, 3> options = {
    {{"-e", "", takeLine}, {"--times", "run trace ", takeTimes}, {"--speed", "run trace ", takeSpeed}}};

bool isOf(const Option& option, std::string_view command) {
    return option.commands.empty() ||
           option.commands.find(std::string(command) + " ") != std::string_view::npos;
}

/// The option that stands there, whose value is behind it or behind its sign.
const Option* optionAt(std::string_view word, std::string_view command) {
    for (const Option& option : options) {
        const bool hasValue =
            option.name.starts_with("--") && word.starts_with(std::string(option.name) + "=");
        if ((word == option.name || hasValue) && isOf(option, command)) return &option;
    }
    return nullptr;
}

bool isFile(const Reading& reading, std::string_view word) {
    return reading.endsOptions || word.empty() || word.front() != '-' || word == "-";
}

}  // namespace

Result<std::optional<ScriptInput>> readInput(std::string_view command,
                                             const std::vector<std::string_view>& words) {
    const std::optional<ScriptInput> isCalledOtherwise;
    Reading reading{.command = command, .input = {}, .files = {}};
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (isFile(reading, word)) {
            reading.files.push_back(word);
        } else if (word == "--") {
            reading.endsOptions = true;
        } else if (word == "--json" && command == "check") {
            reading.input.wantsJson = true;
        } else if (const Option* option = optionAt(word, command)) {
            const bool isJoined = word.size() > option->name.size();
            if (!isJoined && ++i == words.size()) return isCalledOtherwise;
            const auto taken =
                option->take(reading, isJoined ? word.substr(option->name.size() + 1) : words[i]);
            if (!taken) return taken.error();
        } else {
            return Error{sentence("ScriptTool", "“%1” has no option “%2”.").arg(command).arg(word),
                         sentence("ScriptTool", "“keyrill-script --help” tells which there are.")};
        }
    }
    const bool isFileAlone = reading.files.size() == 1 && reading.input.lines.empty();
    const bool isLinesAlone = reading.files.empty() && !reading.input.lines.empty() && !reading.endsOptions;
    if (!isFileAlone && !isLinesAlone) return isCalledOtherwise;
    if (isFileAlone) reading.input.file = reading.files.front();
    return std::optional(reading.input);
}
