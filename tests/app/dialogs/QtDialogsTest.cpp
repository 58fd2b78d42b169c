// SPDX-License-Identifier: MIT
#include "app/dialogs/QtDialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "app/dialogs/AlertSheet.h"

namespace {

const AlertText question{.kind = AlertText::Kind::informational,
                         .title = QStringLiteral("An <i>update</i> & more"),
                         .message = QStringLiteral("First line\n<b>second</b> & last"),
                         .defaultButton = QStringLiteral("Yes & go"),
                         .alternateButton = QStringLiteral("NO")};

QStringList wordsOf(const QWidget& window) {
    QStringList words;
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->pixmap().isNull()) words.append(label->text());
    }
    return words;
}

void press(QWidget& window, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QWidget* target = window.focusWidget() == nullptr ? &window : window.focusWidget();
    QCoreApplication::sendEvent(target, &event);
}

QPushButton& button(const QWidget& window, const char* text) {
    for (auto* button : window.findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String(text)) return *button;
    }
    throw std::runtime_error(text);
}

/// Runs an alert; what is done to it happens once it is on the screen.
template <typename Deed>
AlertAnswer answerAfter(const AlertText& text, Deed deed) {
    QtDialogs dialogs;
    QTimer::singleShot(0, [&deed] { deed(*QApplication::activeModalWidget()); });
    return dialogs.runAlert(text);
}

TEST(RunAlertTest, showsTitleAndTextsAsTheyAre) {
    answerAfter(question, [](QWidget& alert) {
        EXPECT_EQ(alert.windowTitle(), question.title);
        EXPECT_EQ(wordsOf(alert), QStringList({question.title, question.message}));
        for (const auto* label : alert.findChildren<QLabel*>()) {
            EXPECT_TRUE(!label->pixmap().isNull() || label->textFormat() == Qt::PlainText);
        }
        // A doubled "&" is one on the screen, and no mnemonic.
        EXPECT_TRUE(button(alert, "Yes && go").isDefault());
        press(alert, Qt::Key_Escape);
    });
}

TEST(RunAlertTest, answersByItsButtons) {
    EXPECT_EQ(answerAfter(question, [](QWidget& alert) { button(alert, "Yes && go").click(); }),
              AlertAnswer::defaultButton);
    EXPECT_EQ(answerAfter(question, [](QWidget& alert) { button(alert, "NO").click(); }),
              AlertAnswer::alternateButton);
}

TEST(RunAlertTest, mayHaveAThirdButton) {
    AlertText three = question;
    three.otherButton = QStringLiteral("Never & ever");
    EXPECT_EQ(answerAfter(three, [](QWidget& alert) { button(alert, "Never && ever").click(); }),
              AlertAnswer::otherButton);
    EXPECT_EQ(answerAfter(three, [](QWidget& alert) { button(alert, "NO").click(); }),
              AlertAnswer::alternateButton);
    EXPECT_EQ(answerAfter(three, [](QWidget& alert) { press(alert, Qt::Key_Return); }),
              AlertAnswer::defaultButton);
    EXPECT_EQ(answerAfter(three, [](QWidget& alert) { press(alert, Qt::Key_Escape); }),
              AlertAnswer::alternateButton);
}

TEST(RunAlertTest, takesReturnForTheDefaultButton) {
    EXPECT_EQ(answerAfter(question, [](QWidget& alert) { press(alert, Qt::Key_Return); }),
              AlertAnswer::defaultButton);
}

/// Desktops have their buttons in orders of their own, and the first one need not be the default one.
class AlertOrderTest : public testing::TestWithParam<int> {
  protected:
    AlertOrderTest() {
        qApp->setStyleSheet(QStringLiteral("QDialogButtonBox { button-layout: %1 }").arg(GetParam()));
    }
    ~AlertOrderTest() override { qApp->setStyleSheet({}); }
};

