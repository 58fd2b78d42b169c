// SPDX-License-Identifier: MIT
#include "platform/monitor/HotKeyTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <utility>

#include "keymap/NamedKeymap.h"
#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name is the test framework's
void PrintTo(const KeyGrab& grab, std::ostream* stream) {
    *stream << "key " << int{grab.keycode} << std::hex << " modifiers 0x" << grab.modifiers << " locks 0x"
            << grab.locks << std::dec;
}

namespace {

constexpr std::uint32_t codeOfR = 15;
constexpr std::uint8_t keyOfR = 27;
constexpr HotKeyId record = 1;
constexpr HotKeyId play = 2;

/// Keeps account of what is held, some of it by another program.
class Grabber final : public KeyGrabber {
  public:
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& /*request*/) override {
        ++grabs;
        if (otherProgramHasAll) return "another program holds it";
        if (isUsersToAllow && !isAllowed) return "the user has not agreed";
        held.push_back(grab);
        return std::nullopt;
    }
    void release(const KeyGrab& grab) override {
        held.erase(std::remove(held.begin(), held.end(), grab), held.end());
    }

    bool isDecidedByUser() const override { return isUsers; }
    bool takesSymbols() const override { return isBySymbols; }
    bool needsConsent() const override { return isUsersToAllow; }
    void setConsent(bool given) override { isAllowed = given; }

    std::optional<Error> obstacleToAll() const override { return obstacle; }

    std::vector<KeyGrab> held;
    std::optional<Error> obstacle;
    bool otherProgramHasAll = false;
    bool isUsers = false;
    bool isUsersToAllow = false;
    bool isAllowed = false;
    bool isBySymbols = false;
    int grabs = 0;
};

class HotKeyTableTest : public testing::Test {
  protected:
    static HotKeyRequest asked(HotKeyId id, std::uint32_t modifiers = modifier::control | modifier::command,
                               std::uint32_t keyCode = codeOfR) {
        return {
            .id = id, .name = id == record ? "record" : "play", .keyCode = keyCode, .modifiers = modifiers};
    }
    void changeKeymap(const std::string& layout, const std::string& options) {
        m_keyboard.replaceKeymap(namedKeymap(layout, options));
        m_table.followKeymap();
    }
    /// Why a request was refused; empty if it was not.
    std::string refusal(HotKeyId id) const {
        const HotKeyState state = m_table.state(id);
        return state.error ? state.error->message.text() : std::string();
    }

    const KeyGrab m_controlSuperR{.keycode = keyOfR, .modifiers = 0x44, .locks = 0x12};
    Grabber m_grabber;
    KeyboardState m_keyboard{namedKeymap("us"), {}};
    HotKeyTable m_table{m_grabber, m_keyboard};
};

TEST_F(HotKeyTableTest, aRequestIsAGrabByTheKeymapsOwnModifiers) {
    m_table.request(asked(record));
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::registered);
    EXPECT_EQ(m_table.find(keyOfR, 0x44 | 0x02), record);
    EXPECT_EQ(m_table.find(keyOfR, 0x04), std::nullopt);
}

TEST_F(HotKeyTableTest, aLevelChooserIsPartOfTheCombination) {
    m_table.request(asked(record, 0, keycode::thirdLevel + codeOfR));
    EXPECT_EQ(m_grabber.held, (std::vector{KeyGrab{.keycode = keyOfR, .modifiers = 0x80, .locks = 0x12}}));
}

TEST_F(HotKeyTableTest, aCharacterAloneIsRefused) {
    constexpr std::uint32_t space = 49;
    constexpr std::uint32_t keypad5 = 87;
    m_table.request(asked(record, 0));
    EXPECT_EQ(refusal(record), "R cannot be used: nobody could type it any more.");
    EXPECT_EQ(m_table.state(record).error->hint, "Add Ctrl, Alt or Super.");
    using Combination = std::pair<std::uint32_t, std::uint32_t>;
    for (const auto& [modifiers, code] :
         {Combination{0, space}, Combination{0, keypad5}, Combination{modifier::shift, codeOfR}}) {
        m_table.request(asked(play, modifiers, code));
        EXPECT_EQ(m_table.state(play).status, HotKeyStatus::refused) << code << " " << modifiers;
    }
    EXPECT_TRUE(m_grabber.held.empty());
}

