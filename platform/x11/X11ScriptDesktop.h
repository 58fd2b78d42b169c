// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ScriptDesktop.h"
#include "platform/x11/WindowFocus.h"
#include "platform/x11/X11Clipboard.h"
#include "platform/x11/XConnection.h"

class Clock;

/// The bell, the selection CLIPBOARD, and windows by way of the Extended Window Manager Hints 1.5.
class X11ScriptDesktop : public ScriptDesktop {
  public:
    /// On the display, or on $DISPLAY if it is empty. The clock outlives the object.
    static Result<std::unique_ptr<X11ScriptDesktop>> open(Clock& clock, const std::string& display = {});

    X11ScriptDesktop(XConnection connection, const std::string& display, Clock& clock);

    Result<void> beep(int count) override;
    Result<void> setClipboard(std::string_view text) override { return m_clipboard.set(text); }
    Result<std::string> clipboard() override { return m_clipboard.text(); }
    bool hasApplication(std::string_view name) override { return findWindow(name) != XCB_WINDOW_NONE; }
    Result<void> activate(std::string_view name) override;

    /// What scripts have put into the clipboard, as it can be kept beyond the end of the process.
    X11Clipboard& clipboardOfScripts() { return m_clipboard; }

  private:
    /// The window that lies highest of those that the window manager knows.
    xcb_window_t findWindow(std::string_view name) const;
    bool isOf(xcb_window_t window, const std::string& name) const;
    std::vector<xcb_window_t> windows(xcb_atom_t list) const;

    XConnection m_connection;
    WindowFocus m_focus;
    X11Clipboard m_clipboard;
    Clock& m_clock;
    xcb_atom_t m_stacking;
    xcb_atom_t m_clients;
};
