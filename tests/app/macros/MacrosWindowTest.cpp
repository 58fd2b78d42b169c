// SPDX-License-Identifier: MIT
#include "app/macros/MacrosWindow.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QDateTime>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QTimerEvent>

#include "app/Buttons.h"
#include "app/RightToLeft.h"
#include "app/macros/KeysView.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacroSettingsRow.h"
#include "app/macros/ScriptEditor.h"
#include "engine/EngineTest.h"

namespace {

const std::string script =
    "tell application \"System Events\"\n\tkey code (0) using {}\ndelay 0.01\nend tell\n";

class MacrosWindowTest : public EngineTest {
  protected:
    MacrosWindowTest() {
        QObject::connect(&window, &MacrosWindow::chosenChanged, [this](const std::string& path) {
            told.push_back("choose " + path);
            if (!path.empty()) window.showMacro(script, script);
        });
        QObject::connect(&window, &MacrosWindow::saveWanted, [this] { told.emplace_back("save"); });
        QObject::connect(&window, &MacrosWindow::playPressed, [this] { told.emplace_back("press play"); });
        QObject::connect(&window, &MacrosWindow::playWanted, [this] { told.emplace_back("play"); });
        QObject::connect(&window, &MacrosWindow::deleteWanted,
                         [this](const std::string& path) { told.push_back("delete " + path); });
        QObject::connect(&window, &MacrosWindow::duplicateWanted,
                         [this](const std::string& path) { told.push_back("duplicate " + path); });
        window.setItems({{"Greeting.keyrill", QStringLiteral("Greeting"), {}},
                         {"work/Mail.keyrill", QStringLiteral("Mail"), QStringLiteral("work")}});
        window.show();
    }
    QPushButton& button(const char* title) { return buttonOf(window, title); }
    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }
    void aSecondPasses() {
        for (auto* timer : window.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)) {
            QTimerEvent event(timer->timerId());
            if (timer->isActive()) QCoreApplication::sendEvent(timer, &event);
        }
    }
    QListView& list() {
        for (auto* list : window.findChildren<QListView*>()) {
            if (list->accessibleName() == QStringLiteral("Macros")) return *list;
        }
        throw std::runtime_error("no list");
    }
    QLineEdit& search() { return *window.findChild<QLineEdit*>(QStringLiteral("search")); }

    std::vector<std::string> told;
    MacrosWindow window{platform().keyboardLayout};
};

using Told = std::vector<std::string>;

TEST_F(MacrosWindowTest, showsTheMacroThatIsChosen) {
    EXPECT_FALSE(window.editor().isEnabled());
    window.choose("Greeting.keyrill");
    EXPECT_EQ(told, Told{"choose Greeting.keyrill"});
    EXPECT_TRUE(window.editor().isEnabled());
    EXPECT_EQ(window.editor().text(), script);
}

TEST_F(MacrosWindowTest, theChoiceStaysWhileTheListBecomesAnother) {
    window.choose("work/Mail.keyrill");
    told.clear();
    search().setText(QStringLiteral("greet"));
    EXPECT_EQ(window.chosen(), "work/Mail.keyrill");
    search().clear();
    EXPECT_EQ(list().currentIndex(), window.list().indexOf("work/Mail.keyrill"));
    window.setItems({{"work/Mail.keyrill", QStringLiteral("Mail"), QStringLiteral("work")}});
    EXPECT_EQ(window.chosen(), "work/Mail.keyrill");
    EXPECT_EQ(told, Told{});
}

TEST_F(MacrosWindowTest, aMacroThatASearchHidesIsShownWhenItIsChosen) {
    search().setText(QStringLiteral("greet"));
    window.choose("work/Mail.keyrill");
    EXPECT_EQ(search().text(), QString());
    EXPECT_EQ(window.chosen(), "work/Mail.keyrill");
}

TEST_F(MacrosWindowTest, offersWhatCanBeDone) {
    for (const char* title : {"Play", "Save", "Duplicate", "Rename", "Delete"})
        EXPECT_FALSE(button(title).isEnabled()) << title;
    window.choose("Greeting.keyrill");
    for (const char* title : {"Play", "Duplicate", "Rename", "Delete"})
        EXPECT_TRUE(button(title).isEnabled()) << title;
    EXPECT_FALSE(button("Save").isEnabled());
    window.editor().keys().insertLines(steps::pauseLines(1));
    EXPECT_TRUE(button("Save").isEnabled());
    button("Save").click();
    button("Duplicate").click();
    button("Delete").click();
    EXPECT_EQ(told, (Told{"choose Greeting.keyrill", "save", "duplicate Greeting.keyrill",
                          "delete Greeting.keyrill"}));
    window.showFault(QStringLiteral("It cannot be read."));
    EXPECT_FALSE(button("Play").isEnabled());
    EXPECT_TRUE(button("Delete").isEnabled());
}

TEST_F(MacrosWindowTest, countsBeforeItPlaysUnlessEscapeEndsIt) {
    window.choose("Greeting.keyrill");
    told.clear();
    button("Play").click();
    EXPECT_EQ(told, Told{"press play"});
    window.countDown();
    EXPECT_TRUE(window.isCounting());
    EXPECT_FALSE(button("Delete").isEnabled());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isCounting());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(button("Delete").isEnabled());
    window.countDown();
    aSecondPasses();
    aSecondPasses();
    EXPECT_TRUE(window.isCounting());
    aSecondPasses();
    EXPECT_FALSE(window.isCounting());
    EXPECT_EQ(told, (Told{"press play", "play"}));
}

