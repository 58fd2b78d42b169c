// SPDX-License-Identifier: MIT
//
// Recipes of the language reference that ask, played by the hot key into the form of another program.
#include "desktop/DesktopTest.h"
#include "support/Form.h"
#include "support/Recipe.h"

namespace {

class FormTest : public DesktopTest, public testing::WithParamInterface<Form::Toolkit> {
  protected:
    /// Waits for the question and answers it by the keyboard.
    void answer(const std::string& text) const {
        const ScreenWindow window = desktop.awaitWindow("Keyrill Macro");
        ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
        if (!text.empty()) desktop.run({"xdotool", "type", text});
        press("Return");
    }

    static std::string today() {
        std::string day = outputOf({"date", "+%-m/%-d/%y"});
        day.erase(day.find_last_not_of('\n') + 1);
        return day;
    }
};

TEST_P(FormTest, aNameTheDateAndAnAddressAreFilledIn) {
    const Keyrill keyrill(desktop, recipe("A form of three fields"));
    const Form form(desktop.display(), GetParam());
    const std::string before = today();
    play();
    answer("Bea Smith");
    EXPECT_EQ(form.content("pressed", "OK"), "OK");
    EXPECT_EQ(form.content("first"), "Bea Smith");
    const std::string date = form.content("second");
    EXPECT_TRUE(date == before || date == today()) << date;
    EXPECT_EQ(form.content("third"), "Main Street 1");
}

TEST_P(FormTest, aCancelledQuestionFillsInNothing) {
    const Keyrill keyrill(desktop, recipe("A form of three fields"));
    const Form form(desktop.display(), GetParam());
    play();
    const ScreenWindow window = desktop.awaitWindow("Keyrill Macro");
    ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return form.hasFocus(); }));
    press("x");
    EXPECT_EQ(form.content("first", "x"), "x");
    EXPECT_EQ(form.content("second") + form.content("third") + form.content("pressed"), "");
}

TEST_P(FormTest, whatIsChosenFromAListIsTyped) {
    const Keyrill keyrill(desktop, recipe("One of several texts"));
    const Form form(desktop.display(), GetParam());
    play();
    const ScreenWindow window = desktop.awaitWindow("Keyrill Macro");
    ASSERT_TRUE(eventually([&] { return desktop.hasFocus(window); }));
    press("Down");
    press("Return");
    const std::string content = form.content("first", "No, thank you.");
    EXPECT_TRUE(content == "No, thank you.") << content;
}

INSTANTIATE_TEST_SUITE_P(Toolkits, FormTest, testing::Values(Form::Toolkit::gtk4, Form::Toolkit::qt6),
                         [](const auto& toolkit) { return nameOf(toolkit.param); });

}  // namespace
