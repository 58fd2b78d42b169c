// SPDX-License-Identifier: MIT
//
// One script in the windows of programs of three kinds, on two keyboard layouts.
#include <gtest/gtest.h>

#include "script/FieldScript.h"
#include "script/Play.h"
#include "support/Editor.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

class FieldTest : public testing::TestWithParam<const char*> {
  protected:
    FieldTest() { outputOf({"setxkbmap", "-layout", GetParam()}, {{"DISPLAY", display()}}); }

    const std::string& display() const { return m_server.display(); }

    void expectTyped(const Editor& editor) const {
        Play play(display(), fieldscript::source);
        EXPECT_EQ(play.program().wait(), 0);
        EXPECT_EQ(play.output(), "");
        EXPECT_EQ(editor.saved(fieldscript::inField()), fieldscript::inField());
    }

  private:
    XServer m_server;
};

TEST_P(FieldTest, aScriptTypesExactlyItsTextIntoAGtkProgram) {
    expectTyped(Editor(display(), Editor::Toolkit::gtk));
}

TEST_P(FieldTest, aScriptTypesExactlyItsTextIntoAQtProgram) {
    expectTyped(Editor(display(), Editor::Toolkit::qt));
}

TEST_P(FieldTest, aScriptTypesExactlyItsTextIntoATerminal) {
    const Terminal terminal(display());
    Play play(display(), fieldscript::source);
    EXPECT_EQ(play.program().wait(), 0);
    EXPECT_EQ(play.output(), "");
    EXPECT_EQ(terminal.typed(fieldscript::inTerminal().size()), fieldscript::inTerminal());
}

INSTANTIATE_TEST_SUITE_P(Layouts, FieldTest, testing::Values("us", "de"),
                         [](const auto& layout) { return std::string(layout.param); });

}  // namespace
