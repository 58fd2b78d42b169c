// SPDX-License-Identifier: MIT
//
// What the installed definitions make of a script in the two families of editors, told by the libraries that
// those use: GtkSourceView and KSyntaxHighlighting. The expected colours are those of their own schemes.
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

}  // namespace
