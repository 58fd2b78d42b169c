// SPDX-License-Identifier: MIT
//
// Combinations of KDE's, from KWin itself.
#include "platform/desktops/KdeShortcuts.h"

#include <gtest/gtest.h>

#include "compositor/Field.h"
#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "support/Keys.h"

namespace {

using Event = HotKeyBinder::Event;
using Kind = Event::Kind;

constexpr std::int32_t qtShift = 0x02000000;
constexpr std::int32_t qtControl = 0x04000000;
constexpr std::int32_t qtAlt = 0x08000000;
constexpr std::int32_t qtF3 = 0x01000032;
constexpr std::uint16_t shift = 1;
constexpr std::uint16_t control = 4;
constexpr std::uint16_t alt = 8;
constexpr std::uint8_t f3 = 69;

class KdeShortcutsTest : public testing::Test {
  protected:
    explicit KdeShortcutsTest(const std::string& layouts = "us") : m_kwin({.layouts = layouts}) { open(); }

    void open() {
        m_shortcuts = std::make_unique<KdeShortcuts>(m_bus, [this](const KeyGrab& grab) {
            return m_combinations[{grab.keycode, grab.modifiers}];
        });
    }
    std::optional<std::string> grab(std::uint8_t keycode, std::uint16_t modifiers,
                                    const std::vector<std::int32_t>& keys) {
        m_combinations[{keycode, modifiers}] = {keys, "Combination"};
        return m_shortcuts->grab({.keycode = keycode, .modifiers = modifiers}, {});
    }
    std::optional<Event> next() {
        std::optional<Event> event;
        eventually([&] { return (event = m_shortcuts->nextEvent()).has_value(); });
        return event;
    }

    KWin& kwin() { return m_kwin; }
    SessionBus& bus() { return m_bus; }
    KWinHands& hands() { return *m_hands; }
    std::unique_ptr<KdeShortcuts>& shortcuts() { return m_shortcuts; }

  private:
    KWin m_kwin;
    std::unique_ptr<KWinHands> m_hands = std::make_unique<KWinHands>(m_kwin.socket());
    SessionBus m_bus{m_kwin.environment().at("DBUS_SESSION_BUS_ADDRESS")};
    std::map<std::pair<std::uint8_t, std::uint16_t>, KdeShortcuts::Combination> m_combinations;
    std::unique_ptr<KdeShortcuts> m_shortcuts;
};

TEST_F(KdeShortcutsTest, oneThatIsTakenIsToldAndReachesNoProgram) {
    const Field field(kwin(), Field::Toolkit::qt);
    ASSERT_EQ(grab(xkey::r, shift, {qtShift | 'R'}), std::nullopt);
    hands().stroke({xkey::shift, xkey::r});
    EXPECT_EQ(next(), (Event{Kind::press, xkey::r, shift}));
    EXPECT_EQ(next(), (Event{Kind::release, xkey::r, shift}));
    hands().stroke({xkey::z});
    EXPECT_EQ(field.text("z"), "z");
}

TEST_F(KdeShortcutsTest, whatIsGivenBackReachesProgramsAgain) {
    const Field field(kwin(), Field::Toolkit::qt);
    ASSERT_EQ(grab(xkey::r, shift, {qtShift | 'R'}), std::nullopt);
    shortcuts()->release({.keycode = xkey::r, .modifiers = shift});
    hands().stroke({xkey::shift, xkey::r});
    EXPECT_EQ(field.text("R"), "R");
}

TEST_F(KdeShortcutsTest, allAreFreeAtTheEnd) {
    const Field field(kwin(), Field::Toolkit::qt);
    ASSERT_EQ(grab(xkey::r, shift, {qtShift | 'R'}), std::nullopt);
    shortcuts().reset();
    hands().stroke({xkey::shift, xkey::r});
    EXPECT_EQ(field.text("R"), "R");
}

TEST_F(KdeShortcutsTest, leftOversOfAProcessThatWasKilledAreTakenBack) {
    const Field field(kwin(), Field::Toolkit::qt);
    // As that one had it.
    const std::string action = "['example.orlen.Keyrill', '27-1', 'Keyrill', 'Combination']";
    kwin().call({"-d", "org.kde.kglobalaccel", "-o", "/kglobalaccel", "-m", "org.kde.KGlobalAccel.doRegister",
                 action});
    kwin().call({"-d", "org.kde.kglobalaccel", "-o", "/kglobalaccel", "-m",
                 "org.kde.KGlobalAccel.setShortcutKeys", action,
                 "[([" + std::to_string(qtShift | 'R') + ", 0, 0, 0],)]", "6"});
    open();
    hands().stroke({xkey::shift, xkey::r});
    EXPECT_EQ(field.text("R"), "R");
}

TEST_F(KdeShortcutsTest, theOwnerOfACombinationIsNamed) {
    EXPECT_EQ(grab(f3, alt, {qtAlt | qtF3}), "KWin has it for “Window Operations Menu”");
}

TEST_F(KdeShortcutsTest, aKeyWithoutANameIsRefused) {
    EXPECT_EQ(grab(xkey::r, shift, {}), "KDE has no name for this key");
}

TEST_F(KdeShortcutsTest, anotherDesktopInItsPlaceIsToldAllAgain) {
    ASSERT_EQ(grab(xkey::r, shift, {qtShift | 'R'}), std::nullopt);
    kwin().comeAgain();
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    ASSERT_EQ(grab(xkey::r, shift, {qtShift | 'R'}), std::nullopt);
    KWinHands(kwin().socket()).stroke({xkey::shift, xkey::r});
    EXPECT_EQ(next(), (Event{Kind::press, xkey::r, shift}));
}

class KdeTwoLayoutsTest : public KdeShortcutsTest {
  protected:
    KdeTwoLayoutsTest() : KdeShortcutsTest("us,ru") {}
};

TEST_F(KdeTwoLayoutsTest, oneIsTakenInEachLayout) {
    constexpr std::int32_t cyrillic = 0x41A;
    ASSERT_EQ(grab(xkey::r, control, {qtControl | 'R', qtControl | cyrillic}), std::nullopt);
    kwin().call({"-d", "org.kde.keyboard", "-o", "/Layouts", "-m", "org.kde.KeyboardLayouts.setLayout", "1"});
    EXPECT_EQ(next(), Event{.kind = Kind::layout});
    hands().stroke({xkey::control, xkey::r});
    EXPECT_EQ(next(), (Event{Kind::press, xkey::r, control}));
}

}  // namespace
