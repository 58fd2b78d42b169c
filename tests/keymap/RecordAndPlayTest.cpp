// SPDX-License-Identifier: MIT
// What is recorded of a key is what is pressed when it is played: MaskShaper and StrokePlan on one keymap.
#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "keymap/NamedKeymap.h"
#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/MaskShaper.h"
#include "platform/keymap/StrokePlan.h"

namespace {

struct Layout {
    const char* name;
    const char* options = "";
};

void PrintTo(const Layout& layout, std::ostream* stream) { *stream << layout.name << ' ' << layout.options; }

class RecordAndPlayTest : public testing::TestWithParam<Layout> {
  protected:
    /// The modifiers that a hand can hold in this keymap, each by its own key.
    std::vector<xkb_mod_mask_t> holdable(const std::vector<xkb_mod_mask_t>& masks) const {
        std::vector<xkb_mod_mask_t> combinations{0};
        for (const xkb_mod_mask_t mask : masks) {
            if (!m_keymap->keys().canHold(mask)) continue;
            for (std::size_t i = combinations.size(); i-- > 0;)
                combinations.push_back(combinations[i] | mask);
        }
        return combinations;
    }
    std::vector<xkb_mod_mask_t> choosers() const {
        const ModifierMasks& masks = m_keymap->masks();
        return holdable({masks.shift, masks.thirdLevel, masks.fifthLevel});
    }
    std::vector<xkb_mod_mask_t> commands() const {
        const ModifierMasks& masks = m_keymap->masks();
        return holdable({masks.control, masks.option, masks.command});
    }

    Result<Stroke> played(std::uint8_t keycode, xkb_mod_mask_t modifiers, xkb_layout_index_t layout) const {
        const bool held = m_keymap->reported(modifiers) != 0;
        const TypedKey typed = shapeKey(*m_keymap, keycode, modifiers, layout, held);
        return planStroke(*m_keymap, typed.keyCode, typed.modifiers);
    }

    template <typename Check>
    void forEachKey(const Check& check) const {
        std::size_t keys = 0;
        for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(m_keymap->get()); ++layout) {
            for (std::uint16_t keycode = xkbcode::first; keycode <= xkbcode::last; ++keycode) {
                const auto key = static_cast<std::uint8_t>(keycode);
                if (!isOrdinary(key, layout)) continue;
                SCOPED_TRACE(testing::Message() << "key " << keycode << " layout " << layout);
                check(key, layout);
                if (HasFailure()) return;
                ++keys;
            }
        }
        // Of the 108 keys of an ordinary keyboard.
        EXPECT_GE(keys, 95 * xkb_keymap_num_layouts(m_keymap->get()));
    }

    /// A symbol as the character that it types, as far as it types one.
    static std::uint32_t nameOf(xkb_keysym_t symbol) {
        const std::uint32_t character = xkb_keysym_to_utf32(symbol);
        return character != 0 ? character : symbol;
    }

    std::unique_ptr<Keymap> m_keymap = namedKeymap(GetParam().name, GetParam().options);

  private:
    /// A key that is recorded as itself: not one of those that share a code with another, nor the power key.
    bool isOrdinary(std::uint8_t key, xkb_layout_index_t layout) const {
        const std::uint32_t code = keycode::fromEvdev(xkbcode::toEvdev(key));
        return !m_keymap->keys().isModifierKey(key, layout) && m_keymap->keycodeFor(code) == key;
    }
};

TEST_P(RecordAndPlayTest, everyKeyAndLevelIsPressedAsItWasTyped) {
    forEachKey([this](std::uint8_t key, xkb_layout_index_t layout) {
        if (keycode::isKeypadDigit(keycode::fromEvdev(xkbcode::toEvdev(key)))) return;
        for (const xkb_mod_mask_t chooser : choosers()) {
            for (const xkb_mod_mask_t command : commands()) {
                const auto stroke = played(key, chooser | command, layout);
                ASSERT_TRUE(stroke) << stroke.error().message;
                EXPECT_EQ(stroke.value(), (Stroke{.keycode = key, .modifiers = chooser | command}));
            }
        }
    });
}

