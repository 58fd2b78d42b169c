// SPDX-License-Identifier: MIT
#include "app/panels/RecordHerePanel.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <ostream>
#include <vector>

#include "support/Keys.h"

std::ostream& operator<<(std::ostream& stream, const WindowKey& key) {
    return stream << static_cast<int>(key.kind) << ' ' << int{key.keycode} << ' ' << key.modifiers;
}

namespace {

using Kind = WindowKey::Kind;
using Keys = std::vector<WindowKey>;

class RecordHerePanelTest : public testing::Test {
  protected:
    RecordHerePanelTest() {
        QObject::connect(&panel, &RecordHerePanel::keyCame,
                         [this](const WindowKey& key) { m_keys.push_back(key); });
        panel.takeKeys();
        panel.show();
    }
    QLineEdit& field() { return *panel.findChild<QLineEdit*>(); }
    /// Whether it is taken.
    bool send(QEvent::Type type, int key, quint8 keycode, quint32 modifiers = 0, bool repeats = false) {
        QKeyEvent event(type, key, Qt::NoModifier, keycode, 0, modifiers, QString(), repeats);
        event.ignore();
        QCoreApplication::sendEvent(&field(), &event);
        return event.isAccepted();
    }
    /// Since the last call.
    Keys told() { return std::exchange(m_keys, {}); }

    RecordHerePanel panel;

  private:
    Keys m_keys;
};

TEST_F(RecordHerePanelTest, tellsOfEachKeyByItsPlaceAndTheModifiersBeforeIt) {
    send(QEvent::KeyPress, Qt::Key_A, xkey::a, xmask::shift);
    send(QEvent::KeyRelease, Qt::Key_A, xkey::a, xmask::shift);
    EXPECT_EQ(told(), (Keys{{Kind::press, xkey::a, xmask::shift}, {Kind::release, xkey::a, xmask::shift}}));
}

TEST_F(RecordHerePanelTest, leavesLayoutAndMouseOutOfTheModifiers) {
    constexpr quint32 secondLayoutAndMainButton = 0x2100;
    send(QEvent::KeyPress, Qt::Key_A, xkey::a, xmask::capsLock | secondLayoutAndMainButton);
    EXPECT_EQ(told(), (Keys{{Kind::press, xkey::a, xmask::capsLock}}));
}

TEST_F(RecordHerePanelTest, tellsOfARepeatOnce) {
    send(QEvent::KeyPress, Qt::Key_A, xkey::a);
    send(QEvent::KeyRelease, Qt::Key_A, xkey::a, 0, true);
    send(QEvent::KeyPress, Qt::Key_A, xkey::a, 0, true);
    EXPECT_EQ(told(), (Keys{{Kind::press, xkey::a, 0}, {Kind::repeat, xkey::a, 0}}));
}

TEST_F(RecordHerePanelTest, noKeyIsItsOwn) {
    for (const auto& [key, keycode] :
         std::vector<std::pair<int, quint8>>{{Qt::Key_Tab, xkey::tab},
                                             {Qt::Key_Escape, xkey::escape},
                                             {Qt::Key_Return, xkey::returnKey},
                                             {Qt::Key_Backspace, xkey::backspace}}) {
        EXPECT_TRUE(send(QEvent::ShortcutOverride, key, keycode));
        EXPECT_TRUE(send(QEvent::KeyPress, key, keycode));
        EXPECT_EQ(told(), (Keys{{Kind::press, keycode, 0}}));
        EXPECT_TRUE(panel.isVisible());
        EXPECT_EQ(panel.focusWidget(), &field());
    }
    EXPECT_EQ(field().text(), QString());
}

TEST_F(RecordHerePanelTest, whatNoKeyHasMadeIsNothing) {
    send(QEvent::KeyPress, Qt::Key_A, 0);
    EXPECT_EQ(told(), Keys{});
}

TEST_F(RecordHerePanelTest, tellsThatItHasLostTheKeyboard) {
    int times = 0;
    QObject::connect(&panel, &RecordHerePanel::left, [&times] { ++times; });
    QFocusEvent event(QEvent::FocusOut);
    QCoreApplication::sendEvent(&field(), &event);
    EXPECT_EQ(times, 1);
}

TEST_F(RecordHerePanelTest, assistiveTechnologyKnowsTheFieldAndTheButtons) {
    panel.setStopCombination(QStringLiteral("Ctrl+Super+S"));
    QAccessibleInterface* const one = QAccessible::queryAccessibleInterface(&field());
    EXPECT_EQ(one->role(), QAccessible::EditableText);
    EXPECT_EQ(one->text(QAccessible::Name), QStringLiteral("Keys typed here are recorded"));
    EXPECT_EQ(one->text(QAccessible::Description),
              QStringLiteral("Press Ctrl+Super+S when you are done, or close the window."));
    EXPECT_TRUE(one->state().focusable);
    QStringList buttons;
    for (auto* button : panel.findChildren<QPushButton*>()) {
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(button);
        EXPECT_EQ(face->role(), QAccessible::Button);
        EXPECT_TRUE(
            face->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        buttons.append(face->text(QAccessible::Name));
    }
    buttons.sort();
    EXPECT_EQ(buttons,
              QStringList({QStringLiteral("How to Record Everywhere"), QStringLiteral("Stop Recording")}));
}

}  // namespace
