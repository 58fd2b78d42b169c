// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/KeyInjector.h"
#include "platform/ScriptDesktop.h"
#include "platform/ScriptDialogs.h"

namespace script {

/// What a run may use of the world. All of it outlives the run.
struct MachineServices {
    KeyInjector& injector;
    ScriptDesktop& desktop;
    ScriptDialogs& dialogs;
};

/// A desktop of which there is nothing to be seen or heard: the clipboard is a variable, no application is
/// open.
class SilentDesktop : public ScriptDesktop {
  public:
    Result<void> beep(int /*count*/) override { return {}; }
    Result<void> setClipboard(std::string_view text) override {
        m_clipboard = text;
        return {};
    }
    Result<std::string> clipboard() override { return m_clipboard; }
    bool hasApplication(std::string_view /*name*/) override { return false; }
    Result<void> activate(std::string_view /*name*/) override { return {}; }
    Result<std::vector<std::string>> applications() override { return std::vector<std::string>(); }
    bool isInFront(std::string_view /*name*/) override { return false; }

  private:
    std::string m_clipboard;
};

/// Nobody is there to be asked.
class NoDialogs : public ScriptDialogs {
  public:
    Result<ScriptAnswer> ask(const ScriptDialog& /*dialog*/) override {
        return Error{sentence("ScriptTool", "No dialog can be shown here."), ""};
    }
    Result<void> notify(const ScriptNotification& /*notification*/) override { return {}; }
};

}  // namespace script
