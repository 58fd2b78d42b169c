// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "desktop/Desktop.h"
#include "support/Programs.h"

/// From now on assistive technology is told of the programs that are started. The session bus is started.
inline void letAssistantsIn(Desktop& desktop) {
    desktop.startBus().letIn("org.a11y.Bus");
    desktop.setEnvironment("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
}

/// What to run on the desktop (Desktop::run) so that the assistant does something with a program: the words
/// of assistant.cpp behind the number of the process.
inline std::vector<std::string> assistantCall(const Child& program, std::vector<std::string> words) {
    words.insert(words.begin(), {programs::assistant, std::to_string(program.pid())});
    return words;
}
