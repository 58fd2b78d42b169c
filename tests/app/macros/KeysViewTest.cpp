// SPDX-License-Identifier: MIT
#include "app/macros/KeysView.h"

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QToolButton>

#include "app/RightToLeft.h"
#include "app/widgets/NoticeLine.h"
#include "engine/EngineTest.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

using steps::keyLines;

namespace {

std::string recording(const std::string& lines) {
    return std::string(steps::firstLine) + lines + std::string(steps::lastLine);
}

const std::string hello =
    keyLines(4, modifier::shift) + keyLines(14, 0) + keyLines(37, 0) + keyLines(37, 0) + keyLines(31, 0);
const std::string save = keyLines(key::s, modifier::control);
const std::string down = keyLines(125, 0);

/// "Hello", Ctrl+S, half a second, down three times. Edits are taken at once.
class KeysViewTest : public EngineTest {
  protected:
    KeysViewTest() {
        QObject::connect(&view, &KeysView::editWanted, [this](const steps::Splice& splice) {
            script = spliced(script, splice);
            view.showScript(script);
        });
        show(recording(hello + save + steps::pauseLines(0.5) + down + down + down));
    }
    void show(const std::string& text) {
        script = text;
        view.showScript(script);
    }
    std::string rows(int role = Qt::DisplayRole) {
        QStringList lines;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            lines.append(list().model()->index(row, 0).data(role).toString());
        return lines.join(u'|').toStdString();
    }
    void select(int first, int last) {
        list().setCurrentIndex(list().model()->index(last, 0));
        list().selectionModel()->select(
            QItemSelection(list().model()->index(first, 0), list().model()->index(last, 0)),
            QItemSelectionModel::ClearAndSelect);
    }
    std::string selected() {
        std::string selectedRows;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            if (list().selectionModel()->isSelected(list().model()->index(row, 0)))
                selectedRows += std::to_string(row);
        }
        return selectedRows;
    }
    QAction& action(const char* title) {
        for (auto* action : view.findChildren<QAction*>()) {
            if (action->text() == QLatin1String(title)) return *action;
        }
        throw std::runtime_error(title);
    }
    bool type(int row, const char* value) {
        return list().model()->setData(list().model()->index(row, 0), QString::fromUtf8(value), Qt::EditRole);
    }
    QListView& list() { return *view.findChild<QListView*>(); }
    std::string notice() { return view.findChild<NoticeLine*>()->notice().toStdString(); }

    std::string script;
    KeysView view{platform().keyboardLayout};
};

TEST_F(KeysViewTest, showsStepsAsPeopleReadThem) {
    EXPECT_EQ(rows(), "Hello|Ctrl+S|Pause 0.5 s|↓ × 3");
    EXPECT_EQ(rows(Qt::AccessibleTextRole), "Type Hello|Press Ctrl+S|Wait 0.5 seconds|Press ↓ 3 times");
    EXPECT_EQ(rows(Qt::EditRole), "Hello|1|0.5|3");
}

TEST_F(KeysViewTest, keysKeepTheirDirectionAmongOthers) {
    const RightToLeft meanwhile;
    EXPECT_EQ(rows(), "\u2068Hello\u2069|\u2068Ctrl+S\u2069|Pause 0.5 s|\u2068↓\u2069 × 3");
    EXPECT_EQ(rows(Qt::EditRole), "Hello|1|0.5|3");
}

TEST_F(KeysViewTest, aTextIsChangedByTyping) {
    EXPECT_TRUE(type(0, "Hallo"));
    EXPECT_EQ(rows(), "Hallo|Ctrl+S|Pause 0.5 s|↓ × 3");
    EXPECT_EQ(script, recording(keyLines(4, modifier::shift) + keyLines(key::a, 0) + keyLines(37, 0) +
                                keyLines(37, 0) + keyLines(31, 0) + save + steps::pauseLines(0.5) + down +
                                down + down));
}

