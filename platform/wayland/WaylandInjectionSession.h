// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "platform/KeyInjector.h"
#include "platform/press/HeldKeys.h"
#include "platform/press/TailWait.h"
#include "platform/run/Pacer.h"
#include "platform/wayland/Pressing.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

/// What lasts from run to run, as a session uses it.
struct InjectionTools {
    RunWatch& watch;
    Clock& clock;
    RunInterrupt& interrupt;
    WaylandConnection& connection;
    SeatKeymap& seat;
    Pressing& pressing;
};

/// One run. The first step that presses a key begins it: its keyboard comes, with the layout that is in force
/// then; so does the first one after a rest. It goes with the object.
///
/// Each stroke waits while hands hold modifiers, as far as the watch knows: though theirs are on keyboards of
/// their own, a program that knows of one keyboard only, as X11 ones do, takes theirs and ours for one.
class WaylandInjectionSession final : public InjectionSession {
  public:
    WaylandInjectionSession(const InjectionTools& tools, InjectionPlan plan, std::function<void()> ended);
    ~WaylandInjectionSession() override;
    WaylandInjectionSession(const WaylandInjectionSession&) = delete;
    WaylandInjectionSession& operator=(const WaylandInjectionSession&) = delete;

    Step<> stroke(std::uint32_t keyCode, std::uint32_t modifiers) override;
    Step<> text(std::string_view text, std::uint32_t modifiers) override;
    Step<> keyDown(const HeldKey& key) override;
    Step<> keyUp(const HeldKey& key) override;
    Step<> pause(double seconds) override;

    /// KeyInjector::rest().
    void rest();
    /// KeyInjector::settle().
    void settle();
    /// The script computes.
    void passTime() { m_tailWait.endTailInTime(); }

  private:
    /// Takes a step unless the run has halted, and remembers if it halts.
    Step<> take(const std::function<Step<>()>& step);
    Step<> begin();
    /// Begins if that has not been done, and looks whether the user wishes to stop. Modifiers that are down
    /// after the last stroke stay so for one with these of Control, Alt and Super.
    Step<> prepareStroke(xkb_mod_mask_t commands = 0);
    Step<> stopProcess();
    bool handsHoldModifiers() const;
    Step<> awaitHands();
    Step<> beginTail();

    Result<Stroke> plan(std::uint32_t keyCode, std::uint32_t modifiers) const;
    Step<> play(const Stroke& stroke);
    Step<> type(std::string_view text, std::uint32_t modifiers);
    Step<> prepareTexts();
    using Strokes = Step<std::vector<Stroke>>;
    Strokes strokesOf(const HeldKey& key);
    Strokes strokesOfText(std::string_view text);
    Step<> hold(const Stroke& stroke);

    InjectionTools m_tools;
    InjectionPlan m_plan;
    std::function<void()> m_whenEnded;
    RunWaiter m_waiter;
    ModifierTail m_tail;
    TailWait m_tailWait;
    Pacer m_pacer;
    StrokeSender m_sender;
    HeldKeys m_held;
    std::unique_ptr<RunKeyboard> m_keyboard;
    bool m_hasBegun = false;
    bool m_rests = false;
    bool m_isPrepared = false;
    std::optional<Halt> m_halt;
};

}  // namespace wayland
