// SPDX-License-Identifier: MIT
#include <map>

#include "desktop/DesktopTest.h"
#include "support/Programs.h"

namespace {

/// What the program prints to somebody who has no display, and how it ends.
class WithoutDisplayTest : public testing::Test {
  protected:
    struct End {
        int status = 0;
        std::string output;
    };
    End endOf(const std::string& argument) const {
        const std::string output = m_folder.file(argument);
        Child program({programs::keyrill, argument}, {.environment = m_environment, .outputFile = output});
        const int status = program.wait();
        return {status, contentOf(output)};
    }

    /// From now on it speaks that language.
    void speak(const std::string& language) { m_environment["LANGUAGE"] = language; }

  private:
    TemporaryFolder m_folder;
    std::map<std::string, std::string> m_environment = {
        {"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"LC_ALL", "C.UTF-8"}};
};

TEST_F(WithoutDisplayTest, helpAndVersionArePrinted) {
    const End help = endOf("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.starts_with("Usage: keyrill ")) << help.output;
    const End shortly = endOf("-h");
    EXPECT_EQ(shortly.status, 0);
    EXPECT_EQ(shortly.output, help.output);
    const End version = endOf("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.starts_with("keyrill ")) << version.output;
}

TEST_F(WithoutDisplayTest, whatIsPrintedIsInTheLanguageOfTheDesktop) {
    speak("eo:de:fr");
    const End help = endOf("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.starts_with("Aufruf: keyrill [--session=NAME]")) << help.output;
    EXPECT_EQ(endOf("--sesion=x11").output,
              "keyrill: Es gibt keine Option „--sesion=x11“. keyrill --help listet sie auf.\n");
    speak("en:de");
    EXPECT_TRUE(endOf("-h").output.starts_with("Usage: keyrill "));
}

TEST_F(WithoutDisplayTest, aKindOfSessionThatThereIsNotIsRefused) {
    const End end = endOf("--session=typewriter");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(
        end.output,
        "keyrill: There is no kind of session called \"typewriter\". Choose one of these: wayland, x11.\n");
}

TEST_F(WithoutDisplayTest, whyThereIsNoSessionIsToldInTheLanguageOfTheDesktop) {
    speak("de");
    const End named = endOf("--session=typewriter");
    EXPECT_EQ(named.status, 1);
    EXPECT_EQ(
        named.output,
        "keyrill: Es gibt keine Sitzungsart namens „typewriter“. Wählen Sie eine davon: wayland, x11.\n");
    speak("fr");
    const End none = endOf("macro.keyrill");
    EXPECT_EQ(none.status, 1);
    EXPECT_TRUE(none.output.starts_with("keyrill: Le serveur X de l’affichage ")) << none.output;
}

TEST_F(WithoutDisplayTest, anUnknownOptionIsToldFirst) {
    const End end = endOf("--sesion=x11");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output, "keyrill: There is no option \"--sesion=x11\". keyrill --help lists them.\n");
    // It may be the toolkit's.
    EXPECT_TRUE(endOf("-style=fusion").output.starts_with("keyrill: The X server of display "));
}

class SessionOptionTest : public DesktopTest {};

TEST_F(SessionOptionTest, aNamedSessionIsTheOneThatIsWorkedIn) {
    Child program({programs::keyrill, "--session=x11"}, desktop.options("start"));
    EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    EXPECT_TRUE(program.isRunning());
}

TEST_F(SessionOptionTest, anUnknownOptionIsNoFile) {
    const Child::Options options = desktop.options("start");
    Child program({programs::keyrill, "--sesion=x11"}, options);
    EXPECT_EQ(program.wait(), 1);
    const std::string output = contentOf(options.outputFile);
    EXPECT_NE(output.find("There is no option \"--sesion=x11\"."), std::string::npos) << output;
}

}  // namespace
