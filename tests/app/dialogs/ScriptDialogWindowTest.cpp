// SPDX-License-Identifier: MIT
#include "app/dialogs/ScriptDialogWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "app/dialogs/QtDialogs.h"

namespace {

ScriptDialog question() {
    return {.text = "Go <b>on</b> & on?",
            .buttons = {"No", "Maybe & so", "Yes"},
            .defaultButton = 2,
            .cancelButton = 0};
}

void sendKey(QWidget& window, QEvent::Type type, int key, bool repeats = false) {
    QKeyEvent event(type, key, Qt::NoModifier, {}, repeats);
    QWidget* target = window.focusWidget() == nullptr ? &window : window.focusWidget();
    QCoreApplication::sendEvent(target, &event);
}
void press(QWidget& window, int key) { sendKey(window, QEvent::KeyPress, key); }

std::vector<QPushButton*> buttonsOf(const QWidget& window) {
    const auto found = window.findChildren<QPushButton*>();
    std::vector<QPushButton*> buttons(found.begin(), found.end());
    const auto x = [&window](const QPushButton* button) { return button->mapTo(&window, QPoint()).x(); };
    std::sort(buttons.begin(), buttons.end(), [&](auto* a, auto* b) { return x(a) < x(b); });
    return buttons;
}
QStringList titlesOf(const QWidget& window) {
    QStringList titles;
    for (const QPushButton* button : buttonsOf(window)) titles.append(button->text());
    return titles;
}
QStringList wordsOf(const QWidget& window) {
    QStringList words;
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (!label->pixmap().isNull()) continue;
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        words.append(label->text());
    }
    return words;
}
QStringList signsOf(const QWidget& window) {
    QStringList names;
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (!label->pixmap().isNull()) names.append(label->accessibleName());
    }
    return names;
}

/// What came of a window to which things happen once it is on the screen.
std::optional<ScriptAnswer> answerAfter(const ScriptDialog& dialog,
                                        const std::function<void(QWidget&)>& deed) {
    QtDialogs dialogs;
    QTimer::singleShot(0, [&deed] { deed(*QApplication::activeModalWidget()); });
    return dialogs.runScriptDialog(dialog, [] { return false; });
}
/// Its button, or -1 for none.
int buttonAfter(const ScriptDialog& dialog, const std::function<void(QWidget&)>& deed) {
    const auto answer = answerAfter(dialog, deed);
    return answer && answer->button ? static_cast<int>(*answer->button) : -1;
}

TEST(ScriptDialogWindowTest, showsTextsAsTheyAreAndButtonsFromLeftToRight) {
    ScriptDialogWindow window(question());
    window.show();
    EXPECT_EQ(wordsOf(window), QStringList("Go <b>on</b> & on?"));
    EXPECT_EQ(titlesOf(window), QStringList({"No", "Maybe && so", "Yes"}));
    EXPECT_EQ(window.windowTitle(), "Keyrill Macro");
    EXPECT_EQ(signsOf(window), QStringList());
}

TEST(ScriptDialogWindowTest, hasTheSameOrderWhereOneWritesFromRightToLeft) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    ScriptDialogWindow window(question());
    window.show();
    EXPECT_EQ(titlesOf(window), QStringList({"No", "Maybe && so", "Yes"}));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(ScriptDialogWindowTest, hasTheTitleAndTheSignThatTheScriptNames) {
    ScriptDialog dialog = question();
    dialog.title = "Weekly & <i>report</i>";
    dialog.icon = ScriptDialog::Icon::stop;
    ScriptDialogWindow window(dialog);
    EXPECT_EQ(window.windowTitle(), "Weekly & <i>report</i>");
    EXPECT_EQ(signsOf(window), QStringList("Stop"));
}

TEST(ScriptDialogWindowTest, anAlertHasAMessageAndASign) {
    const ScriptDialogWindow window({.kind = ScriptDialog::Kind::alert,
                                     .text = "Look",
                                     .message = "There & <b>then</b>",
                                     .buttons = {"OK"}});
    EXPECT_EQ(wordsOf(window), QStringList({"Look", "There & <b>then</b>"}));
    EXPECT_EQ(signsOf(window), QStringList("Note"));
}