TEST_F(KeysViewTest, pausesAndCountsAreChangedByTyping) {
    EXPECT_TRUE(type(2, "1.25"));
    EXPECT_TRUE(type(3, "5"));
    EXPECT_TRUE(type(1, "2"));
    EXPECT_EQ(rows(), "Hello|Ctrl+S × 2|Pause 1.25 s|↓ × 5");
}

TEST_F(KeysViewTest, whatHasNoSenseIsRefusedWithTheReason) {
    const std::string before = script;
    EXPECT_FALSE(type(0, "Hellö"));
    EXPECT_EQ(notice(),
              "No key of the present keyboard layout types \"ö\". Convert the keys to text, which types any "
              "character.");
    for (const char* pause : {"", "x", "-1", "1e9", "nan"}) EXPECT_FALSE(type(2, pause)) << pause;
    EXPECT_EQ(notice(), "A pause is a number of seconds from 0 to a day.");
    for (const char* count : {"", "0", "-1", "1.5", "10001"}) EXPECT_FALSE(type(3, count)) << count;
    EXPECT_EQ(notice(), "A key is pressed from 1 to 10,000 times.");
    EXPECT_EQ(script, before);
    EXPECT_TRUE(type(3, "2"));
    EXPECT_EQ(notice(), "") << "the next edit takes it away";
}

TEST_F(KeysViewTest, stepsAreRemoved) {
    select(1, 2);
    action("Remove").trigger();
    EXPECT_EQ(rows(), "Hello|↓ × 3");
    EXPECT_EQ(selected(), "1");
}

TEST_F(KeysViewTest, stepsMoveAndStaySelected) {
    select(2, 2);
    action("Up").trigger();
    EXPECT_EQ(rows(), "Hello|Pause 0.5 s|Ctrl+S|↓ × 3");
    EXPECT_EQ(selected(), "1");
    action("Up").trigger();
    EXPECT_EQ(rows(), "Pause 0.5 s|Hello|Ctrl+S|↓ × 3");
    EXPECT_FALSE(action("Up").isEnabled());
    select(0, 1);
    action("Down").trigger();
    EXPECT_EQ(rows(), "Ctrl+S|Pause 0.5 s|Hello|↓ × 3");
    EXPECT_EQ(selected(), "12");
}

TEST_F(KeysViewTest, whatCanMoveNoFurtherStaysSelected) {
    view.show();
    select(0, 3);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::AltModifier);
        QCoreApplication::sendEvent(&list(), &press);
        EXPECT_EQ(selected(), "0123") << key;
    }
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QCoreApplication::sendEvent(&list(), &press);
    EXPECT_EQ(selected(), "2") << "the list's own keys";
}

TEST_F(KeysViewTest, stepsAreRepeatedAndPausesAdded) {
    select(0, 1);
    action("Repeat").trigger();
    EXPECT_EQ(rows(), "Hello|Ctrl+S|Hello|Ctrl+S|Pause 0.5 s|↓ × 3");
    EXPECT_EQ(selected(), "23");
    select(0, 0);
    action("Add Pause").trigger();
    EXPECT_EQ(rows(), "Hello|Pause 0.5 s|Ctrl+S|Hello|Ctrl+S|Pause 0.5 s|↓ × 3");
    EXPECT_EQ(selected(), "1");
}

TEST_F(KeysViewTest, keysGoBehindTheSelectedStepOrToTheEnd) {
    select(1, 1);
    view.insertLines(keyLines(key::a, 0));
    EXPECT_EQ(rows(), "Hello|Ctrl+S|a|Pause 0.5 s|↓ × 3");
    list().selectionModel()->clear();
    view.insertLines(keyLines(key::b, 0));
    EXPECT_EQ(rows(), "Hello|Ctrl+S|a|Pause 0.5 s|↓ × 3|b");
}

