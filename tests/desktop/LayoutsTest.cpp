// SPDX-License-Identifier: MIT
#include "desktop/LayoutsTest.h"

#include <algorithm>
#include <iostream>

namespace {

constexpr std::uint8_t menuKey = 135;
constexpr std::uint8_t apostrophe = 48;
constexpr std::uint8_t letterE = 26;

/// Letters, digits and signs of all kinds of keyboards, and the space bar.
std::vector<std::uint8_t> typingKeys() {
    std::vector<std::uint8_t> keys;
    const auto add = [&](int first, int last) {
        for (int keycode = first; keycode <= last; ++keycode) {
            keys.push_back(static_cast<std::uint8_t>(keycode));
        }
    };
    add(10, 21);
    add(24, 35);
    add(38, 49);
    add(51, 61);
    for (const int keycode : {94, 97, 132, 65}) add(keycode, keycode);
    return keys;
}

std::string symbolic(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return text;
}

std::vector<std::string> setting(const NamedLayout& layout) {
    std::vector<std::string> words{"-layout", layout.layout, "-variant", layout.variant, "-option", ""};
    if (!layout.options.empty()) words.insert(words.end(), {"-option", layout.options});
    return words;
}

}  // namespace

std::string nameOf(const NamedLayout& layout) {
    return symbolic(layout.layout + (layout.variant.empty() ? "" : "_" + layout.variant) +
                    (layout.options.empty() ? "" : "_" + layout.options) +
                    (layout.group == 0 ? "" : "_group" + std::to_string(layout.group + 1)));
}

void PrintTo(const NamedLayout& layout, std::ostream* stream) { *stream << nameOf(layout); }

LayoutsTest::LayoutsTest()
    // Before the terminal: some read a keymap that changes in pieces.
    : m_keymap((desktop.setLayout(setting(GetParam())),
                namedKeymap(GetParam().layout, GetParam().options, GetParam().variant))),
      // The locale in which xterm composes.
      m_terminal(desktop.display(), {.environment = {{"LC_ALL", "C.UTF-8"}}}),
      m_keyrill(desktop) {
    m_hands.lockGroup(GetParam().group);
    m_hands.finish();
}

std::vector<LayoutsTest::Chord> LayoutsTest::chords() const {
    const ModifierMasks& masks = m_keymap->masks();
    std::vector<Chord> levels{{}};
    for (const xkb_mod_mask_t mask : {masks.shift, masks.thirdLevel, masks.fifthLevel}) {
        const std::uint8_t chooser = mask == 0 ? std::uint8_t{0} : m_keymap->keys().keyFor(mask);
        if (chooser == 0) continue;
        for (std::size_t i = levels.size(); i-- > 0;) {
            levels.push_back(levels[i]);
            levels.back().push_back(chooser);
        }
    }
    std::vector<Chord> chords;
    for (const Chord& level : levels) {
        for (const std::uint8_t keycode : typingKeys()) {
            Chord chord = level;
            chord.push_back(keycode);
            if (isDead(chord) || isSign(chord)) chords.push_back(chord);
        }
    }
    return chords;
}

xkb_keysym_t LayoutsTest::symbolOf(const Chord& chord) const {
    xkb_mod_mask_t held = 0;
    for (std::size_t i = 0; i + 1 < chord.size(); ++i) held |= m_keymap->keys().heldBy(chord[i]);
    return m_keymap->symbol(chord.back(), held, GetParam().group);
}

bool LayoutsTest::isDead(const Chord& chord) const {
    const xkb_keysym_t symbol = symbolOf(chord);
    return symbol >= XKB_KEY_dead_grave && symbol <= XKB_KEY_dead_longsolidusoverlay;
}

/// Not one that makes a terminal scroll or paste.
bool LayoutsTest::isSign(const Chord& chord) const {
    const std::uint32_t character = xkb_keysym_to_utf32(symbolOf(chord));
    return character >= 0x20 && character != 0x7F;
}

