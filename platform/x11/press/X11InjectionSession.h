// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/press/HeldKeys.h"
#include "platform/press/TailWait.h"
#include "platform/run/Pacer.h"
#include "platform/x11/guard/PlayingMark.h"
#include "platform/x11/press/GrabWait.h"
#include "platform/x11/press/HandsWait.h"
#include "platform/x11/press/TextTyper.h"

namespace x11 {

/// What lasts from run to run, as a session uses it.
struct InjectionTools {
    RunWatch& watch;
    Clock& clock;
    RunInterrupt& interrupt;
    PlayingMark& mark;
    GuardLink& guard;
    InjectionConnection& connection;
    KeymapWatch& keymap;
    KeyBinder& binder;
    CharacterKeys& characters;
    GrabWait& grab;
};

/// One run. The first step that presses a key begins it: the mark is set, hands and keyboard are waited for,
/// locks are taken over. So does the first one after a rest. Its end, which is that of the object, undoes
/// what is left.
class X11InjectionSession final : public InjectionSession {
  public:
    X11InjectionSession(const InjectionTools& tools, InjectionPlan plan, std::function<void()> ended);
    ~X11InjectionSession() override;
    X11InjectionSession(const X11InjectionSession&) = delete;
    X11InjectionSession& operator=(const X11InjectionSession&) = delete;

    Step<> stroke(std::uint32_t keyCode, std::uint32_t modifiers) override;
    Step<> text(std::string_view text, std::uint32_t modifiers) override;
    Step<> keyDown(const HeldKey& key) override;
    Step<> keyUp(const HeldKey& key) override;
    Step<> pause(double seconds) override;

    /// KeyInjector::rest(). What the user does is still kept for after the run.
    void rest();
    /// KeyInjector::settle().
    void settle();
    /// The script computes.
    void passTime() { m_tailWait.endTailInTime(); }

  private:
    /// Takes a step unless the run has halted, and remembers if it halts.
    Step<> take(const std::function<Step<>()>& step);
    Step<> begin();
    Step<> freeKeyboard();
    Step<> beginTail();
    KeycodeSet ownKeys() const;
    Step<XkbComponents> checkHands();
    /// Begins if that has not been done, looks whether the user wishes to stop, waits for his hands and
    /// brings the locks in order. Modifiers that are down after the last stroke stay so for one with these
    /// of Control, Alt and Super.
    Step<> prepareStroke(xkb_mod_mask_t commands = 0);
    Step<> awaitOpenScreen();
    Step<> awaitHotKeys();
    Step<> awaitEndOfStroke();
    Step<> awaitGuard();
    Step<> stopProcess();

    Step<Stroke> plan(std::uint32_t keyCode, std::uint32_t modifiers) const;
    Step<> play(const Stroke& stroke);
    Step<> type(std::string_view text, std::uint32_t modifiers);
    Step<> prepareTexts();
    using Strokes = Step<std::vector<Stroke>>;
    Strokes strokesOf(const HeldKey& key);
    Strokes strokesOfModifier(std::uint32_t modifier) const;
    Strokes strokesOfCode(std::uint32_t keyCode) const;
    Strokes strokesOfText(std::string_view text);
    Step<> hold(const Stroke& stroke);
    Step<> adoptLocks(std::uint8_t keycode);

    InjectionTools m_tools;
    InjectionPlan m_plan;
    std::function<void()> m_whenEnded;
    RunWaiter m_waiter;
    ModifierTail m_tail;
    TailWait m_tailWait;
    Pacer m_pacer;
    HandsWait m_hands;
    HandsAndLocks m_locks;
    StrokeSender m_sender;
    HeldKeys m_held;
    TextTyper m_typer;
    XkbComponents m_state;
    bool m_hasBegun = false;
    bool m_rests = false;
    bool m_isPrepared = false;
    /// A stroke with Control, Alt or Super has been played, and nothing since.
    bool m_mayBeHotKey = false;
    Clock::Time m_lastStroke = {};
    std::optional<Halt> m_halt;
};

}  // namespace x11
