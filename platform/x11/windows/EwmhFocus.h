// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CompositorFocus.h"
#include "platform/x11/server/ServerClock.h"
#include "platform/x11/server/WindowTree.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/windows/WindowFocus.h"

namespace x11 {

/// Asks the X server's window manager, which a Wayland compositor is there too (Extended Window Manager Hints
/// 1.5): for who has no other way.
///
/// What it asks for it dates with the server's present time: it is to be asked on behalf of what the user
/// does now, also in a window that is none of the server's, of which the toolkit knows nothing.
class EwmhFocus final : public CompositorFocus {
  public:
    explicit EwmhFocus(XConnection connection);

    /// A window of the compositor's own is active as none.
    bool isElsewhere(const OwnWindow& hidden) override {
        return hidden.id == Windows::none || m_focus.activeWindow() != hidden.id;
    }
    /// Sent, not awaited; the manager may mark the window instead.
    Result<void> focus(const OwnWindow& window) override;

  private:
    XConnection m_connection;
    WindowFocus m_focus;
    WindowTree m_tree;
    ServerClock m_serverClock;
};

}  // namespace x11
