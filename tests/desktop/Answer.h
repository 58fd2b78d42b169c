// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "desktop/Desktop.h"

/// How a command has ended.
struct Answer {
    int status = -1;
    /// On standard output and error.
    std::string output;

    friend bool operator==(const Answer&, const Answer&) = default;
};

inline std::ostream& operator<<(std::ostream& out, const Answer& answer) {
    return out << answer.status << ": " << answer.output;
}

/// Of one that is run in the desktop.
inline Answer answerOf(const Desktop& desktop, const std::vector<std::string>& command) {
    const TemporaryFolder folder;
    Child::Options options = desktop.options("answer");
    options.outputFile = folder.file("answer");
    Child child(command, options);
    const int status = child.wait();
    return {status, contentOf(options.outputFile)};
}

/// Of a call of a method of Keyrill's by a program that is none of ours: the method, then its arguments.
inline Answer callOnTheBus(const Desktop& desktop, const std::vector<std::string>& methodAndArguments) {
    std::vector<std::string> command = {"gdbus",
                                        "call",
                                        "--session",
                                        "--dest",
                                        "example.orlen.Keyrill",
                                        "--object-path",
                                        "/example/orlen/Keyrill",
                                        "--method"};
    command.insert(command.end(), methodAndArguments.begin(), methodAndArguments.end());
    return answerOf(desktop, command);
}

inline const Answer done{0, ""};
