// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/ScriptDesktop.h"
#include "platform/desktops/ForeignWindows.h"
#include "platform/wayland/WaylandClipboard.h"

namespace wayland {

/// The clipboard and the windows, as far as the compositor gives them to programs. There is no bell in
/// Wayland.
class WaylandScriptDesktop final : public ScriptDesktop {
  public:
    using OpensWindows = std::function<Result<std::unique_ptr<ForeignWindows>>()>;

    /// `openWindows` fails with a hint where nobody is told of windows.
    explicit WaylandScriptDesktop(OpensWindows openWindows) : m_openWindows(std::move(openWindows)) {}

    Result<void> beep(int count) override;
    Result<void> setClipboard(std::string_view text) override { return m_clipboard.set(text); }
    Result<std::string> clipboard() override { return m_clipboard.text(); }
    bool hasApplication(std::string_view name) override;
    Result<std::vector<std::string>> applications() override;
    bool isInFront(std::string_view name) override;
    Result<void> activate(std::string_view name) override;

    WaylandClipboard& clipboardOfScripts() { return m_clipboard; }

  private:
    OpensWindows m_openWindows;
    WaylandClipboard m_clipboard;
};

}  // namespace wayland
