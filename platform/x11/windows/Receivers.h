// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/run/RunWait.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/windows/ReaderProcess.h"

namespace x11 {

/// The windows that are typed into, and whether their programs have taken in what was typed.
///
/// Why: a program looks a key up when it comes to it, in the keymap that it has by then. On a busy machine
/// that is later than any fixed time, and a key that has been given another character meanwhile is read as
/// that. So the program is asked: by a ping of the Extended Window Manager Hints (_NET_WM_PING), which it
/// answers when it has come to it, behind the keys that were sent before. Of one that knows no pings the
/// process is watched (ReaderProcess); one that is not on this machine gets a while.
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
    /// noted any more. False if one of them has not within `longest`; all stay noted.
    Step<bool> await(RunWait& wait, std::chrono::milliseconds longest);

  private:
    struct Receiver {
        xcb_window_t window = XCB_WINDOW_NONE;
        bool answersPings = false;
        /// Watched where it answers none; empty where it is not on this machine.
        std::optional<ReaderProcess> process = std::nullopt;
        bool isDone = false;
    };

    struct Server;

    bool open();
    std::optional<Receiver> find(xcb_window_t window) const;
    pid_t namedProcess(xcb_window_t window) const;
    std::vector<Receiver> all() const;
    void selectAnswers(bool on) const;
    void ping(const Receiver& receiver) const;
    /// Finds out which of them have taken everything in by now.
    void follow(std::vector<Receiver>& receivers, Clock::Time start) const;
    void readAnswers(std::vector<Receiver>& receivers) const;
    bool hasTakenIn(Receiver& receiver, Clock::Time start) const;
    static bool areDone(const std::vector<Receiver>& receivers);

    std::string m_display;
    const Clock& m_clock;
    std::unique_ptr<const Server> m_server;
    std::set<xcb_window_t> m_noted;
    /// What tells this round's answers from older ones.
    std::uint32_t m_stamp = 0;
};

}  // namespace x11