void LayoutsTest::type(const Chord& chord) const {
    for (std::size_t i = 0; i + 1 < chord.size(); ++i) m_hands.press(chord[i]);
    m_hands.tap(chord.back());
    for (std::size_t i = chord.size() - 1; i-- > 0;) m_hands.release(chord[i]);
    m_hands.finish();
}

void LayoutsTest::typeAll() const {
    for (const Chord& chord : chords()) {
        if (!isDead(chord)) type(chord);
    }
    for (const Chord& dead : chords()) {
        if (!isDead(dead)) continue;
        for (const std::uint8_t keycode : {xkey::a, letterE, xkey::space}) {
            type(dead);
            type({keycode});
        }
    }
    if (GetParam().options == "compose:menu") {
        for (const std::uint8_t keycode : {menuKey, apostrophe, letterE}) type({keycode});
    }
    // Whatever is still being composed ends.
    type({xkey::space});
}

/// By the place of its key: on many keyboards no key types that letter.
void LayoutsTest::hotKey(std::uint8_t keycode) const {
    const ModifierMasks& masks = m_keymap->masks();
    const ModifierKeys& keys = m_keymap->keys();
    Typist(m_hands, Typist::Gap(5)).stroke({keys.keyFor(masks.control), keys.keyFor(masks.command), keycode});
}

/// Until the program has seen the hot key up its key types nothing.
void LayoutsTest::startRecording() const {
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    hotKey(xkey::r);
    desktop.awaitWindow(title::overlay);
    ASSERT_TRUE(eventually([this] {
        xcb_connection_t* const connection = m_hands.connection();
        const xcb_window_t root = m_hands.connection().root();
        const auto grab =
            xcb_grab_key_checked(connection, 0, root, 0, xkey::r, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const x11::XReply<xcb_generic_error_t> refused(xcb_request_check(connection, grab));
        if (!refused) xcb_ungrab_key(connection, xkey::r, root, 0);
        return !refused;
    }));
    m_hands.finish();
}

void LayoutsTest::setLocks(std::uint8_t locks) const {
    m_hands.lock(static_cast<std::uint8_t>(capsLock() | numLock()), false);
    if (locks != 0) m_hands.lock(locks, true);
    m_hands.finish();
}

void LayoutsTest::expectTheSame(std::uint8_t locks, std::uint8_t locksOfPlay) {
    const std::string end = "\x1b[24~";
    setLocks(locks);
    startRecording();
    typeAll();
    m_hands.tap(xkey::f12);
    m_hands.finish();
    const auto hasAll = [&] {
        const std::string typed = m_terminal.typed();
        return typed.size() > m_typed.size() && typed.ends_with(end);
    };
    // Terminals look for the fonts of rare signs, each for a while.
    constexpr std::chrono::seconds patience{120};
    ASSERT_TRUE(eventually(hasAll, patience)) << m_terminal.typed();
    const std::string typed = m_terminal.typed().substr(m_typed.size());
    hotKey(xkey::s);
    EXPECT_GT(typed.size(), typingKeys().size());
    setLocks(locksOfPlay);
    hotKey(xkey::p);
    m_typed += typed + typed;
    const std::string all = m_terminal.typed(m_typed.size(), patience);
    EXPECT_EQ(all.substr(m_typed.size() - typed.size()), typed) << "locks " << int{locks};
    m_typed = all;
}

TEST_P(LayoutsTest, whatIsTypedIsPlayedUnderWhicheverLocks) {
    expectTheSame(0, capsLock());
    if (HasFailure()) return;
    expectTheSame(capsLock(), 0);
    // Num Lock chooses levels of letters on some keyboards, so that they scroll the terminal and paste.
    const xkb_layout_index_t group = GetParam().group;
    const bool isOfKeypad =
        m_keymap->symbol(xkey::a, numLock(), group) == m_keymap->symbol(xkey::a, 0, group);
    if (HasFailure() || !isUnderAllLocks()) return;
    if (!isOfKeypad) {
        std::cout << "Without the states of Num Lock, which chooses levels of letters here.\n";
        return;
    }
    expectTheSame(numLock(), capsLock());
    if (HasFailure()) return;
    expectTheSame(static_cast<std::uint8_t>(capsLock() | numLock()), numLock());
}
