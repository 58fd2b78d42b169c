// SPDX-License-Identifier: MIT
//
// The macros of docs/examples, each played into the windows of other programs as its page says.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <set>

#include "desktop/Answer.h"
#include "desktop/DesktopTest.h"
#include "display/CoreClient.h"
#include "support/Editor.h"
#include "support/Form.h"
#include "support/Programs.h"

namespace fs = std::filesystem;

namespace {

fs::path examples() { return fs::path(programs::languageReference).replace_filename("examples"); }

void play(const Desktop& desktop, const std::string& name, const std::vector<std::string>& options = {}) {
    std::vector<std::string> command = {programs::keyrill, "--play", examples() / (name + ".keyrill")};
    command.insert(command.end(), options.begin(), options.end());
    EXPECT_EQ(answerOf(desktop, command), done);
}

class ExamplesTest : public DesktopTest {
  protected:
    ExamplesTest() {
        desktop.startBus();
        keyrill.emplace(desktop);
    }

    void play(const std::string& name, const std::vector<std::string>& options = {}) const {
        ::play(desktop, name, options);
    }
    void type(const std::string& text) const { desktop.run({"xdotool", "type", text}); }
    void awaitQuestion() const {
        const ScreenWindow window = desktop.awaitWindow("Keyrill Macro");
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    }
    static std::string date(const std::string& format) {
        std::string text = outputOf({"date", "+" + format});
        return text.substr(0, text.find('\n'));
    }
    static std::string greetingNow() {
        const int hour = std::stoi(date("%-H"));
        return hour < 12 ? "Good morning, " : hour < 18 ? "Good afternoon, " : "Good evening, ";
    }