TEST_F(MacrosWindowTest, escapeClosesNothing) {
    search().setText(QStringLiteral("greet"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(search().text(), QString());
}

TEST_F(MacrosWindowTest, aNameIsTypedInTheList) {
    std::string typed;
    QObject::connect(
        &window, &MacrosWindow::renameWanted,
        [&typed](const std::string& path, const QString& name) { typed = path + " " + name.toStdString(); });
    window.beginRename("Greeting.keyrill");
    auto* field = list().findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(), QStringLiteral("Greeting"));
    field->setText(QStringLiteral("Hello"));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &event);
    // The field is closed first.
    QCoreApplication::processEvents();
    EXPECT_EQ(typed, "Greeting.keyrill Hello");
}

TEST_F(MacrosWindowTest, tellsAndOffersSomethingToDo) {
    int actions = 0;
    QObject::connect(&window, &MacrosWindow::undoWanted, [&actions] { ++actions; });
    window.tell(QStringLiteral("In the trash."), QStringLiteral("Undo"));
    button("Undo").click();
    EXPECT_EQ(actions, 1);
    window.warn(QStringLiteral("No."));
    EXPECT_THROW(button("Undo"), std::runtime_error);
}

TEST_F(MacrosWindowTest, takesBackByItsKeysWhatWasTold) {
    int undone = 0;
    QObject::connect(&window, &MacrosWindow::undoWanted, [&undone] { ++undone; });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
    QCoreApplication::sendEvent(&list(), &event);
    EXPECT_EQ(undone, 1);
    // Whoever writes takes back what he wrote.
    QCoreApplication::sendEvent(&search(), &event);
    EXPECT_EQ(undone, 1);
}

/// The lines of what can be kept, with the time where others have their shortcut.
TEST_F(MacrosWindowTest, offersRecordingsWithTheirTimes) {
    const QDateTime time(QDate(2026, 3, 1), QTime(14, 5));
    window.setRecordings([&] {
        return std::vector<MacrosWindow::Recording>{
            {.macroId = 1, .title = QStringLiteral("ls -l"), .recordedAt = time}};
    });
    auto* menu = button("Keep Recording...").menu();
    const auto firstLine = [menu] {
        emit menu->aboutToShow();
        return menu->actions().first()->text();
    };
    const QString written = QLocale().toString(time, QLocale::ShortFormat);
    EXPECT_EQ(firstLine(), QStringLiteral("ls -l\t") + written);
    const RightToLeft meanwhile;
    // Each keeps its own direction (isolates of the Unicode standard).
    EXPECT_EQ(firstLine(), QStringLiteral("\u2068ls -l\u2069\t\u2068") + written + QChar(0x2069));
}

TEST_F(MacrosWindowTest, theArrowLeadsFromTheSearchToWhatWasFound) {
    search().setFocus();
    search().setText(QStringLiteral("mail"));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(&search(), &event);
    EXPECT_EQ(window.chosen(), "work/Mail.keyrill");
    EXPECT_EQ(window.focusWidget(), &list());
}

TEST_F(MacrosWindowTest, whoDeletesAMacroIsAmongTheOthers) {
    window.choose("Greeting.keyrill");
    button("Delete").setFocus();
    button("Delete").click();
    EXPECT_EQ(window.focusWidget(), &list());
}

/// Of a screen of 1280 pixels at twice the size.
TEST_F(MacrosWindowTest, fitsASmallScreen) {
    window.choose("Greeting.keyrill");
    EXPECT_LE(window.minimumSizeHint().width(), 640);
    window.resize(window.minimumSizeHint().expandedTo(window.minimumSize()));
    QCoreApplication::processEvents();
    const auto placeOf = [this](const QWidget& widget) {
        return QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size());
    };
    for (const char* title : {"Duplicate", "Rename", "Delete", "Save", "Play", "Record New"}) {
        const QRect place = placeOf(button(title));
        EXPECT_TRUE(window.rect().contains(place)) << title;
        EXPECT_FALSE(place.intersects(placeOf(window.settings()))) << title;
        EXPECT_FALSE(place.intersects(placeOf(window.editor()))) << title;
    }
    EXPECT_FALSE(placeOf(window.settings()).intersects(placeOf(window.editor())));
    for (const auto* field : window.settings().findChildren<QAbstractSpinBox*>())
        EXPECT_TRUE(placeOf(window.settings()).contains(placeOf(*field)));
    for (const auto* view : window.editor().findChildren<QListView*>()) EXPECT_GE(view->height(), 50);
    EXPECT_LT(placeOf(button("Rename")).right(), placeOf(button("Delete")).left());
}

TEST_F(MacrosWindowTest, isSmallerThanTheScreen) {
    const QSize room = window.screen()->availableSize();
    EXPECT_LT(window.width(), room.width());
    EXPECT_LT(window.height(), room.height());
}

/// All that can have the focus has a name and a role that fits it.
TEST_F(MacrosWindowTest, assistiveTechnologyKnowsEachControl) {
    window.choose("Greeting.keyrill");
    for (const bool isScript : {false, true}) {
        window.editor().showScriptTab(isScript);
        for (auto* widget : window.findChildren<QWidget*>()) {
            const bool isUsed = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible();
            // A proxy has the focus in its place.
            if (!isUsed || widget->focusProxy() != nullptr) continue;
            QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(face, nullptr);
            EXPECT_NE(face->text(QAccessible::Name), QString()) << widget->metaObject()->className();
            EXPECT_NE(face->role(), QAccessible::Client) << widget->metaObject()->className();
        }
    }
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&list());
    EXPECT_EQ(face->role(), QAccessible::List);
    EXPECT_EQ(face->child(0)->text(QAccessible::Name), QStringLiteral("Greeting"));
}

}  // namespace
