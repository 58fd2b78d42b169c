// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/run/RunWait.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// The windows that are typed into, and whether their programs have taken in what was typed.
///
/// Why: a program looks a key up when it comes to it, in the keymap that it has by then. On a busy machine
/// that is later than any fixed time, and a key that has been given another character meanwhile is read as
/// that. So the program is asked: by a ping of the Extended Window Manager Hints (_NET_WM_PING), which it
/// answers when it has come to it, behind the keys that were sent before. Of one that knows no pings the
/// process is watched: one that has slept a while has nothing left to read.
class Receivers {
  public:
    /// Of the display, or of $DISPLAY if it is empty, over a connection of its own, as it is sent what
    /// happens to all windows while answers are awaited. It is opened at the first use, which few runs come
    /// to; while it cannot be, nobody is asked.
    Receivers(std::string display, const Clock& clock);
    ~Receivers();
    Receivers(const Receivers&) = delete;
    Receivers& operator=(const Receivers&) = delete;

    /// Whoever gets the keys now is one.
    void note();

    /// Waits until all that were noted, and whoever gets the keys now, have taken everything in; then none is
    /// noted any more. One that does not answer within `longest` is never waited for again.
    Step<> await(RunWait& wait, std::chrono::milliseconds longest);

  private:
    /// A window whose program can be asked in one of the two ways.
    struct Receiver {
        xcb_window_t window = XCB_WINDOW_NONE;
        bool answersPings = false;
        pid_t process = 0;
        /// Of a process: how often it had been put to sleep or stopped, and since when it sleeps.
        long switches = -1;
        std::optional<Clock::Time> asleepSince = {};
        bool isDone = false;
    };

    struct Server;

    bool open();
    std::optional<Receiver> find(xcb_window_t window) const;
    std::vector<Receiver> all() const;
    void selectAnswers(bool on) const;
    void ping(const Receiver& receiver) const;
    /// Finds out which of them have taken everything in by now.
    void follow(std::vector<Receiver>& receivers) const;
    void readAnswers(std::vector<Receiver>& receivers) const;
    void watchSleep(Receiver& receiver) const;
    static bool areDone(const std::vector<Receiver>& receivers);

    std::string m_display;
    const Clock& m_clock;
    std::unique_ptr<const Server> m_server;
    std::set<xcb_window_t> m_noted;
    std::set<xcb_window_t> m_silent;
    /// What tells this round's answers from older ones.
    std::uint32_t m_stamp = 0;
};

}  // namespace x11