    std::optional<Keyrill> keyrill;
};

TEST_F(ExamplesTest, todaysDate) {
    const Terminal terminal(desktop.display());
    const std::string before = date("%F");
    play("todays-date");
    const std::string typed = terminal.typed(before.size());
    EXPECT_TRUE(typed == before || typed == date("%F")) << typed;
}

TEST_F(ExamplesTest, formFromList) {
    const Form form(desktop.display(), Form::Toolkit::gtk4);
    play("form-from-list");
    awaitQuestion();
    press("Down");
    press("Return");
    EXPECT_EQ(form.content("pressed", "OK"), "OK");
    EXPECT_EQ(form.content("first"), "Bob Jones");
    EXPECT_EQ(form.content("second"), "High Street 2");
    EXPECT_EQ(form.content("third"), "Rome");
}

TEST_F(ExamplesTest, signature) {
    const Terminal terminal(desktop.display());
    play("signature");
    const std::string expected = "\nKind regards,\n\nAnn Smith\nOrlen Example, Main Street 1\n";
    EXPECT_EQ(terminal.typed(expected.size()), expected);
}

TEST_F(ExamplesTest, countingEdit) {
    const Editor editor(desktop.display(), Editor::Toolkit::gtk);
    for (const char* line : {"red", "green", "blue"}) {
        type(line);
        press("Return");
    }
    type("other");
    press("ctrl+Home");
    press("ctrl+s");
    ASSERT_EQ(editor.saved("red\ngreen\nblue\nother"), "red\ngreen\nblue\nother");
    play("counting-edit");
    const std::string expected = "1. red\n2. green\n3. blue\nother";
    // What is saved may be from before the last line.
    EXPECT_TRUE(eventually([&] {
        press("ctrl+s");
        return editor.saved() == expected;
    })) << editor.saved();
}

TEST_F(ExamplesTest, slowText) {
    CoreClient client(desktop.display());
    play("slow-text");
    std::vector<std::uint32_t> presses;
    const std::size_t letters = std::string("Not so fast, please.").size();
    ASSERT_TRUE(eventually([&] {
        presses.clear();
        for (const CoreClient::KeyEvent& event : client.events()) {
            if (event.press && event.keycode != xkey::shift) presses.push_back(event.time);
        }
        return presses.size() >= letters;
    }));
    EXPECT_EQ(presses.size(), letters);
    // Pauses keep their pace, so that a first key which comes late makes the rest shorter.
    EXPECT_GE(presses.back() - presses.front(), 100 * (letters - 3));
}

TEST_F(ExamplesTest, questionFirst) {
    const Terminal terminal(desktop.display());
    play("question-first");
    awaitQuestion();
    type("Bea");
    press("Return");
    const std::string expected = "Dear Bea,\n\nthank you for your order.";
    EXPECT_EQ(terminal.typed(expected.size()), expected);
}

/// Not under openbox, which loses keys that follow a switch when the machine is busy.
TEST(ExampleOfWindowsTest, twoWindows) {
    Desktop desktop;
    desktop.startBus().letIn("org.xfce.Xfconf");
    desktop.startWindowManager(WindowManager::xfwm4);
    desktop.startTray();
    const Keyrill keyrill(desktop);
    const Terminal second(desktop.display());
    const Terminal first(desktop.display());
    play(desktop, "two-windows");
    EXPECT_EQ(second.typed(10), "Oslo\nRome\n");
    EXPECT_EQ(first.typed(), "Ann\nBob\n");
}

/// Four times as fast.
TEST_F(ExamplesTest, everyMinute) {
    CoreClient client(desktop.display());
    play("every-minute", {"--speed=4"});
    ASSERT_TRUE(eventually([&] { return client.presses(xkey::f5) == 2; }, std::chrono::seconds(20)));
    std::vector<std::uint32_t> presses;
    for (const CoreClient::KeyEvent& event : client.events()) {
        if (event.press) presses.push_back(event.time);
    }
    ASSERT_EQ(presses.size(), 2U);
    EXPECT_NEAR(presses[1] - presses[0], 15000, 300);
    EXPECT_EQ(answerOf(desktop, {programs::keyrill, "--action=stop"}), done);
}

TEST_F(ExamplesTest, cleanClipboard) {
    std::ofstream(desktop.file("copied")) << "one\n two\t\tthree  four";
    const Child other({"xclip", "-quiet", "-selection", "clipboard", "-in", desktop.file("copied")},
                      desktop.options("xclip.log"));
    ASSERT_TRUE(eventually([this] { return desktop.screen().isOwned("CLIPBOARD"); }));
    play("clean-clipboard");
    EXPECT_TRUE(eventually([this] {
        return desktop.run({"xclip", "-selection", "clipboard", "-out"}) == "one two three four";
    })) << desktop.run({"xclip", "-selection", "clipboard", "-out"});
}

TEST_F(ExamplesTest, greeting) {
    const Terminal terminal(desktop.display());
    const std::string before = greetingNow();
    play("greeting");
    const std::string typed = terminal.typed(before.size());
    EXPECT_TRUE(typed == before || typed == greetingNow()) << typed;
}

/// What the page lists is there, and all that is there is listed and played here.
TEST(ExamplesPageTest, listsWhatThereIs) {
    const std::set<std::string> played = {"todays-date",     "form-from-list", "signature",   "counting-edit",
                                          "slow-text",       "question-first", "two-windows", "every-minute",
                                          "clean-clipboard", "greeting"};
    std::set<std::string> files;
    for (const auto& entry : fs::directory_iterator(examples())) {
        if (entry.path().extension() == ".keyrill") files.insert(entry.path().stem());
    }
    std::set<std::string> listed;
    const std::string page = contentOf(examples() / "README.md");
    const std::regex row(R"(\| `([a-z-]+)\.keyrill` \|)");
    for (std::sregex_iterator at(page.begin(), page.end(), row), end; at != end; ++at) {
        listed.insert((*at)[1]);
    }
    EXPECT_EQ(files, played);
    EXPECT_EQ(listed, played);
}

}  // namespace