TEST_F(HotKeyTableTest, aKeyThatTypesNothingNeedsNoModifier) {
    constexpr std::uint32_t f5 = 96;
    constexpr std::uint32_t left = 123;
    m_table.request(asked(record, 0, f5));
    m_table.request(asked(play, modifier::shift, left));
    EXPECT_EQ(m_grabber.held.size(), 2U);
}

TEST_F(HotKeyTableTest, aWithdrawnCombinationIsGivenFree) {
    m_table.request(asked(record));
    m_table.withdraw(record);
    EXPECT_TRUE(m_grabber.held.empty());
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::unset);
}

TEST_F(HotKeyTableTest, whatAnotherProgramHoldsIsRefused) {
    m_grabber.otherProgramHasAll = true;
    m_table.request(asked(record));
    EXPECT_EQ(refusal(record), "Ctrl+Super+R cannot be used: another program holds it.");
}

TEST_F(HotKeyTableTest, whatAnotherProgramHoldsIsTakenOnceItIsFree) {
    m_grabber.otherProgramHasAll = true;
    m_table.request(asked(record));
    EXPECT_TRUE(m_table.isKeptWaiting());
    m_table.tryAgain();
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::refused);
    m_grabber.otherProgramHasAll = false;
    m_table.tryAgain();
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::registered);
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
    EXPECT_FALSE(m_table.isKeptWaiting());
    m_table.tryAgain();
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
}

TEST_F(HotKeyTableTest, nothingIsWaitedForAfterAWithdrawal) {
    m_grabber.otherProgramHasAll = true;
    m_table.request(asked(record));
    m_table.withdraw(record);
    EXPECT_FALSE(m_table.isKeptWaiting());
}

TEST_F(HotKeyTableTest, theFirstOfTwoKeepsACombinationAndTheSecondGetsItAfterwards) {
    m_table.request(asked(record));
    m_table.request(asked(play));
    EXPECT_EQ(refusal(play), "Ctrl+Super+R cannot be used: Keyrill uses it for something else.");
    m_table.withdraw(record);
    EXPECT_EQ(m_table.state(play).status, HotKeyStatus::registered);
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
}

TEST_F(HotKeyTableTest, aKeyThatNoKeyboardHasIsRefused) {
    constexpr std::uint32_t showDesktop = 161;
    m_table.request(asked(record, 0, showDesktop));
    EXPECT_EQ(refusal(record), "Show Desktop cannot be used: this desktop has no such key.");
}

TEST_F(HotKeyTableTest, aModifierWithoutAKeyIsNamed) {
    changeKeymap("us", "altwin:alt_win");
    m_table.request(asked(record));
    EXPECT_EQ(refusal(record), "Ctrl+Super+R cannot be used: the keyboard layout has no key for Super.");
    EXPECT_TRUE(m_grabber.held.empty());
}

TEST_F(HotKeyTableTest, aChooserWithoutAKeyIsNamed) {
    m_table.request(asked(record, 0, keycode::fifthLevel + codeOfR));
    EXPECT_EQ(refusal(record), "R cannot be used: the keyboard layout has no key for the fifth level.");
    EXPECT_TRUE(m_grabber.held.empty());
}

TEST_F(HotKeyTableTest, followsTheKeymap) {
    m_table.request(asked(record));
    changeKeymap("us", "altwin:alt_win");
    EXPECT_TRUE(m_grabber.held.empty());
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::refused);
    changeKeymap("de", "altwin:swap_alt_win");
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::registered);
}

TEST_F(HotKeyTableTest, asksAgainForTheSameKeyWhereItsSymbolsAreTaken) {
    m_table.request(asked(record));
    changeKeymap("us,ru", "");
    EXPECT_EQ(m_grabber.grabs, 1);
    m_grabber.isBySymbols = true;
    changeKeymap("us,ru,de", "");
    EXPECT_EQ(m_grabber.grabs, 2);
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::registered);
}

TEST_F(HotKeyTableTest, aLiftedCombinationIsFreeUntilItIsRestored) {
    m_table.request(asked(record));
    EXPECT_FALSE(m_table.lift(keyOfR, 0x04));
    EXPECT_TRUE(m_table.lift(keyOfR, 0x44));
    EXPECT_TRUE(m_grabber.held.empty());
    EXPECT_FALSE(m_table.lift(keyOfR, 0x44));
    m_table.restoreAll(keyOfR);
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
}

