// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "desktop/DesktopTest.h"
#include "display/Typist.h"
#include "keymap/NamedKeymap.h"

/// A keyboard as setxkbmap sets it, and the group in which it is typed on.
struct NamedLayout {
    std::string layout;
    std::string variant = {};
    std::string options = {};
    std::uint8_t group = 0;
};

std::string nameOf(const NamedLayout& layout);
/// As the test is called.
// NOLINTNEXTLINE(readability-identifier-naming): the name is the test framework's
void PrintTo(const NamedLayout& layout, std::ostream* stream);

/// What people type on the keyboard of a layout, every key of its letters and signs on every level, dead keys
/// with letters behind them, is recorded and played, while locks are on and off: the terminal gets it twice.
class LayoutsTest : public DesktopTest, public testing::WithParamInterface<NamedLayout> {
  protected:
    LayoutsTest();

    /// Other modifiers in some keymaps than in most.
    std::uint8_t capsLock() const { return static_cast<std::uint8_t>(m_keymap->masks().capsLock); }
    std::uint8_t numLock() const { return static_cast<std::uint8_t>(m_keymap->masks().numLock); }

    /// In every test run two states of the locks are enough.
    static bool isUnderAllLocks();
    /// One recording under these locks (real modifiers), played under others.
    void expectTheSame(std::uint8_t locks, std::uint8_t locksOfPlay);

    std::unique_ptr<Keymap> m_keymap;

  private:
    /// Keys that are pressed together, the last one with the others held.
    using Chord = std::vector<std::uint8_t>;

    std::vector<Chord> chords() const;
    xkb_keysym_t symbolOf(const Chord& chord) const;
    bool isDead(const Chord& chord) const;
    bool isSign(const Chord& chord) const;
    void type(const Chord& chord) const;
    void typeAll() const;
    void startRecording() const;
    void hotKey(std::uint8_t keycode) const;
    void setLocks(std::uint8_t locks) const;

    Hands m_hands{desktop.display()};
    Terminal m_terminal;
    Keyrill m_keyrill;
    std::string m_typed;
};
