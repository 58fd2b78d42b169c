// SPDX-License-Identifier: MIT
//
// Recipes of the language reference, taken from its page as a reader takes them, in the windows of real
// programs.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <string>

#include "cli/Play.h"
#include "support/Editor.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

/// The lines that are indented below a heading of the page.
std::string recipe(const std::string& title) {
    std::ifstream page(LANGUAGE_REFERENCE);
    std::string script;
    bool isBelow = false;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("#")) isBelow = line == "### " + title;
        if (isBelow && line.starts_with("    ")) script += line.substr(4) + "\n";
    }
    return script;
}

struct Row {
    const char* name;
    const char* title;
    std::function<std::string()> typed;
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

std::string today() {
    std::string day = outputOf({"date", "+%Y-%m-%d"});
    day.erase(day.find_last_not_of('\n') + 1);
    return day;
}

class CookbookTest : public testing::TestWithParam<Row> {
  protected:
    const std::string& display() const { return m_server.display(); }

    void play(const std::string& more = "") const {
        Play play(display(), recipe(GetParam().title) + more);
        EXPECT_EQ(play.program().wait(), 0);
        EXPECT_EQ(play.output(), "");
    }

    void expectTyped(Editor::Toolkit toolkit) const {
        const Editor editor(display(), toolkit);
        play("tell application \"System Events\" to keystroke \"s\" using control down\n");
        const std::string typed = GetParam().typed();
        EXPECT_EQ(editor.saved(typed), typed);
    }

  private:
    XServer m_server;
};

TEST_P(CookbookTest, typesIntoAGtkProgram) { expectTyped(Editor::Toolkit::gtk); }

TEST_P(CookbookTest, typesIntoAQtProgram) { expectTyped(Editor::Toolkit::qt); }

TEST_P(CookbookTest, typesIntoATerminal) {
    const Terminal terminal(display());
    play();
    const std::string typed = GetParam().typed();
    EXPECT_EQ(terminal.typed(typed.size()), typed);
}

INSTANTIATE_TEST_SUITE_P(
    Recipes, CookbookTest,
    testing::Values(Row{"greeting", "A greeting, line by line",
                        [] { return std::string("Dear Sir or Madam,\n\nthank you for your letter."); }},
                    Row{"date", "Today's date", today},
                    Row{"numbers", "Numbers with leading zeros",
                        [] { return std::string("Page 009\nPage 010\n"); }}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
