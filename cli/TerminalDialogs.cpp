// SPDX-License-Identifier: MIT
#include "cli/TerminalDialogs.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string>

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

}  // namespace

Result<ScriptAnswer> TerminalDialogs::ask(const ScriptDialog& dialog) {
    std::fstream terminal("/dev/tty");
    if (!terminal) return Error{"No dialog can be shown here.", "Run the script in a terminal."};
    m_injector.rest();
    if (!dialog.title.empty()) terminal << dialog.title << "\n";
    terminal << dialog.text << "\n";
    if (!dialog.message.empty()) terminal << dialog.message << "\n";
    ScriptAnswer answer;
    std::string line;
    if (dialog.defaultAnswer) {
        terminal << "[" << *dialog.defaultAnswer << "] " << std::flush;
        std::getline(terminal, line);
        answer.text = line.empty() ? *dialog.defaultAnswer : line;
    }
    while (!answer.button) {
        terminal << menuOf(dialog) << "\n> " << std::flush;
        if (!std::getline(terminal, line)) {
            answer.button = dialog.cancelButton.value_or(dialog.buttons.size() - 1);
            break;
        }
        answer.button = buttonOf(dialog, line);
    }
    return answer;
}

Result<void> TerminalDialogs::notify(const ScriptNotification& notification) {
    std::fstream terminal("/dev/tty");
    if (terminal) {
        terminal << notification.title << (notification.title.empty() ? "" : ": ") << notification.text
                 << "\n";
    }
    return {};
}
