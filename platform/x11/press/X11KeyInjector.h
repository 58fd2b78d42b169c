// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/KeyInjector.h"

class Clock;
class RunWatch;

namespace x11 {

/// Presses keys on an X11 display through XTEST.
///
/// A run waits while a hand holds a modifier, clears the locks that would change what arrives, and puts the
/// locks back at its end. Before its first stroke the guard is started, a program that releases what is still
/// down should this process die in the middle of a stroke; without the guard nothing is played.
///
/// The watch and the clock must outlive the injector; all of it lives on one thread. Destroying the injector
/// takes the characters back that were put on unused keys, when the last of them has been read, after a
/// second at the latest.
class X11KeyInjector final : public KeyInjector {
  public:
    struct Options {
        /// The display to press keys on; $DISPLAY if empty.
        std::string display = {};
        /// The guard program; looked for beside the running program and where it is installed if empty.
        std::string guard = {};
        /// Where the mark of a lasting run is kept; $XDG_RUNTIME_DIR if empty. Without either there is no
        /// mark.
        std::string runtimeFolder = {};
        /// How long a run waits for a program that reads nothing, where that keeps it from typing on.
        std::chrono::milliseconds patience{30'000};
    };

    X11KeyInjector(RunWatch& watch, Clock& clock);
    X11KeyInjector(RunWatch& watch, Clock& clock, Options options);
    ~X11KeyInjector() override;

    /// Whether there is that guard, or, if it is empty, one where it is looked for.
    static bool findsGuard(const std::string& guard);

    /// Connects, checks that keys can be pressed here, and clears away what an earlier process left that was
    /// killed: keys held down, characters on unused keys. For the start of the program; open() does it if it
    /// has not been done.
    Result<void> start();

    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
    void startPlayback() override;
    bool isCancelled() override;
    void stopPlayback() override;
    Step<> awaitReaders() override;
    void rest() override;
    void settle() override;

    /// Ends the run that lasts, and all later ones before their first stroke: the process is about to end.
    /// Async-signal-safe, so that handlers of SIGTERM, SIGINT and SIGHUP may call it; they must not end the
    /// process themselves, since what is down is released as the session unwinds.
    void interrupt() noexcept;
    /// Session::suspend().
    void suspend() noexcept;

  private:
    struct Parts;

    RunWatch& m_watch;
    Clock& m_clock;
    Options m_options;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace x11