TEST(ScriptDialogWindowTest, answersByItsButtons) {
    for (const int place : {0, 1, 2}) {
        EXPECT_EQ(buttonAfter(question(),
                              [place](QWidget& window) {
                                  buttonsOf(window)[static_cast<std::size_t>(place)]->click();
                              }),
                  place);
    }
}

TEST(ScriptDialogWindowTest, takesReturnForTheDefaultButton) {
    EXPECT_EQ(buttonAfter(question(), [](QWidget& window) { press(window, Qt::Key_Return); }), 2);
    ScriptDialog withField = question();
    withField.defaultAnswer = "";
    EXPECT_EQ(buttonAfter(withField, [](QWidget& window) { press(window, Qt::Key_Enter); }), 2);
}

TEST(ScriptDialogWindowTest, withoutADefaultButtonNeitherReturnNorABlankPressesOne) {
    ScriptDialog dialog = question();
    dialog.defaultButton.reset();
    EXPECT_EQ(buttonAfter(dialog,
                          [](QWidget& window) {
                              press(window, Qt::Key_Return);
                              press(window, Qt::Key_Space);
                              sendKey(window, QEvent::KeyRelease, Qt::Key_Space);
                              EXPECT_TRUE(window.isVisible());
                              buttonsOf(window)[1]->click();
                          }),
              1);
}

TEST(ScriptDialogWindowTest, takesEscapeAndCloseForTheCancelButton) {
    EXPECT_EQ(buttonAfter(question(), [](QWidget& window) { press(window, Qt::Key_Escape); }), 0);
    EXPECT_EQ(buttonAfter(question(), [](QWidget& window) { window.close(); }), 0);
}

