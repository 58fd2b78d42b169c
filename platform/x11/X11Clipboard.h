// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/x11/XConnection.h"

/// The selection CLIPBOARD (ICCCM 2, section 2), owned by a window of ours and served by a thread of its own,
/// so that a paste finds it while a script runs. What was set is gone with the object, unless somebody has
/// taken it over by then.
///
/// Why a thread: a run does nothing else while it presses and waits, and whoever pastes must be answered.
class X11Clipboard {
  public:
    /// Two connections: one owns and serves, one asks.
    X11Clipboard(XConnection server, XConnection client);
    ~X11Clipboard();
    X11Clipboard(const X11Clipboard&) = delete;
    X11Clipboard& operator=(const X11Clipboard&) = delete;

    /// UTF-8. Ours when it returns.
    Result<void> set(std::string_view text);
    /// Empty if there is none; waits at most a second for its owner.
    Result<std::string> text();

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};