TEST_F(KeysViewTest, whatIsRecordedNextGoesBehindAllThatWasRecordedBefore) {
    select(1, 1);
    view.insertLines(down + save + steps::pauseLines(1));
    EXPECT_EQ(selected(), "234");
    view.insertLines(keyLines(key::b, 0));
    EXPECT_EQ(rows(), "Hello|Ctrl+S|↓|Ctrl+S|Pause 1 s|b|Pause 0.5 s|↓ × 3");
    EXPECT_EQ(selected(), "5");
}

TEST_F(KeysViewTest, aStepIsSelectedOnceTheListHasTheKeyboard) {
    list().selectionModel()->clear();
    QFocusEvent event(QEvent::FocusIn);
    QCoreApplication::sendEvent(&list(), &event);
    EXPECT_EQ(selected(), "0");
    action("Down").trigger();
    EXPECT_EQ(rows(), "Ctrl+S|Hello|Pause 0.5 s|↓ × 3");
    // What is added is to be changed by the keyboard next.
    view.findChild<QToolButton*>()->setFocus();
    action("Add Pause").trigger();
    EXPECT_EQ(view.focusWidget(), &list());
}

TEST_F(KeysViewTest, keysBecomeATextAndBack) {
    const std::string before = script;
    select(0, 3);
    EXPECT_FALSE(action("Convert to Keys").isEnabled());
    action("Convert to Text").trigger();
    EXPECT_EQ(rows(), "Text: Hello|Ctrl+S|Pause 0.5 s|↓ × 3");
    EXPECT_TRUE(type(0, "Größe"));
    EXPECT_EQ(rows(), "Text: Größe|Ctrl+S|Pause 0.5 s|↓ × 3");
    select(0, 0);
    action("Convert to Keys").trigger();
    EXPECT_EQ(notice().substr(0, 48), "No key of the present keyboard layout types \"ö\"");
    EXPECT_TRUE(type(0, "Hello"));
    select(0, 0);
    action("Convert to Keys").trigger();
    EXPECT_EQ(script, before);
}

TEST_F(KeysViewTest, anyOtherScriptShowsWhatItWouldPress) {
    show(
        "tell application \"System Events\"\nrepeat 2 times\nkeystroke \"x\"\nkey code 36\nend repeat\nend "
        "tell\n");
    EXPECT_EQ(rows(), "Text: x|↩|Text: x|↩");
    select(0, 1);
    for (const char* title :
         {"Record Keys", "Add Pause", "Remove", "Up", "Down", "Repeat", "Change", "Convert to Text"})
        EXPECT_FALSE(action(title).isEnabled()) << title;
    EXPECT_FALSE(list().model()->flags(list().model()->index(0, 0)).testFlag(Qt::ItemIsEditable));
}

TEST_F(KeysViewTest, namesTheLineThatMakesAScriptOneOfItsOwn) {
    const auto explanation = [this] {
        for (const auto* label : view.findChildren<QLabel*>()) {
            if (label->isVisibleTo(&view)) return label->text().toStdString();
        }
        return std::string();
    };
    EXPECT_EQ(explanation(), "");
    show(std::string(steps::firstLine) + save + "\tbeep\n" + std::string(steps::lastLine));
    EXPECT_EQ(
        explanation(),
        "This is a script of its own: line 4 cannot be changed here. What it would press is shown; change "
        "it under Script.");
    show(recording(save));
    EXPECT_EQ(explanation(), "");
    show("tell application\n");
    EXPECT_EQ(explanation(), "") << "it would press nothing";
}

TEST_F(KeysViewTest, tellsWhyAScriptShowsNothing) {
    show("tell application\n");
    EXPECT_EQ(rows(), "");
    EXPECT_TRUE(notice().starts_with("Line 1: ")) << notice();
    show("repeat\ndelay 1\nend repeat\n");
    EXPECT_EQ(notice(), "The script goes on; only its beginning is shown.");
}

}  // namespace
