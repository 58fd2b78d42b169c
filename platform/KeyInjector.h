// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Result.h"

/// Why a run goes no further: something has failed, or the user has asked to stop.
struct Halt {
    // Implicit, so that a step of a run fails with the error that it has met.
    // NOLINTNEXTLINE(google-explicit-constructor)
    Halt(Error failure) : error(std::move(failure)) {}

    static Halt cancelled() { return {}; }
    bool isCancelled() const { return !error; }

    /// Empty if the user has asked to stop.
    std::optional<Error> error;

    friend bool operator==(const Halt&, const Halt&) = default;

  private:
    Halt() = default;
};

/// What became of a step of a run: done, or why the run halts. Whoever is given a halt takes no further step
/// and hands it on:
///
///     if (const auto begun = begin(); !begun) return begun.error();
template <typename Value = void>
using Step = Result<Value, Halt>;

/// What a script presses with `key down` and releases with `key up`: one modifier (a bit of
/// platform/Modifiers.h), or a key by its code, or the keys that type a text (UTF-8).
struct HeldModifier {
    std::uint32_t modifier = 0;
};
struct HeldCode {
    std::uint32_t keyCode = 0;
};
struct HeldText {
    std::string text;
};
using HeldKey = std::variant<HeldModifier, HeldCode, HeldText>;

/// Presses keys for one run of a script, and holds every rule about hands, locks and cancelling, so that the
/// script language knows nothing of the window system.
///
/// Nothing is touched before the first step that presses a key. What the script says is what arrives:
/// while the user holds a modifier a step that presses a key waits, so that his combinations reach whom they
/// are meant for; locks that would change it are put out of the way, and put back when the session is
/// destroyed. So are keys that were pressed and not released. Once a step has halted, all later ones answer
/// the same and press nothing.
class InjectionSession {
  public:
    virtual ~InjectionSession() = default;

    /// Modifiers down, key down, key up, modifiers up. Control, Alt or Super come up a moment later, with all
    /// that is held with them; where a stroke with the same ones follows they stay down. A code without a key
    /// plays nothing; the power key is an error.
    virtual Step<> stroke(std::uint32_t keyCode, std::uint32_t modifiers) = 0;

    /// Types the characters of a UTF-8 text, the modifiers held over each. Line feed and carriage return are
    /// Return, the two together one Return; tab is Tab. A character that cannot be typed is an error that
    /// names it.
    virtual Step<> text(std::string_view text, std::uint32_t modifiers) = 0;

    virtual Step<> keyDown(const HeldKey& key) = 0;
    virtual Step<> keyUp(const HeldKey& key) = 0;

    /// Waits. Pauses of one run are paced from deadline to deadline, so that the time that strokes take does
    /// not add up; zero and negative pauses return at once, huge ones wait until cancelled.
    virtual Step<> pause(double seconds) = 0;
};

/// What is known of a run before it starts.
struct InjectionPlan {
    /// Texts that the script is going to type, UTF-8, in order; may be incomplete. All their characters are
    /// made ready at once.
    std::vector<std::string> texts;
};

/// The way to press keys in whatever application has the focus.
class KeyInjector {
  public:
    virtual ~KeyInjector() = default;

    /// A session for one run; there is at most one at a time. Fails with a hint where this desktop lets no
    /// keys be pressed.
    virtual Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) = 0;

    /// A play command starts: forgets an earlier wish to stop.
    virtual void startPlayback() = 0;

    /// Whether the user has asked to stop since the playback started: Escape held for 0.3 s, or a hot key
    /// that cancels playback. So it is when the desktop is gone, or a script that presses nothing any more
    /// would outlive it.
    virtual bool isCancelled() = 0;

    /// Ends the playback as if the user had asked for it. Nothing where keys are only noted down.
    virtual void stopPlayback() {}

    /// Waits until what was typed has been read, where keys have been given a meaning for it that ends with
    /// the program: the last call of one that is about to end. Fails where somebody reads nothing for half a
    /// minute. Nothing where no keys are given meanings.
    virtual Step<> awaitReaders() { return {}; }

    /// The user gets the keyboard back in the middle of a run, to answer a question: locks are as he had
    /// them, what the run holds is up. The next step that presses a key takes over again, and holds again
    /// what was held. Nothing where no session is open.
    virtual void rest() {}

    /// The run is going to do something else than to press keys: what its last stroke has left down for a
    /// moment is up afterwards. What the script holds stays down. Nothing where no session is open.
    virtual void settle() {}
};
