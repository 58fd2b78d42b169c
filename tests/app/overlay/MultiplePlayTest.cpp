// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "app/AppTest.h"
#include "app/overlay/MultiplePlayWindow.h"

namespace {

/// The prompt that asks how many times to play, as the user meets it.
class MultiplePlayTest : public AppTest {
  protected:
    void open() { controller.showMultiplePlayGui(); }
    QWidget& prompt() const { return *controller.multiplePlayWindow(); }
    QLineEdit& field() const { return *prompt().findChild<QLineEdit*>(); }
    QPushButton& button() const { return *prompt().findChild<QPushButton*>(); }

    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&field(), &event);
    }

    void confirm(const char* times) {
        field().setText(QString::fromLatin1(times));
        press(Qt::Key_Return);
    }
};

TEST_F(MultiplePlayTest, hasTheProgramsIconInListsOfWindows) {
    open();
    EXPECT_FALSE(prompt().windowIcon().isNull());
}

TEST_F(MultiplePlayTest, playsAsOftenAsTheTextSays) {
    state().currentMacro = macroWithScript("script");
    open();
    confirm("3");
    EXPECT_EQ(runs(), (std::vector<std::string>{"script", "script", "script"}));
    EXPECT_FALSE(prompt().isVisible());
}

TEST_F(MultiplePlayTest, playsFromTheButton) {
    state().currentMacro = macroWithScript("script");
    open();
    field().setText(QStringLiteral("2x"));
    button().click();
    EXPECT_EQ(runs().size(), 2U);
}

TEST_F(MultiplePlayTest, playsNothingForATextThatIsNoPositiveNumber) {
    state().currentMacro = macroWithScript("script");
    for (const char* text : {"0", "-2", "abc", ""}) {
        open();
        confirm(text);
    }
    EXPECT_TRUE(runs().empty());
}

TEST_F(MultiplePlayTest, waitsHalfASecondAndThenForTheFocus) {
    state().currentMacro = macroWithScript("script");
    open();
    platform().journal.clear();
    confirm("1");
    ASSERT_FALSE(platform().clock.sleeps().empty());
    EXPECT_EQ(platform().clock.sleeps().front(), Clock::Seconds(0.5));
    EXPECT_EQ(windows.calls(), std::vector<std::string>{"awaitFocusElsewhere(hidden)"});
}

TEST_F(MultiplePlayTest, closesOnEscapeWithoutPlaying) {
    state().currentMacro = macroWithScript("script");
    open();
    press(Qt::Key_Escape);
    EXPECT_FALSE(prompt().isVisible());
    EXPECT_TRUE(runs().empty());
}

TEST_F(MultiplePlayTest, saysThatThereIsNoMacroYet) {
    open();
    EXPECT_FALSE(button().isEnabled());
    EXPECT_EQ(button().text().toStdString(), "No macro yet");
    confirm("1");
    EXPECT_TRUE(prompt().isVisible());
    EXPECT_TRUE(runs().empty());
}

TEST_F(MultiplePlayTest, givesTheFieldTheFocusAndSelectsItsText) {
    open();
    EXPECT_EQ(prompt().focusWidget(), &field());
    EXPECT_EQ(field().selectedText(), field().text());
}

}  // namespace