TEST(ScriptDialogWindowTest, withoutACancelButtonAHeldEscapeClosesItUnanswered) {
    ScriptDialog dialog = question();
    dialog.cancelButton.reset();
    const auto answer = answerAfter(dialog, [](QWidget& window) {
        window.close();
        press(window, Qt::Key_Escape);
        sendKey(window, QEvent::KeyRelease, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        press(window, Qt::Key_Escape);
        sendKey(window, QEvent::KeyPress, Qt::Key_Escape, true);
    });
    EXPECT_FALSE(answer);
}

TEST(ScriptDialogWindowTest, theEndOfTheProgramLeavesItUnanswered) {
    std::optional<ScriptAnswer> answer = ScriptAnswer{};
    QTimer::singleShot(
        0, [&answer] { answer = answerAfter(question(), [](QWidget&) { QCoreApplication::exit(7); }); });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_FALSE(answer);
}

TEST(ScriptDialogWindowTest, answersWithTheTextOfItsField) {
    ScriptDialog dialog = question();
    dialog.defaultAnswer = "a & <b>";
    const auto unchanged = answerAfter(dialog, [](QWidget& window) {
        const auto* field = window.findChild<QLineEdit*>();
        EXPECT_EQ(window.focusWidget(), field);
        EXPECT_EQ(field->selectedText(), "a & <b>");
        EXPECT_EQ(field->echoMode(), QLineEdit::Normal);
        EXPECT_EQ(field->accessibleName(), "Go <b>on</b> & on?");
        press(window, Qt::Key_Return);
    });
    EXPECT_EQ(unchanged->text, "a & <b>");
    const auto changed = answerAfter(dialog, [](QWidget& window) {
        window.findChild<QLineEdit*>()->setText(QStringLiteral("Grüße 日本"));
        press(window, Qt::Key_Return);
    });
    EXPECT_EQ(changed->text, "Grüße 日本");
}

TEST(ScriptDialogWindowTest, hidesAnAnswer) {
    ScriptDialog dialog = question();
    dialog.defaultAnswer = "secret";
    dialog.hidesAnswer = true;
    const ScriptDialogWindow window(dialog);
    EXPECT_EQ(window.findChild<QLineEdit*>()->echoMode(), QLineEdit::Password);
}

ScriptDialog choice() {
    return {.text = "Who?",
            .buttons = {"Cancel", "OK"},
            .defaultButton = 1,
            .cancelButton = 0,
            .choices = {"Ann", "B & <b>b</b>", "Cid"}};
}

QListWidget& listOf(QWidget& window) { return *window.findChild<QListWidget*>(); }

TEST(ScriptDialogWindowTest, answersWithWhatIsChosenInItsList) {
    ScriptDialogWindow window(choice());
    window.show();
    EXPECT_EQ(listOf(window).item(1)->text(), "B & <b>b</b>");
    EXPECT_FALSE(buttonsOf(window)[1]->isEnabled());
    press(window, Qt::Key_Down);
    EXPECT_TRUE(buttonsOf(window)[1]->isEnabled());
    press(window, Qt::Key_Return);
    ASSERT_TRUE(window.answer());
    EXPECT_EQ(window.answer()->button, 1U);
    EXPECT_EQ(window.answer()->chosen, std::vector<std::size_t>{1});
}

TEST(ScriptDialogWindowTest, choosesSeveralWhereSeveralMayBe) {
    ScriptDialog dialog = choice();
    dialog.allowsSeveral = true;
    dialog.defaultChoices = {0, 2};
    ScriptDialogWindow window(dialog);
    window.show();
    EXPECT_EQ(listOf(window).selectedItems().size(), 2);
    buttonsOf(window)[1]->click();
    EXPECT_EQ(window.answer()->chosen, (std::vector<std::size_t>{0, 2}));
}

TEST(ScriptDialogWindowTest, takesNothingForAnAnswerWhereNothingMayBeChosen) {
    ScriptDialog dialog = choice();
    dialog.allowsNone = true;
    ScriptDialogWindow window(dialog);
    window.show();
    buttonsOf(window)[1]->click();
    ASSERT_TRUE(window.answer());
    EXPECT_TRUE(window.answer()->chosen.empty());
}

TEST(ScriptDialogWindowTest, givesUpWithWhatHasBeenTypedSoFar) {
    ScriptDialog dialog = question();
    dialog.defaultAnswer = "";
    dialog.givingUpAfter = 0.02;
    const auto answer = answerAfter(
        dialog, [](QWidget& window) { window.findChild<QLineEdit*>()->setText(QStringLiteral("half")); });
    ASSERT_TRUE(answer);
    EXPECT_FALSE(answer->button);
    EXPECT_EQ(answer->text, "half");
}

TEST(ScriptDialogWindowTest, waitsForEverWhereTheTimeIsBeyondTheClock) {
    ScriptDialog dialog = question();
    dialog.givingUpAfter = 1e300;
    EXPECT_EQ(buttonAfter(dialog, [](QWidget& window) { press(window, Qt::Key_Return); }), 2);
}

TEST(ScriptDialogWindowTest, scrollsWhatNoScreenCouldHoldAndBreaksEndlessWords) {
    ScriptDialog dialog = question();
    for (int line = 0; line < 3000; ++line) dialog.text += "\nline";
    dialog.title = std::string(100000, 'x');
    dialog.buttons[1] = std::string(100000, 'y');
    ScriptDialogWindow tall(dialog);
    tall.show();
    EXPECT_LE(tall.height(), tall.screen()->availableSize().height());
    EXPECT_LE(tall.width(), tall.screen()->availableSize().width());
    EXPECT_NE(tall.findChild<QScrollArea*>(), nullptr);
    ScriptDialogWindow wide({.text = std::string(3000, 'x'), .buttons = {"OK"}});
    wide.show();
    EXPECT_LE(wide.width(), wide.screen()->availableSize().width());
}

TEST(ScriptDialogWindowTest, goesWithoutAnAnswerWhenTheUserHasAskedToStop) {
    QtDialogs dialogs;
    int looks = 0;
    EXPECT_EQ(dialogs.runScriptDialog(question(), [&looks] { return ++looks == 3; }), std::nullopt);
    EXPECT_EQ(looks, 3);
}

TEST(ScriptDialogWindowTest, takesTheFocusAndWaitsUntilItIsElsewhere) {
    std::vector<std::string> events;
    QtDialogs dialogs({.take =
                           [&events](QWidget& window) {
                               events.emplace_back(window.isVisible() ? "take" : "take too early");
                               press(window, Qt::Key_Return);
                           },
                       .awaitElsewhere =
                           [&events](QWidget& window) {
                               events.emplace_back(window.isVisible() ? "wait too early" : "wait");
                           }});
    dialogs.runScriptDialog(question(), [] { return false; });
    EXPECT_EQ(events, std::vector<std::string>({"take", "wait"}));
}

}  // namespace
