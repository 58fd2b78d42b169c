// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/Result.h"

struct SessionKind;

/// What the program was started with.
struct CommandLine {
    enum class Wish {
        start,
        help,     ///< print how the program is called, and end
        version,  ///< print the version, and end
        check,    ///< print what works in this session, and end
        list,     ///< print the names of the macros in the macro folder, and end
        play,     ///< ask the running program to play a macro
        show,     ///< ask the running program to show the macros
    };
    Wish wish = Wish::start;
    /// The kind of session, empty to find out.
    std::string session = {};
    /// What the running program is asked to do (app/tray/Actions.h), as it was written.
    std::optional<std::string> action = {};
    /// Which hot key of the running program is pressed, if it has one of that name; what else is asked for is
    /// done only if it has not.
    std::optional<std::string> hotKey = {};
    /// How often and how fast to play, as it was written.
    std::optional<std::string> times = {};
    std::optional<std::string> speed = {};
    /// As they were given, in the file system's encoding; of a play or a show the names of macros, too.
    std::vector<std::string> files = {};
    /// Options that ask for something else than the one before, in order.
    std::vector<std::string> others = {};
    /// Options that are none of ours, in order. Some are the toolkit's, which takes them out when it starts.
    std::vector<std::string> unknown = {};

    friend bool operator==(const CommandLine&, const CommandLine&) = default;
};

/// Reads the arguments behind the program's name. Behind `--` a file may begin with a minus; a minus alone is
/// a file.
CommandLine readCommandLine(const std::vector<std::string>& arguments);

/// Success if all options are known and one thing is asked for; else the error names the first one that is
/// too much.
Result<void> checkOptions(const CommandLine& line);

/// The same where there is no toolkit to take its options out: those with one minus are passed over.
Result<void> checkOwnOptions(CommandLine line);

/// Success if what is asked of the running program is an action, and nothing else is asked for.
Result<void> checkAction(const CommandLine& line);

/// Success if what is asked of the macros by a play, a show or a list is well formed, but for the numbers.
Result<void> checkMacroCall(const CommandLine& line);

/// How the program is called, lines with their ends.
std::string usage(std::span<const SessionKind> kinds);
