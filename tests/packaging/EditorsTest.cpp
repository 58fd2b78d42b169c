// SPDX-License-Identifier: MIT
//
// What the installed definitions make of a script in editors, told by the libraries that those use,
// GtkSourceView and KSyntaxHighlighting, by Vim itself, and, of the grammar for TextMate's kin, by a reader
// of such grammars. The expected colours are those of their own schemes.
#include <gtest/gtest.h>

#include <fstream>

#include "support/Child.h"

namespace {

constexpr const char* script = R"(tell application "Sys\n" -- (* a comment
	keystroke x using {command down}
	Key  Code 36 -- however it is written
	set y to (z as integer)
end tell
(* two
lines *) delay .5
)";

class EditorsTest : public testing::Test {
  protected:
    EditorsTest() {
        outputOf({KEYRILL_CMAKE, "--install", KEYRILL_BUILD_FOLDER}, {{"DESTDIR", m_folder.path()}});
        std::ofstream(file()) << script;
    }

    std::string installed(const std::string& path) const {
        return m_folder.path() + KEYRILL_PREFIX + "/share/" + path;
    }
    std::string file() const { return m_folder.file("sample.keyrill"); }

  private:
    TemporaryFolder m_folder;
};

TEST_F(EditorsTest, theDefinitionsAreValid) {
    for (const char* version : {"gtksourceview-4", "gtksourceview-5"}) {
        outputOf({"xmllint", "--noout", "--relaxng",
                  "/usr/share/gtksourceview-4/language-specs/language2.rng",
                  installed(version + std::string("/language-specs/keyrill.lang"))});
    }
    outputOf({"xmllint", "--noout", installed("org.kde.syntax-highlighting/syntax/keyrill.xml")});
}

TEST_F(EditorsTest, editorsWithGtkSourceViewColourAScript) {
    EXPECT_EQ(
        outputOf({"/usr/bin/python3", KEYRILL_COLOURED, installed("gtksourceview-4/language-specs"), file()},
                 {{"DISPLAY", ""}, {"LC_ALL", "C.UTF-8"}}),
        R"(#A52A2A tell
#A52A2A application
#FF00FF "Sys
#6A5ACD \n
#FF00FF "
#0000FF -- (* a comment
#008A8C keystroke
#A52A2A using
#FF00FF command down
#008A8C Key  Code
#FF00FF 36
#0000FF -- however it is written
#A52A2A set
#A52A2A to
#A52A2A as
#2E8B57 integer
#A52A2A end
#A52A2A tell
#0000FF (* two
lines *)
#008A8C delay
#FF00FF .5
)");
}

TEST_F(EditorsTest, editorsWithKSyntaxHighlightingColourAScript) {
    const std::string page = outputOf({"kate-syntax-highlighter", "--theme", "Breeze Light", file()},
                                      {{"XDG_DATA_DIRS", installed("") + ":/usr/share"},
                                       {"QT_QPA_PLATFORM", "offscreen"},
                                       {"LC_ALL", "C.UTF-8"}});
    const auto isColoured = [&](const std::string& style, const std::string& text) {
        return page.find("<span style=\"" + style + ";\">" + text + "</span>") != std::string::npos;
    };
    EXPECT_TRUE(isColoured("font-weight:bold", "tell")) << page;
    EXPECT_TRUE(isColoured("font-weight:bold", "as")) << page;
    EXPECT_TRUE(isColoured("color:#bf0303", "&quot;Sys")) << page;
    EXPECT_TRUE(isColoured("color:#3daee9", "\\n")) << page;
    EXPECT_TRUE(isColoured("color:#898887", "-- (* a comment")) << page;
    EXPECT_TRUE(isColoured("color:#644a9b", "keystroke")) << page;
    EXPECT_TRUE(isColoured("color:#644a9b", "Key  Code")) << page;
    EXPECT_TRUE(isColoured("color:#aa5500", "command down")) << page;
    EXPECT_TRUE(isColoured("color:#b08000", "36")) << page;
    EXPECT_TRUE(isColoured("color:#0057ae", "integer")) << page;
    EXPECT_TRUE(isColoured("color:#898887", "lines *)")) << page;
    EXPECT_TRUE(isColoured("color:#b08000", ".5")) << page;
}

TEST_F(EditorsTest, vimColoursAScript) {
    const std::string coloured = file() + ".coloured";
    outputOf({"vim", "-Nu", "NONE", "-es", "-c", "set rtp^=" + installed("vim/vimfiles"), "-c", "filetype on",
              "-c", "syntax on", "-c", "edit " + file(), "-c", "source " + std::string(KEYRILL_VIM_COLOURS)},
             {{"COLOURED", coloured}, {"LC_ALL", "C.UTF-8"}});
    EXPECT_EQ(contentOf(coloured), R"(Statement tell
Statement application
Constant "Sys
Special \n
Constant "
Comment -- (* a comment
Identifier keystroke
Statement using
Constant command down
Identifier Key  Code
Constant 36
Comment -- however it is written
Statement set
Statement to
Statement as
Type integer
Statement end
Statement tell
Comment (* two
Comment lines *)
Identifier delay
Constant .5
)");
}

TEST_F(EditorsTest, editorsWithTextMateGrammarsColourAScript) {
    const std::string extension = installed("keyrill/vscode/");
    outputOf({"/usr/bin/python3", "-m", "json.tool", extension + "package.json", "/dev/null"});
    outputOf({"/usr/bin/python3", "-m", "json.tool", extension + "language-configuration.json", "/dev/null"});
    EXPECT_EQ(outputOf({"/usr/bin/python3", KEYRILL_TEXTMATE, extension + "syntaxes/keyrill.tmLanguage.json",
                        file()},
                       {{"LC_ALL", "C.UTF-8"}}),
              R"(keyword.control tell
keyword.control application
string.quoted.double "Sys
constant.character.escape \n
string.quoted.double "
comment.line -- (* a comment
support.function keystroke
keyword.control using
constant.language command down
support.function Key  Code
constant.numeric 36
comment.line -- however it is written
keyword.control set
keyword.control to
keyword.control as
support.type integer
keyword.control end
keyword.control tell
comment.block (* two
comment.block lines *)
support.function delay
constant.numeric .5
)");
}

}  // namespace