TEST_F(HotKeyTableTest, aLevelThatAKeyLocksDoesNotMatterForACombination) {
    changeKeymap("de(neo)", "");
    m_table.request(asked(record));
    EXPECT_EQ(m_grabber.held, (std::vector{KeyGrab{.keycode = keyOfR, .modifiers = 0x44, .locks = 0x32}}));
    EXPECT_EQ(m_table.find(keyOfR, 0x44 | 0x20), record);
}

TEST_F(HotKeyTableTest, aLockedShiftIsPartOfTheGrabForAsLongAsItLasts) {
    m_table.request(asked(record));
    m_table.request(asked(play, modifier::control));
    m_keyboard.adopt({.locked = 0x01});
    m_table.followLocks();
    EXPECT_EQ(m_table.find(keyOfR, 0x45), record);
    EXPECT_EQ(m_table.find(keyOfR, 0x05), play);
    EXPECT_EQ(m_grabber.held, (std::vector{KeyGrab{.keycode = keyOfR, .modifiers = 0x45, .locks = 0x12},
                                           KeyGrab{.keycode = keyOfR, .modifiers = 0x05, .locks = 0x12}}));
    EXPECT_TRUE(m_table.lift(keyOfR, 0x44));
    m_keyboard.adopt({});
    m_table.followLocks();
    EXPECT_EQ(m_grabber.held, (std::vector{KeyGrab{.keycode = keyOfR, .modifiers = 0x04, .locks = 0x12}}));
    m_table.restoreAll(keyOfR);
    EXPECT_EQ(m_table.find(keyOfR, 0x44), record);
    EXPECT_EQ(m_table.find(keyOfR, 0x45), std::nullopt);
}

TEST_F(HotKeyTableTest, allCombinationsOfAKeyAreFreeUntilTheyAreRestored) {
    m_table.request(asked(record));
    m_table.request(asked(play, modifier::control));
    EXPECT_TRUE(m_table.liftAll(keyOfR));
    EXPECT_FALSE(m_table.liftAll(keyOfR));
    EXPECT_TRUE(m_grabber.held.empty());
    m_table.restoreAll(keyOfR + 1);
    EXPECT_TRUE(m_grabber.held.empty());
    m_table.restoreAll(keyOfR);
    EXPECT_EQ(m_grabber.held,
              (std::vector{m_controlSuperR, KeyGrab{.keycode = keyOfR, .modifiers = 0x04, .locks = 0x12}}));
}

TEST_F(HotKeyTableTest, aLiftedCombinationFollowsTheKeymapWhenItIsRestored) {
    m_table.request(asked(record));
    m_table.liftAll(keyOfR);
    changeKeymap("us", "altwin:alt_win");
    EXPECT_TRUE(m_grabber.held.empty());
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::registered);
    m_table.restoreAll(keyOfR);
    EXPECT_TRUE(m_grabber.held.empty());
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::refused);
}

TEST_F(HotKeyTableTest, whatIsWithdrawnWhileItIsLiftedStaysFree) {
    m_table.request(asked(record));
    m_table.liftAll(keyOfR);
    m_table.withdraw(record);
    m_table.restoreAll(keyOfR);
    EXPECT_TRUE(m_grabber.held.empty());
}

TEST_F(HotKeyTableTest, tellsOfEachChangeOnce) {
    std::vector<HotKeyStatus> seen;
    m_table.observe([&](HotKeyId, const HotKeyState& state) { seen.push_back(state.status); });
    m_table.request(asked(record));
    m_table.request(asked(record));
    m_table.withdraw(record);
    EXPECT_EQ(seen, (std::vector{HotKeyStatus::registered, HotKeyStatus::unset}));
}

/// On a desktop whose user decides.
class DecidedByUserTest : public HotKeyTableTest {
  protected:
    DecidedByUserTest() {
        m_grabber.isUsers = true;
        m_table.request(asked(record));
    }
    static constexpr KeyGrab f9{.keycode = 75};
};

