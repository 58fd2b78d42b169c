// SPDX-License-Identifier: MIT
#include "cli/TerminalDialogs.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string menuOf(const ScriptDialog& dialog) {
    std::string menu;
    for (std::size_t i = 0; i < dialog.buttons.size(); ++i) {
        menu += (menu.empty() ? "" : "   ") + std::to_string(i + 1) + " " + dialog.buttons[i];
        if (dialog.defaultButton == i) menu += " (Return)";
    }
    return menu;
}

/// Empty if the line names no button.
std::optional<std::size_t> buttonOf(const ScriptDialog& dialog, const std::string& line) {
    if (line.empty()) return dialog.defaultButton;
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    const bool isNumber = error == std::errc() && end == line.data() + line.size();
    if (isNumber && number >= 1 && number <= dialog.buttons.size()) return number - 1;
    const auto named = std::find(dialog.buttons.begin(), dialog.buttons.end(), line);
    if (named == dialog.buttons.end()) return std::nullopt;
    return static_cast<std::size_t>(named - dialog.buttons.begin());
}

/// The numbers of a line, as indices in their order; empty if one is none of the choices.
std::optional<std::vector<std::size_t>> choicesOf(const ScriptDialog& dialog, const std::string& line) {
    std::set<std::size_t> places;
    std::istringstream numbers(line);
    for (std::string word; numbers >> word;) {
        std::size_t number = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
        const bool isNumber = error == std::errc() && end == word.data() + word.size();
        if (!isNumber || number < 1 || number > dialog.choices.size()) return std::nullopt;
        places.insert(number - 1);
    }
    return std::vector<std::size_t>(places.begin(), places.end());
}

}  // namespace

/// Two streams: one for both directions cannot write any more once it has read.
struct TerminalDialogs::Terminal {
    std::ifstream in{"/dev/tty"};
    std::ofstream out{"/dev/tty"};

    /// False at the end of input.
    bool takeLine(std::string& line) {
        out.flush();
        return static_cast<bool>(std::getline(in, line));
    }
};

Result<ScriptAnswer> TerminalDialogs::ask(const ScriptDialog& dialog) {
    Terminal terminal;
    if (!terminal.in || !terminal.out)
        return Error{"No dialog can be shown here.", "Run the script in a terminal."};
    m_injector.rest();
    if (!dialog.title.empty()) terminal.out << dialog.title << "\n";
    terminal.out << dialog.text << "\n";
    if (!dialog.message.empty()) terminal.out << dialog.message << "\n";
    if (!dialog.choices.empty()) return choose(dialog, terminal);
    ScriptAnswer answer;
    std::string line;
    if (dialog.defaultAnswer) {
        terminal.out << "[" << *dialog.defaultAnswer << "] ";
        terminal.takeLine(line);
        answer.text = line.empty() ? *dialog.defaultAnswer : line;
    }
    while (!answer.button) {
        terminal.out << menuOf(dialog) << "\n> ";
        if (!terminal.takeLine(line)) {
            answer.button = dialog.cancelButton.value_or(dialog.buttons.size() - 1);
            break;
        }
        answer.button = buttonOf(dialog, line);
    }
    return answer;
}

/// Until the line names as many as may be chosen. An empty line takes what is chosen already.
ScriptAnswer TerminalDialogs::choose(const ScriptDialog& dialog, Terminal& terminal) {
    ScriptAnswer answer{dialog.defaultButton, "", {}};
    for (std::size_t i = 0; i < dialog.choices.size(); ++i) {
        const bool isChosen = std::count(dialog.defaultChoices.begin(), dialog.defaultChoices.end(), i) > 0;
        terminal.out << i + 1 << (isChosen ? " * " : "   ") << dialog.choices[i] << "\n";
    }
    for (;;) {
        terminal.out << "0 " << dialog.buttons.front() << "\n> ";
        std::string line;
        if (!terminal.takeLine(line) || line == "0") {
            answer.button = dialog.cancelButton;
            return answer;
        }
        const auto chosen = line.empty() ? std::optional(dialog.defaultChoices) : choicesOf(dialog, line);
        const bool fits =
            chosen && (dialog.allowsNone || !chosen->empty()) && (dialog.allowsSeveral || chosen->size() < 2);
        if (!fits) continue;
        answer.chosen = *chosen;
        return answer;
    }
}

Result<void> TerminalDialogs::notify(const ScriptNotification& notification) {
    std::ofstream terminal("/dev/tty");
    if (terminal) {
        terminal << notification.title << (notification.title.empty() ? "" : ": ") << notification.text
                 << "\n";
    }
    return {};
}