TEST_P(AlertOrderTest, returnAndSpaceMeanTheDefaultButtonInEachOrder) {
    AlertText three = question;
    three.otherButton = QStringLiteral("Never & ever");
    for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
        const auto pressIt = [key](QWidget& alert) {
            EXPECT_EQ(alert.focusWidget(), &button(alert, "Yes && go"));
            press(alert, key);
            QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
            if (alert.focusWidget() != nullptr) QCoreApplication::sendEvent(alert.focusWidget(), &release);
            alert.close();
        };
        EXPECT_EQ(answerAfter(three, pressIt), AlertAnswer::defaultButton);
    }
}

INSTANTIATE_TEST_SUITE_P(Orders, AlertOrderTest,
                         testing::Values(QDialogButtonBox::WinLayout, QDialogButtonBox::MacLayout,
                                         QDialogButtonBox::KdeLayout, QDialogButtonBox::GnomeLayout));

TEST(RunAlertTest, takesEscapeAndCloseForTheAlternateButton) {
    EXPECT_EQ(answerAfter(question, [](QWidget& alert) { press(alert, Qt::Key_Escape); }),
              AlertAnswer::alternateButton);
    EXPECT_EQ(answerAfter(question, [](QWidget& alert) { alert.close(); }), AlertAnswer::alternateButton);
}

TEST(RunAlertTest, hasOneButtonWhereThereIsNoAlternative) {
    answerAfter({.title = QStringLiteral("Told"), .message = {}, .defaultButton = QStringLiteral("OK")},
                [](QWidget& alert) {
                    EXPECT_EQ(alert.findChildren<QPushButton*>().size(), 1);
                    EXPECT_EQ(wordsOf(alert), QStringList(QStringLiteral("Told")));
                    button(alert, "OK").click();
                });
}

TEST(RunAlertTest, activatesTheWindowThatIsOnTheScreen) {
    QWidget* activated = nullptr;
    QtDialogs dialogs({.take = [&activated](QWidget& window) {
        EXPECT_TRUE(window.isVisible());
        activated = &window;
        window.close();
    }});
    dialogs.runAlert(question);
    EXPECT_NE(activated, nullptr);
}

/// A panel that is asked on.
class SheetTest : public testing::Test {
  protected:
    SheetTest() {
        panel->show();
        dialogs.beginSheet(*panel, question, [this](AlertAnswer answer) { answers.push_back(answer); });
        sheet = panel->findChild<AlertSheet*>();
    }
    ~SheetTest() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    std::vector<AlertAnswer> answers;
    // An open sheet answers when its panel goes.
    std::unique_ptr<QWidget> panel = std::make_unique<QWidget>();
    QtDialogs dialogs;
    AlertSheet* sheet = nullptr;
};

TEST_F(SheetTest, blocksItsPanelOnlyAndReturnsAtOnce) {
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet->parentWidget(), panel.get());
}

TEST_F(SheetTest, answersOnceAndGoes) {
    button(*sheet, "Yes && go").click();
    EXPECT_EQ(answers, std::vector<AlertAnswer>{AlertAnswer::defaultButton});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(panel->findChild<AlertSheet*>(), nullptr);
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(SheetTest, answersAlternatelyOnEscape) {
    press(*sheet, Qt::Key_Escape);
    EXPECT_EQ(answers, std::vector<AlertAnswer>{AlertAnswer::alternateButton});
}

TEST_F(SheetTest, answersAlternatelyWhenItsPanelIsHidden) {
    panel->hide();
    EXPECT_EQ(answers, std::vector<AlertAnswer>{AlertAnswer::alternateButton});
    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(SheetTest, answersAlternatelyWhenItsPanelIsGone) {
    panel.reset();
    EXPECT_EQ(answers, std::vector<AlertAnswer>{AlertAnswer::alternateButton});
}

TEST_F(SheetTest, doesWithoutAListener) {
    dialogs.beginSheet(*panel, question, {});
    panel.reset();
    EXPECT_EQ(answers.size(), 1U);
}

}  // namespace
