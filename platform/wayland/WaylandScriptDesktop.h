// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/ScriptDesktop.h"
#include "platform/desktops/SwayDesktop.h"
#include "platform/wayland/WaylandClipboard.h"

namespace wayland {

/// The clipboard, and windows where the compositor is sway. There is no bell in Wayland.
class WaylandScriptDesktop final : public ScriptDesktop {
  public:
    /// `sway` is null elsewhere, and outlives the object.
    explicit WaylandScriptDesktop(SwayDesktop* sway) : m_sway(sway) {}

    Result<void> beep(int count) override;
    Result<void> setClipboard(std::string_view text) override { return m_clipboard.set(text); }
    Result<std::string> clipboard() override { return m_clipboard.text(); }
    bool hasApplication(std::string_view name) override;
    Result<std::vector<std::string>> applications() override;
    bool isInFront(std::string_view name) override;
    Result<void> activate(std::string_view name) override;

    WaylandClipboard& clipboardOfScripts() { return m_clipboard; }

  private:
    SwayDesktop* m_sway;
    WaylandClipboard m_clipboard;
};

}  // namespace wayland
