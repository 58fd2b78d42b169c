// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/ScriptDesktop.h"
#include "platform/x11/clipboard/X11Clipboard.h"

class Clock;

namespace x11 {

/// The bell, the selection CLIPBOARD, and windows by way of the Extended Window Manager Hints 1.5.
class X11ScriptDesktop : public ScriptDesktop {
  public:
    /// On the display, or on $DISPLAY if it is empty. Nothing is opened before the first use. The clock
    /// outlives the object.
    explicit X11ScriptDesktop(Clock& clock, const std::string& display = {});
    ~X11ScriptDesktop() override;
    X11ScriptDesktop(const X11ScriptDesktop&) = delete;
    X11ScriptDesktop& operator=(const X11ScriptDesktop&) = delete;

    Result<void> beep(int count) override;
    Result<void> setClipboard(std::string_view text) override { return m_clipboard.set(text); }
    Result<std::string> clipboard() override { return m_clipboard.text(); }
    bool hasApplication(std::string_view name) override;
    Result<std::vector<std::string>> applications() override;
    bool isInFront(std::string_view name) override;
    Result<void> activate(std::string_view name) override;

    /// While the clipboard's owner is waited for it is asked whether the wait is to end; from now on.
    void heedStops(std::function<bool()> isStopped) { m_clipboard.heedStops(std::move(isStopped)); }

    /// What scripts have put into the clipboard, as it can be kept beyond the end of the process.
    X11Clipboard& clipboardOfScripts() { return m_clipboard; }

  private:
    struct Server;

    /// Opened if need be.
    Result<const Server*> server();

    std::string m_display;
    Clock& m_clock;
    X11Clipboard m_clipboard;
    std::unique_ptr<const Server> m_server;
};

}  // namespace x11
