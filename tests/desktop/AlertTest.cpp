// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "support/Keys.h"
#include "support/Programs.h"

namespace {

/// The program at a server that lets nobody press keys; its user has a real keyboard.
class AlertTest : public testing::Test {
  protected:
    explicit AlertTest(const std::string& language = "C",
                       const char* title = "The X server must have the XTEST extension, but it has not.") {
        desktop.startWindowManager();
        putBrowser();
        desktop.setEnvironment("LANGUAGE", language);
        // Nobody's hot key tells here that the program is ready.
        program.emplace(std::vector<std::string>{programs::keyrill}, desktop.options("product.log"));
        desktop.awaitFocus(title);
    }

    /// What opens pages here writes down what it was given.
    void putBrowser() {
        const std::string file = desktop.file("xdg-open");
        std::ofstream(file) << "#!/bin/sh\nprintf '%s\\n' \"$@\" >" << desktop.file("pages") << "\n";
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        const std::filesystem::path folder = std::filesystem::path(file).parent_path();
        desktop.setEnvironment("PATH", folder.string() + ":" + std::getenv("PATH"));
    }
    std::string pages() const { return contentOf(desktop.file("pages")); }

    /// The exit status. The program is silent while its alert is open, so nobody but this wakes the inner
    /// server when it sleeps on a key.
    int awaitEnd() {
        eventually([this] {
            servers.finish();
            return !program->isRunning();
        });
        return program->wait();
    }

    NestedServers servers{{"-extension", "XTEST"}};
    Desktop desktop{servers.display()};
    std::optional<Child> program;
};

TEST_F(AlertTest, quitEndsTheProgram) {
    servers.user().tap(xkey::escape);
    EXPECT_EQ(awaitEnd(), 0);
    EXPECT_EQ(pages(), "");
}

TEST_F(AlertTest, theDocumentationIsOpenedAndThenTheProgramEnds) {
    servers.user().tap(xkey::returnKey);
    EXPECT_EQ(awaitEnd(), 0);
    EXPECT_TRUE(eventually([this] { return !pages().empty(); }));
    // One page, the manual that is installed with the program.
    EXPECT_TRUE(testing::internal::RE::FullMatch(pages(), "file:///.+/manual/index\\.html\n")) << pages();
}

class GermanAlertTest : public AlertTest {
  protected:
    GermanAlertTest()
        : AlertTest("de", "Der X-Server muss die Erweiterung XTEST haben, hat sie aber nicht.") {}
};

TEST_F(GermanAlertTest, theDocumentationIsInTheLanguageOfTheDesktop) {
    servers.user().tap(xkey::returnKey);
    EXPECT_EQ(awaitEnd(), 0);
    EXPECT_TRUE(eventually([this] { return !pages().empty(); }));
    EXPECT_TRUE(testing::internal::RE::FullMatch(pages(), "file:///.+/manual/de/index\\.html\n")) << pages();
}

/// What cannot be loaded, said while a terminal is being typed into.
class LoadAlertTest : public testing::TestWithParam<WindowManager> {
  protected:
    static constexpr const char* title = "No macro was loaded from \"none.keyrill\".";

    LoadAlertTest() {
        desktop.startBus();
        desktop.startWindowManager(GetParam());
        terminal.emplace(desktop.display());
    }
    void answerAlert() const {
        const ScreenWindow alert = desktop.awaitWindow(title);
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(alert); }));
        desktop.press("Return");
        ASSERT_TRUE(eventually([&] { return !desktop.shows(title) && terminal->hasFocus(); }));
    }

    Desktop desktop;
    std::optional<Terminal> terminal;
};

TEST_P(LoadAlertTest, takesTheKeysAndGivesThemBack) {
    const std::vector<std::string> command = {programs::keyrill, desktop.file("none.keyrill")};
    const Child keyrill(command, desktop.options("product.log"));
    answerAlert();
    // By a second start, when the program has been running for some time.
    EXPECT_TRUE(desktop.succeeds(command));
    answerAlert();
    desktop.press("period");
    EXPECT_EQ(terminal->typed(1), ".");
}

INSTANTIATE_TEST_SUITE_P(WindowManagers, LoadAlertTest,
                         testing::Values(WindowManager::none, WindowManager::openbox, WindowManager::xfwm4),
                         nameOfParameter<WindowManager>);

}  // namespace
