// SPDX-License-Identifier: MIT
//
// Recipes of the language reference in the windows of real programs.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "cli/Play.h"
#include "support/Editor.h"
#include "support/Form.h"
#include "support/Recipe.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

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

std::string greeting() { return "Dear Sir or Madam,\n\nthank you for your letter."; }
std::string pages() { return "Page 009\nPage 010\n"; }

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

INSTANTIATE_TEST_SUITE_P(Recipes, CookbookTest,
                         testing::Values(Row{"greeting", "A greeting, line by line", greeting},
                                         Row{"date", "Today's date", today},
                                         Row{"numbers", "Numbers with leading zeros", pages}),
                         [](const auto& row) { return std::string(row.param.name); });

/// What a recipe makes of a part of a form.
struct FormRow {
    const char* name;
    const char* title;
    /// What is typed before, inside `tell`.
    const char* before;
    const char* part;
    std::function<std::string()> content;
};

std::ostream& operator<<(std::ostream& out, const FormRow& row) { return out << row.name; }

class FormRecipeTest : public testing::TestWithParam<std::tuple<Form::Toolkit, FormRow>> {};

TEST_P(FormRecipeTest, fillsTheField) {
    const XServer server;
    const auto& [toolkit, row] = GetParam();
    const Form form(server.display(), toolkit);
    Play play(server.display(), "tell application \"System Events\"\n" + std::string(row.before) +
                                    "\nend tell\n" + recipe(row.title));
    EXPECT_EQ(play.program().wait(), 0);
    EXPECT_EQ(play.output(), "");
    EXPECT_EQ(form.content(row.part, row.content()), row.content());
    EXPECT_EQ(form.content("pressed"), "");
}

std::string ann() { return "Ann"; }
std::string bob() { return "Bob"; }
std::string number() { return "12345"; }
std::string quoted() { return "\"word\""; }

constexpr const char* toText = "key code {48, 48, 48, 48, 48}";

INSTANTIATE_TEST_SUITE_P(
    Recipes, FormRecipeTest,
    testing::Combine(
        testing::Values(Form::Toolkit::gtk4, Form::Toolkit::qt6),
        testing::Values(FormRow{"date", "Today's date", "", "first", today},
                        FormRow{"handler", "A handler of one's own", "", "first", ann},
                        FormRow{"handlerAgain", "A handler of one's own", "", "second", bob},
                        FormRow{"field", "A field that holds something already", "keystroke \"wrong\"",
                                "first", number},
                        FormRow{"quotes", "Quotes around what is selected",
                                "keystroke \"word\"\nkeystroke \"a\" using control down", "first", quoted},
                        FormRow{"greeting", "A greeting, line by line", toText, "text", greeting},
                        FormRow{"numbers", "Numbers with leading zeros", toText, "text", pages})),
    [](const auto& condition) {
        return nameOf(std::get<0>(condition.param)) + std::get<1>(condition.param).name;
    });

}  // namespace
