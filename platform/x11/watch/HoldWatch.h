// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/monitor/KeyboardHold.h"
#include "platform/x11/server/HiddenWindow.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// Looks whether another client holds the keyboard, and for what explains it: windows that came up then and
/// that the window manager leaves alone, as menus and lockers have.
///
/// The question is a grab of a window that is never mapped (see GrabWait): no other client notices.
class HoldWatch {
  public:
    /// `asker` is the connection whose own grabs are not another client's; it outlives this.
    static Result<std::unique_ptr<HoldWatch>> open(const std::string& display, const XConnection& asker);

    /// Follows windows that come and go, which the signs need, or does not.
    void follow(bool follows);

    HoldSigns look(Clock::Time now);

  private:
    HoldWatch(XConnection connection, const XConnection& asker);

    struct Candidate {
        xcb_window_t window = XCB_WINDOW_NONE;
        Clock::Time mapped;
    };

    void readEvents(Clock::Time now);
    void addSigns(HoldSigns& signs) const;
    bool isNoMenu(xcb_window_t window) const;

    XConnection m_connection;
    const XConnection& m_asker;
    HiddenWindow m_question;
    xcb_atom_t m_type = XCB_ATOM_NONE;
    xcb_atom_t m_process = XCB_ATOM_NONE;
    std::vector<xcb_atom_t> m_otherTypes;
    std::vector<Candidate> m_candidates;
    std::optional<Clock::Time> m_since;
    bool m_isExplained = false;
    bool m_follows = false;
};

}  // namespace x11
