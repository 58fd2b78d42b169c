// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

#include "platform/Clock.h"
#include "platform/XkbCodes.h"

/// What can be seen of another program that has taken the keyboard for itself.
struct HoldSigns {
    /// Another program gets all keys.
    bool keyboard = false;
    /// A program has the mouse for itself as well.
    bool pointer = false;
    /// A small window came up with it that no window manager knows: a menu's.
    bool popup = false;
    /// Such a window came up with it that covers the screen, or some that cover half of it: each a monitor.
    bool cover = false;
};

/// Tells a screen locker from a menu, a window manager's hot key and a game, by what is seen now and then
/// while a program has the keyboard for itself. No desktop tells of such lockers.
///
/// | what is seen                                                              | verdict   |
/// | nobody has the keyboard, or a menu's window explains it                   | open      |
/// | the keys with which it began are still down: a hot key of another program | undecided |
/// | it outlives them, and a window covers the screen                          | locked    |
/// | it outlives them for 0.2 s, and the mouse is held too                     | locked    |
/// | it outlives them for 2 s, the keyboard alone: a question, a viewer, a game | taken     |
/// | before that time                                                          | undecided |
///
/// Locked and taken last until the keyboard is free.
class KeyboardHold {
  public:
    enum class Verdict {
        open,       ///< keys are the user's words to his programs
        undecided,  ///< keep them until it is known
        taken,      ///< they are for one program alone
        locked,     ///< they are for a locker
    };
    static constexpr std::chrono::milliseconds lockTime{200};
    static constexpr std::chrono::milliseconds takeTime{2000};

    /// What is seen at this moment; `down` are the keys that are.
    void look(Clock::Time now, const HoldSigns& signs, const KeycodeSet& down) {
        if (!signs.keyboard) return reset();
        if (isShut() && !(m_verdict == Verdict::taken && signs.pointer)) return;
        if (signs.popup && !signs.cover) return reset();
        if (!m_since) {
            m_since = now;
            m_first = down;
        }
        m_first &= down;
        m_withPointer = signs.pointer;
        m_verdict = judge(now, signs);
    }
    void reset() {
        m_since.reset();
        m_verdict = Verdict::open;
    }

    Verdict verdict() const { return m_verdict; }
    /// Whether nothing of what is typed is to be known.
    bool isShut() const { return m_verdict == Verdict::taken || m_verdict == Verdict::locked; }
    /// Whether a locker is likely, and not certain yet.
    bool mayBeLocked() const { return m_verdict == Verdict::undecided && isOutlived() && m_withPointer; }

  private:
    /// Whether it goes on though the keys are up with which it may have begun.
    bool isOutlived() const { return m_since && m_first.none(); }
    Verdict judge(Clock::Time now, const HoldSigns& signs) const {
        if (!isOutlived()) return Verdict::undecided;
        const auto lasted = now - *m_since;
        if (signs.cover || (signs.pointer && lasted >= lockTime)) return Verdict::locked;
        return lasted >= takeTime ? Verdict::taken : Verdict::undecided;
    }

    Verdict m_verdict = Verdict::open;
    std::optional<Clock::Time> m_since;
    KeycodeSet m_first;
    bool m_withPointer = false;
};
