// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Result.h"

namespace wayland {

/// The clipboard of the seat (wlr-data-control-unstable-v1), owned without a window and served by a thread of
/// its own, so that a paste finds it while a script runs and as long as the process lives.
class WaylandClipboard {
  public:
    WaylandClipboard();
    ~WaylandClipboard();
    WaylandClipboard(const WaylandClipboard&) = delete;
    WaylandClipboard& operator=(const WaylandClipboard&) = delete;

    /// While a text is waited for it is asked whether the wait is to end; from now on.
    void heedStops(std::function<bool()> isStopped) { m_isStopped = std::move(isStopped); }

    /// UTF-8. Ours when it returns. Fails with a hint where the compositor lets nobody without a window have
    /// the clipboard.
    Result<void> set(std::string_view text);
    /// Empty if there is none; its owner is not waited for longer than a second without a sign of life.
    Result<std::string> text();

    /// What was set, and is still there, is to outlive this process: in a process in the background, which
    /// ends when another client fills the clipboard.
    void leave();

  private:
    class Owner;

    std::function<bool()> m_isStopped;
    std::unique_ptr<Owner> m_owner;
};

}  // namespace wayland
