// SPDX-License-Identifier: MIT
//
// The script of the field tests, as often as it takes to trust it: with each of the toolkits' input methods,
// alone and beside programs that use up the processors.
#include <gtest/gtest.h>

#include <iostream>
#include <vector>

#include "cli/FieldScript.h"
#include "cli/Play.h"
#include "support/Editor.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

constexpr int rounds = 50;

/// A program that is typed into, and the environment that names its input method.
struct Field {
    const char* name;
    Editor::Toolkit toolkit;
    const char* variable;
    const char* inputMethod;
};

constexpr Field fields[] = {
    {"gtk", Editor::Toolkit::gtk, "GTK_IM_MODULE", ""},
    {"gtkSimple", Editor::Toolkit::gtk, "GTK_IM_MODULE", "gtk-im-context-simple"},
    {"gtkXim", Editor::Toolkit::gtk, "GTK_IM_MODULE", "xim"},
    {"qt", Editor::Toolkit::qt, "QT_IM_MODULE", ""},
    {"qtCompose", Editor::Toolkit::qt, "QT_IM_MODULE", "compose"},
    {"qtNone", Editor::Toolkit::qt, "QT_IM_MODULE", "none"},
};

/// More programs that never wait than there are processors.
class BusyLoops {
  public:
    explicit BusyLoops(int count) {
        for (int i = 0; i < count; ++i) {
            m_loops.push_back(
                std::make_unique<Child>(std::vector<std::string>{"sh", "-c", "while :; do :; done"}));
        }
    }

  private:
    std::vector<std::unique_ptr<Child>> m_loops;
};

/// Where two texts part, with what stands around it.
std::string difference(const std::string& got, const std::string& expected) {
    std::size_t at = 0;
    while (at < got.size() && at < expected.size() && got[at] == expected[at]) ++at;
    const std::size_t from = at < 30 ? 0 : at - 30;
    return "at byte " + std::to_string(at) + " of " + std::to_string(expected.size()) + " (" +
           std::to_string(got.size()) + " came):\n" + got.substr(from, 90) + "\ninstead of\n" +
           expected.substr(from, 90) + "\n";
}

class FieldSoak : public testing::TestWithParam<std::tuple<Field, int>> {};

TEST_P(FieldSoak, everyRoundTypesExactlyItsText) {
    const auto& [field, loops] = GetParam();
    const XServer server;
    const Editor editor(server.display(), field.toolkit,
                        {.environment = {{field.variable, field.inputMethod}}});
    const BusyLoops load(loops);
    int failures = 0;
    for (int i = 0; i < rounds; ++i) {
        // A mark of the round's own: the text of the round before is not taken for this one's.
        const std::string mark = "round " + std::to_string(i) + "\n";
        const std::string script =
            std::string(fieldscript::source)
                .insert(std::string(fieldscript::source).find("\tkeystroke \"s\" using"),
                        "\tkeystroke \"round " + std::to_string(i) + "\" & return\n");
        Play play(server.display(), script);
        ASSERT_EQ(play.program().wait(), 0) << play.output();
        const std::string expected = fieldscript::inField() + mark;
        eventually([&] { return editor.saved().ends_with(mark); });
        const std::string got = editor.saved();
        if (got == expected) continue;
        ++failures;
        std::cout << "round " << i << " differs " << difference(got, expected);
    }
    EXPECT_EQ(failures, 0) << "of " << rounds;
}

INSTANTIATE_TEST_SUITE_P(Conditions, FieldSoak,
                         testing::Combine(testing::ValuesIn(fields), testing::Values(0, 3)),
                         [](const auto& condition) {
                             return std::string(std::get<0>(condition.param).name) +
                                    (std::get<1>(condition.param) == 0 ? "Alone" : "BesideBusyLoops");
                         });

class TerminalSoak : public testing::TestWithParam<int> {};

TEST_P(TerminalSoak, everyRoundTypesExactlyItsText) {
    const XServer server;
    const Terminal terminal(server.display());
    const BusyLoops load(GetParam());
    std::string expected;
    for (int i = 0; i < rounds; ++i) {
        Play play(server.display(), fieldscript::source);
        ASSERT_EQ(play.program().wait(), 0) << play.output();
        expected += fieldscript::inTerminal();
    }
    const std::string got = terminal.typed(expected.size());
    EXPECT_TRUE(got == expected) << difference(got, expected);
}

INSTANTIATE_TEST_SUITE_P(Conditions, TerminalSoak, testing::Values(0, 3),
                         [](const auto& loops) { return loops.param == 0 ? "alone" : "besideBusyLoops"; });

}  // namespace