TEST_F(DecidedByUserTest, aWishIsPendingAndNoKeyIsTakenForItYet) {
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::pending);
    EXPECT_EQ(m_table.find(keyOfR, 0x44), std::nullopt);
    EXPECT_EQ(m_table.ownerOf(m_controlSuperR), record);
}

TEST_F(DecidedByUserTest, itIsPressedAsTheDesktopsSettingsSay) {
    m_table.answer(m_controlSuperR, {.refusal = {}, .trigger = "Press F9", .keys = f9});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::changed);
    EXPECT_EQ(m_table.state(record).trigger, "Press F9");
    EXPECT_EQ(m_table.find(keyOfR, 0x44), std::nullopt);
    EXPECT_EQ(m_table.find(75, 0x12), record);
    EXPECT_TRUE(m_table.usesKeycode(75));
}

TEST_F(DecidedByUserTest, wordsThatNobodyUnderstandsAreNoKeys) {
    m_table.answer(m_controlSuperR, {.refusal = {}, .trigger = "the red button", .keys = {}});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::changed);
    EXPECT_EQ(m_table.find(keyOfR, 0x44), std::nullopt);
    EXPECT_EQ(m_table.ownerOf(m_controlSuperR), record);
}

TEST_F(DecidedByUserTest, aRefusalSaysWhyAndMayBeTakenBack) {
    m_table.answer(m_controlSuperR, {.refusal = "you did not agree"});
    EXPECT_EQ(refusal(record), "Ctrl+Super+R cannot be used: you did not agree.");
    EXPECT_FALSE(m_table.isKeptWaiting());
    m_table.answer(m_controlSuperR, {.refusal = {}, .trigger = "", .keys = m_controlSuperR});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::changed);
    EXPECT_EQ(refusal(record), "");
}

TEST_F(DecidedByUserTest, anAnswerToWhatIsNotAskedForAnyMoreIsNothing) {
    m_table.withdraw(record);
    m_table.answer(m_controlSuperR, {.refusal = {}, .trigger = "", .keys = m_controlSuperR});
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::unset);
}

TEST_F(DecidedByUserTest, nothingIsGivenFreeForAWhile) {
    m_table.answer(m_controlSuperR, {.refusal = {}, .trigger = "", .keys = m_controlSuperR});
    EXPECT_FALSE(m_table.canLift());
    EXPECT_FALSE(m_table.lift(keyOfR, 0x44));
    EXPECT_FALSE(m_table.liftAll(keyOfR));
    EXPECT_EQ(m_grabber.held, std::vector{m_controlSuperR});
}

TEST_F(HotKeyTableTest, whatNeedsConsentIsRefusedUntilItIsGivenAndWhenItIsTakenBack) {
    m_grabber.isUsersToAllow = true;
    EXPECT_TRUE(m_table.needsConsent());
    m_table.request(asked(record));
    EXPECT_EQ(refusal(record), "Ctrl+Super+R cannot be used: the user has not agreed.");
    m_table.setConsent(true);
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::registered);
    EXPECT_EQ(m_grabber.held, std::vector<KeyGrab>{m_controlSuperR});
    const int before = m_grabber.grabs;
    m_table.setConsent(true);
    EXPECT_EQ(m_grabber.grabs, before);
    m_table.setConsent(false);
    EXPECT_EQ(m_table.state(record).status, HotKeyStatus::refused);
    EXPECT_EQ(m_grabber.held, std::vector<KeyGrab>{});
}

/// So that it can be told once.
TEST_F(HotKeyTableTest, whatRefusesAllIsTheReasonOfEach) {
    m_grabber.isUsersToAllow = true;
    m_grabber.obstacle = Error{"There are none.", "Allow them."};
    m_table.request(asked(record));
    m_table.request(asked(play, modifier::control));
    for (const HotKeyId id : {record, play}) {
        EXPECT_EQ(m_table.state(id).status, HotKeyStatus::refused);
        EXPECT_EQ(m_table.state(id).error, m_grabber.obstacle);
    }
    EXPECT_EQ(m_grabber.grabs, 0);
    m_grabber.obstacle.reset();
    m_table.setConsent(true);
    for (const HotKeyId id : {record, play}) EXPECT_EQ(m_table.state(id).status, HotKeyStatus::registered);
}

}  // namespace