TEST_P(RecordAndPlayTest, underCapsLockWhatWasTypedIsTypedAgain) {
    const xkb_mod_mask_t capsLock = m_keymap->masks().capsLock;
    forEachKey([&](std::uint8_t key, xkb_layout_index_t layout) {
        if (keycode::isKeypadDigit(keycode::fromEvdev(xkbcode::toEvdev(key)))) return;
        for (const xkb_mod_mask_t chooser : choosers()) {
            const xkb_keysym_t symbol = m_keymap->symbol(key, chooser | capsLock, layout);
            const auto stroke = played(key, chooser | capsLock, layout);
            ASSERT_TRUE(stroke) << stroke.error().message;
            const Stroke& pressed = stroke.value();
            EXPECT_EQ(pressed.keycode, key);
            EXPECT_EQ(nameOf(m_keymap->symbol(key, pressed.modifiers | pressed.lockValues, layout)),
                      nameOf(symbol));
        }
    });
}

TEST_P(RecordAndPlayTest, aCombinationUnderCapsLockIsTheSameCombination) {
    const xkb_mod_mask_t capsLock = m_keymap->masks().capsLock;
    forEachKey([&](std::uint8_t key, xkb_layout_index_t layout) {
        if (keycode::isKeypadDigit(keycode::fromEvdev(xkbcode::toEvdev(key)))) return;
        for (const xkb_mod_mask_t chooser : choosers()) {
            for (const xkb_mod_mask_t command : commands()) {
                if (command == 0) continue;
                const auto stroke = played(key, chooser | command | capsLock, layout);
                ASSERT_TRUE(stroke) << stroke.error().message;
                EXPECT_EQ(stroke.value(), (Stroke{.keycode = key, .modifiers = chooser | command}));
            }
        }
    });
}

TEST_P(RecordAndPlayTest, aKeypadDigitIsTypedAgainWhateverNumLockIsThen) {
    const xkb_mod_mask_t numLock = m_keymap->masks().numLock;
    forEachKey([&](std::uint8_t key, xkb_layout_index_t layout) {
        if (!keycode::isKeypadDigit(keycode::fromEvdev(xkbcode::toEvdev(key)))) return;
        // Which state types it differs between layouts.
        bool hasDigit = false;
        for (const xkb_mod_mask_t lock : {xkb_mod_mask_t{0}, numLock}) {
            const xkb_keysym_t typed = m_keymap->symbol(key, lock, layout);
            if (xkb_keysym_to_utf32(typed) == 0) continue;
            hasDigit = true;
            const TypedKey recorded = shapeKey(*m_keymap, key, lock, layout, false);
            const auto stroke = planStroke(*m_keymap, recorded.keyCode, recorded.modifiers, layout);
            ASSERT_TRUE(stroke);
            EXPECT_EQ(stroke.value().keycode, key);
            EXPECT_EQ(stroke.value().lockMask, numLock);
            const xkb_mod_mask_t modifiers = stroke.value().modifiers | stroke.value().lockValues;
            EXPECT_EQ(nameOf(m_keymap->symbol(key, modifiers, layout)), nameOf(typed));
        }
        EXPECT_TRUE(hasDigit);
    });
}

/// Of many countries and for many habits, and pairs of which both are tried.
std::vector<Layout> layouts() {
    std::vector<Layout> layouts{{"us", "altwin:swap_alt_win"},  {"us", "altwin:meta_win"},
                                {"us", "altwin:alt_win"},       {"de", "lv3:caps_switch"},
                                {"us", "ctrl:swapcaps"},        {"us", "lv5:ralt_switch_lock"},
                                {"us", "caps:shiftlock"},       {"us,ru", "grp:alt_shift_toggle"},
                                {"de(neo)", "altwin:meta_win"}, {"us,ru", "grp:switch"}};
    for (const char* name :
         {"us",    "us(intl)", "us(dvorak)", "us(colemak)", "gb", "de",    "de(neo)", "de(bone)",
          "fr",    "fr(bepo)", "es",         "it",          "pt", "br",    "latam",   "ca(multix)",
          "cz",    "sk",       "pl",         "hu",          "ro", "hr",    "si",      "tr",
          "gr",    "ru",       "ua",         "bg",          "il", "ara",   "th",      "ge",
          "jp",    "kr",       "se",         "no",          "dk", "fi",    "ch",      "be",
          "lv",    "lt",       "ee",         "is",          "vn", "us,ru", "de,ru",   "us,gr",
          "cz,us", "fr,ara",   "us,il"}) {
        layouts.push_back({name});
    }
    return layouts;
}

INSTANTIATE_TEST_SUITE_P(Layouts, RecordAndPlayTest, testing::ValuesIn(layouts()));

}  // namespace
