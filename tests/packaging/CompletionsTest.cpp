// SPDX-License-Identifier: MIT
//
// What the installed completions make shells offer, told by the shells themselves.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "support/Child.h"

namespace {

using Words = std::vector<std::string>;

Words linesOf(const std::string& text) {
    Words lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    std::sort(lines.begin(), lines.end());
    return lines;
}

/// A shell in a folder with two files, which is the home of somebody with three macros.
class CompletionsTest : public testing::Test {
  protected:
    CompletionsTest() {
        outputOf({KEYRILL_CMAKE, "--install", KEYRILL_BUILD_FOLDER}, {{"DESTDIR", m_folder.path()}});
        for (const char* name : {"/a.keyrill", "/b.txt"}) std::ofstream(m_folder.path() + name);
        const std::string macros = m_folder.path() + "/.local/share/keyrill";
        std::filesystem::create_directories(macros + "/mail");
        for (const char* name : {"/Greeting", "/Good bye", "/mail/Thanks"}) {
            std::ofstream(macros + name + ".keyrill");
        }
    }

    std::string installed(const std::string& path) const {
        return m_folder.path() + KEYRILL_PREFIX + "/share/" + path;
    }
    Words run(const std::string& script) const {
        return linesOf(outputOf({"bash", "-c", "cd " + m_folder.path() + " && " + script},
                                {{"HOME", m_folder.path()},
                                 {"XDG_DATA_HOME", ""},
                                 {"PATH", m_folder.path() + KEYRILL_PREFIX + "/bin:/usr/bin:/bin"},
                                 {"LC_ALL", "C.UTF-8"}}));
    }

    /// As bash calls them: the words of the line, split also at its signs, the last being completed.
    Words inBash(const std::string& words) const {
        return run("bash --norc -c 'source " + installed("bash-completion/completions/keyrill") +
                   R"(; compopt() { :; }; COMP_WORDS=(keyrill )" + words +
                   R"(); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _keyrill; printf "%s\n" "${COMPREPLY[@]}"')");
    }
    Words inZsh(const std::string& line) const {
        const std::string offered = m_folder.path() + "/offered";
        run("rm -f " + offered + "; zsh -f " KEYRILL_ZSH_COMPLETED " " + installed("zsh/site-functions") +
            " 'keyrill " + line + "' " + offered);
        const std::string text = contentOf(offered);
        EXPECT_TRUE(text.ends_with("done\n")) << text;
        return linesOf(text.substr(0, text.rfind("done\n")));
    }
    /// Without the descriptions.
    Words inFish(const std::string& line) const {
        return run("fish -N -c 'source " + installed("fish/vendor_completions.d/keyrill.fish") +
                   "; complete -C \"keyrill " + line + "\"' | cut -f 1");
    }
    /// As the program itself tells them.
    Words actions() const {
        const std::string help = outputOf({m_folder.path() + KEYRILL_PREFIX + "/bin/keyrill", "--help"});
        std::smatch names;
        EXPECT_TRUE(std::regex_search(help, names, std::regex("ACTION is one of these: (.*)\\.\n"))) << help;
        return linesOf(std::regex_replace(names[1].str(), std::regex(", "), "\n"));
    }

  private:
    TemporaryFolder m_folder;
};

TEST_F(CompletionsTest, allShellsOfferAllActions) {
    EXPECT_EQ(inBash("--action = \"\""), actions());
    EXPECT_EQ(inBash("--action \"\""), actions());
    EXPECT_EQ(inZsh("--action="), actions());
    EXPECT_EQ(inFish("--action "), actions());
}

TEST_F(CompletionsTest, theBeginningOfAnActionNarrowsThemDown) {
    const Words expected = {"save-pause", "stop"};
    EXPECT_EQ(inBash("--action = s"), expected);
    EXPECT_EQ(inZsh("--action=s"), expected);
    EXPECT_EQ(inFish("--action s"), expected);
}

TEST_F(CompletionsTest, optionsAreOffered) {
    EXPECT_EQ(inBash("--"), (Words{"--action=", "--check ", "--help ", "--list ", "--play ",
                                   "--session=", "--show ", "--version "}));
    const Words all = {"--action",  "--check", "--help",  "--list",  "--play",
                       "--session", "--show",  "--speed", "--times", "--version"};
    EXPECT_EQ(inZsh("--"), all);
    EXPECT_EQ(inFish("--"), all);
    EXPECT_EQ(inBash("--play Greeting --"), (Words{"--session=", "--speed=", "--times="}));
}

TEST_F(CompletionsTest, allShellsOfferTheMacros) {
    const Words all = {"Good bye", "Greeting", "mail/Thanks"};
    EXPECT_EQ(inBash("--play \"\""), all);
    EXPECT_EQ(inBash("--show = \"\""), all);
    // As it puts them into the line.
    const Words quoted = {"Good\\ bye", "Greeting", "mail/Thanks"};
    EXPECT_EQ(inZsh("--play="), quoted);
    EXPECT_EQ(inZsh("--show "), quoted);
    EXPECT_EQ(inFish("--show "), all);
}

TEST_F(CompletionsTest, theBeginningOfANameNarrowsThemDown) {
    EXPECT_EQ(inBash("--play G"), (Words{"Good bye", "Greeting"}));
    EXPECT_EQ(inBash("--play Good\\\\\\ b"), Words{"Good bye"});
    EXPECT_EQ(inBash("--play m"), Words{"mail/Thanks"});
    EXPECT_EQ(inZsh("--play Gr"), Words{"Greeting"});
    EXPECT_EQ(inFish("--play Gr"), Words{"Greeting"});
}

TEST_F(CompletionsTest, whereNoMacroBeginsSoFilesAreOffered) {
    EXPECT_EQ(inBash("--play a"), Words{"a.keyrill"});
    EXPECT_EQ(inZsh("--play a"), Words{"a.keyrill"});
    EXPECT_EQ(inFish("--play a"), Words{"a.keyrill"});
    EXPECT_EQ(inBash("--show a"), Words{""});
}

TEST_F(CompletionsTest, timesCanBeWithoutEnd) {
    EXPECT_EQ(inBash("--play Greeting --times = u"), Words{"until-stopped"});
    EXPECT_EQ(inZsh("--play Greeting --times=u"), Words{"until-stopped"});
    EXPECT_EQ(inFish("--play Greeting --times u"), Words{"until-stopped"});
}

TEST_F(CompletionsTest, elseMacroFilesAre) {
    EXPECT_EQ(inBash("a"), (Words{"a.keyrill"}));
    EXPECT_EQ(inBash("b"), (Words{""}));
    EXPECT_EQ(inZsh("a"), (Words{"a.keyrill"}));
    EXPECT_EQ(inFish("a"), (Words{"a.keyrill"}));
}

}  // namespace
