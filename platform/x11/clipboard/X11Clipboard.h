// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Result.h"

namespace x11 {

/// The selection CLIPBOARD (ICCCM 2, section 2), owned by a window of ours and served by a thread of its own,
/// so that a paste finds it while a script runs and as long as the process lives.
///
/// Why a thread: a run does nothing else while it presses and waits, and whoever pastes must be answered.
class X11Clipboard {
  public:
    /// Of the display, or of $DISPLAY if it is empty. Nothing is opened before the first use.
    explicit X11Clipboard(std::string display);
    /// While a text is waited for it is asked whether the wait is to end; from now on.
    void heedStops(std::function<bool()> isStopped) { m_isStopped = std::move(isStopped); }
    ~X11Clipboard();
    X11Clipboard(const X11Clipboard&) = delete;
    X11Clipboard& operator=(const X11Clipboard&) = delete;

    /// UTF-8. Ours when it returns.
    Result<void> set(std::string_view text);
    /// Empty if there is none; its owner is not waited for longer than a second without a sign of life.
    Result<std::string> text();

    /// Gives what was set, and is still there, to the clipboard manager. False without one, if there is
    /// nothing to give, and if the manager does not say within a second that it has it.
    bool handOver();

    /// What was set, and is still there, is to outlive this process: in a process in the
    /// background, which ends when a clipboard manager has it or another client fills the clipboard.
    void leave();

  private:
    struct Parts;

    /// Opened if need be.
    Result<Parts*> parts();

    std::string m_display;
    std::function<bool()> m_isStopped;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace x11
