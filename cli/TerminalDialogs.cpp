// SPDX-License-Identifier: MIT
#include "cli/TerminalDialogs.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "cli/QuestionTerminal.h"
#include "platform/Sentence.h"

namespace {

std::string menuOf(const ScriptDialog& dialog) {
    std::string menu;
    for (std::size_t i = 0; i < dialog.buttons.size(); ++i) {
        menu += (menu.empty() ? "" : "   ") + std::to_string(i + 1) + " " + dialog.buttons[i];
        if (dialog.defaultButton == i) menu += " " + sentence("ScriptTool", "(Return)").text();
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

/// One question, until it is answered.
class TerminalDialogs::Question {
  public:
    Question(const ScriptDialog& dialog, QuestionTerminal& terminal, KeyInjector& injector)
        : m_dialog(dialog),
          m_terminal(terminal),
          m_patience({.isStopped = [&injector] { return injector.isCancelled(); }}) {
        constexpr double longest = 1e9;
        if (dialog.givingUpAfter <= 0) return;
        const std::chrono::duration<double> seconds(std::min(dialog.givingUpAfter, longest));
        m_patience.deadline = std::chrono::steady_clock::now() +
                              std::chrono::duration_cast<std::chrono::steady_clock::duration>(seconds);
    }

    /// Empty if nobody is going to answer.
    std::optional<ScriptAnswer> answer() {
        showTexts();
        if (!m_dialog.choices.empty()) return choice();
        if (m_dialog.defaultAnswer && !takeText()) return ended();
        std::string line;
        while (!m_answer.button) {
            m_terminal.write(menuOf(m_dialog) + "\n> ");
            if (!take(line)) return ended();
            m_answer.button = buttonOf(m_dialog, line);
        }
        return m_answer;
    }

  private:
    using Came = QuestionTerminal::Came;

    void showTexts() const {
        for (const std::string* text : {&m_dialog.title, &m_dialog.text, &m_dialog.message}) {
            if (!text->empty() || text == &m_dialog.text) m_terminal.write(*text + "\n");
        }
    }

    bool take(std::string& line) {
        m_came = m_terminal.takeLine(line, m_patience);
        return m_came == Came::line;
    }

    bool takeText() {
        m_answer.text = *m_dialog.defaultAnswer;
        std::string line;
        if (m_dialog.hidesAnswer) {
            m_came = m_terminal.takeHiddenLine("[] ", line, m_patience);
        } else {
            m_terminal.write("[" + m_answer.text + "] ");
            take(line);
        }
        if (!line.empty()) m_answer.text = line;
        return m_came == Came::line;
    }

    /// Without a line.
    std::optional<ScriptAnswer> ended() {
        if (m_came != Came::line) m_terminal.write("\n");
        if (m_came == Came::deadline) return m_answer;
        if (m_came == Came::stop || !m_dialog.cancelButton) return std::nullopt;
        m_answer.button = m_dialog.cancelButton;
        return m_answer;
    }

    /// Until the line names as many as may be chosen. An empty line takes what is chosen already.
    std::optional<ScriptAnswer> choice() {
        for (std::size_t i = 0; i < m_dialog.choices.size(); ++i) {
            const auto& chosen = m_dialog.defaultChoices;
            const bool isChosen = std::find(chosen.begin(), chosen.end(), i) != chosen.end();
            m_terminal.write(std::to_string(i + 1) + (isChosen ? " * " : "   ") + m_dialog.choices[i] + "\n");
        }
        for (;;) {
            m_terminal.write("0 " + m_dialog.buttons.front() + "\n> ");
            std::string line;
            if (!take(line)) return ended();
            if (line == "0") return ScriptAnswer{.button = m_dialog.cancelButton, .text = ""};
            const auto chosen =
                line.empty() ? std::optional(m_dialog.defaultChoices) : choicesOf(m_dialog, line);
            const bool fits = chosen && (m_dialog.allowsNone || !chosen->empty()) &&
                              (m_dialog.allowsSeveral || chosen->size() < 2);
            if (fits) return ScriptAnswer{m_dialog.defaultButton, "", *chosen};
        }
    }

    const ScriptDialog& m_dialog;
    QuestionTerminal& m_terminal;
    QuestionTerminal::Patience m_patience;
    ScriptAnswer m_answer;
    Came m_came = Came::line;
};

Result<ScriptAnswer> TerminalDialogs::ask(const ScriptDialog& dialog) {
    QuestionTerminal terminal;
    if (!terminal)
        return Error{sentence("ScriptTool", "No dialog can be shown here."),
                     sentence("ScriptTool", "Run the script in a terminal.")};
    m_injector.rest();
    std::optional<ScriptAnswer> answer = Question(dialog, terminal, m_injector).answer();
    if (answer) return *std::move(answer);
    m_injector.stopPlayback();
    return Error{sentence("ScriptTool", "The question was not answered."), ""};
}

Result<void> TerminalDialogs::notify(const ScriptNotification& notification) {
    const QuestionTerminal terminal;
    std::string line = notification.title;
    for (const std::string* text : {&notification.subtitle, &notification.text}) {
        if (!text->empty()) line += (line.empty() ? "" : ": ") + *text;
    }
    if (terminal) terminal.write(line + "\n");
    return {};
}
